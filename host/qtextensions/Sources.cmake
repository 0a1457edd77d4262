target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/CommandExecutionMonitor.h ${CMAKE_CURRENT_LIST_DIR}/CommandExecutionMonitor.cpp
    ${CMAKE_CURRENT_LIST_DIR}/CommandHistoryModel.h ${CMAKE_CURRENT_LIST_DIR}/CommandHistoryModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/CommandListModel.h ${CMAKE_CURRENT_LIST_DIR}/CommandListModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ComponentConfigurationStore.h ${CMAKE_CURRENT_LIST_DIR}/ComponentConfigurationStore.cpp
    ${CMAKE_CURRENT_LIST_DIR}/File.h ${CMAKE_CURRENT_LIST_DIR}/File.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FramelessWindow.h ${CMAKE_CURRENT_LIST_DIR}/FramelessWindow.cpp
    ${CMAKE_CURRENT_LIST_DIR}/HostQmlTypes.h ${CMAKE_CURRENT_LIST_DIR}/HostQmlTypes.cpp
    ${CMAKE_CURRENT_LIST_DIR}/KeySequences.h ${CMAKE_CURRENT_LIST_DIR}/KeySequences.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessageBoxService.h ${CMAKE_CURRENT_LIST_DIR}/MessageBoxService.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessageBoxTracker.h ${CMAKE_CURRENT_LIST_DIR}/MessageBoxTracker.cpp
    ${CMAKE_CURRENT_LIST_DIR}/QmlModuleInfo.h ${CMAKE_CURRENT_LIST_DIR}/QmlModuleInfo.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ShellQmlContext.h ${CMAKE_CURRENT_LIST_DIR}/ShellQmlContext.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UIComponent.h ${CMAKE_CURRENT_LIST_DIR}/UIComponent.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ViewInputArea.h ${CMAKE_CURRENT_LIST_DIR}/ViewInputArea.cpp
)
