target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/CommandMenuHelper.h ${CMAKE_CURRENT_LIST_DIR}/CommandMenuHelper.cpp
    ${CMAKE_CURRENT_LIST_DIR}/CommandsLogging.h ${CMAKE_CURRENT_LIST_DIR}/CommandsLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/HotkeyHandler.h ${CMAKE_CURRENT_LIST_DIR}/HotkeyHandler.cpp
    ${CMAKE_CURRENT_LIST_DIR}/HotkeyHandlerModel.h ${CMAKE_CURRENT_LIST_DIR}/HotkeyHandlerModel.cpp
)
