target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ActionsModel.h ${CMAKE_CURRENT_LIST_DIR}/ActionsModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/EntityModel.h ${CMAKE_CURRENT_LIST_DIR}/EntityModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/IllustrationData.h ${CMAKE_CURRENT_LIST_DIR}/IllustrationData.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertiesLogging.h ${CMAKE_CURRENT_LIST_DIR}/PropertiesLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertiesModel.h ${CMAKE_CURRENT_LIST_DIR}/PropertiesModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertiesPanel.h ${CMAKE_CURRENT_LIST_DIR}/PropertiesPanel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertiesPanelUserConfiguration.h ${CMAKE_CURRENT_LIST_DIR}/PropertiesPanelUserConfiguration.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertiesProxyModel.h ${CMAKE_CURRENT_LIST_DIR}/PropertiesProxyModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertiesRoles.h
    ${CMAKE_CURRENT_LIST_DIR}/PropertyItem.h
    ${CMAKE_CURRENT_LIST_DIR}/PropertyRowsBuilder.h ${CMAKE_CURRENT_LIST_DIR}/PropertyRowsBuilder.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertyValueConversion.h ${CMAKE_CURRENT_LIST_DIR}/PropertyValueConversion.cpp
)
