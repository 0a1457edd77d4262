target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/CommandExecuted.h
    ${CMAKE_CURRENT_LIST_DIR}/CommandShortcutChange.h
    ${CMAKE_CURRENT_LIST_DIR}/CommandStateChange.h
    ${CMAKE_CURRENT_LIST_DIR}/DisplayUnitsChanged.h
    ${CMAKE_CURRENT_LIST_DIR}/MessageBoxVisibleChanged.h
    ${CMAKE_CURRENT_LIST_DIR}/NumberFormatChanged.h
    ${CMAKE_CURRENT_LIST_DIR}/RecentFilesChange.h
    ${CMAKE_CURRENT_LIST_DIR}/RunningCommandEvents.h
    ${CMAKE_CURRENT_LIST_DIR}/ShowMarkingMenuEvent.h
)
