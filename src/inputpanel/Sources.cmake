target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/FilterBarItemModel.h ${CMAKE_CURRENT_LIST_DIR}/FilterBarItemModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FilterBarItemProxyModel.h ${CMAKE_CURRENT_LIST_DIR}/FilterBarItemProxyModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/InputPanel.h ${CMAKE_CURRENT_LIST_DIR}/InputPanel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/InputPanelContainerModel.h ${CMAKE_CURRENT_LIST_DIR}/InputPanelContainerModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/InputPanelContainerProxyModel.h ${CMAKE_CURRENT_LIST_DIR}/InputPanelContainerProxyModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/InputPanelLogging.h ${CMAKE_CURRENT_LIST_DIR}/InputPanelLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/InputPanelUserConfiguration.h ${CMAKE_CURRENT_LIST_DIR}/InputPanelUserConfiguration.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TagModel.h ${CMAKE_CURRENT_LIST_DIR}/TagModel.cpp
)
