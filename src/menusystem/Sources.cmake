target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/MenuDefinition.h ${CMAKE_CURRENT_LIST_DIR}/MenuDefinition.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MenuItemsFilterModel.h ${CMAKE_CURRENT_LIST_DIR}/MenuItemsFilterModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MenuItemsFilterModelForeign.h
    ${CMAKE_CURRENT_LIST_DIR}/MenuItemsModel.h ${CMAKE_CURRENT_LIST_DIR}/MenuItemsModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MenuSystem.h ${CMAKE_CURRENT_LIST_DIR}/MenuSystem.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MenuSystemLogging.h ${CMAKE_CURRENT_LIST_DIR}/MenuSystemLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SubcommandsModel.h ${CMAKE_CURRENT_LIST_DIR}/SubcommandsModel.cpp
)
