target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/CommandDefinition.h
    ${CMAKE_CURRENT_LIST_DIR}/CommandInput.h
    ${CMAKE_CURRENT_LIST_DIR}/CommandHistory.h ${CMAKE_CURRENT_LIST_DIR}/CommandHistory.cpp
    ${CMAKE_CURRENT_LIST_DIR}/CommandOrigin.h ${CMAKE_CURRENT_LIST_DIR}/CommandOrigin.cpp
    ${CMAKE_CURRENT_LIST_DIR}/CommandRepository.h ${CMAKE_CURRENT_LIST_DIR}/CommandRepository.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ICommandRepository.h
    ${CMAKE_CURRENT_LIST_DIR}/INeedCommandRepository.h
    ${CMAKE_CURRENT_LIST_DIR}/INeedUICommandProcessor.h
    ${CMAKE_CURRENT_LIST_DIR}/IUICommandProcessor.h
    ${CMAKE_CURRENT_LIST_DIR}/RecentFiles.h ${CMAKE_CURRENT_LIST_DIR}/RecentFiles.cpp
    ${CMAKE_CURRENT_LIST_DIR}/RunningCommand.h ${CMAKE_CURRENT_LIST_DIR}/RunningCommand.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UICommandProcessor.h ${CMAKE_CURRENT_LIST_DIR}/UICommandProcessor.cpp
)
