target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/SettingChangedEvent.h
    ${CMAKE_CURRENT_LIST_DIR}/Settings.h ${CMAKE_CURRENT_LIST_DIR}/Settings.cpp
)
