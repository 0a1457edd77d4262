target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ComboBoxProxyModel.h ${CMAKE_CURRENT_LIST_DIR}/ComboBoxProxyModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/CommonLogging.h ${CMAKE_CURRENT_LIST_DIR}/CommonLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FilterItemsProxyModel.h ${CMAKE_CURRENT_LIST_DIR}/FilterItemsProxyModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SearchableProxyModel.h ${CMAKE_CURRENT_LIST_DIR}/SearchableProxyModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SearchText.h ${CMAKE_CURRENT_LIST_DIR}/SearchText.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SelectionModel.h ${CMAKE_CURRENT_LIST_DIR}/SelectionModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ThreadHandOver.h ${CMAKE_CURRENT_LIST_DIR}/ThreadHandOver.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SimpleComboBoxProxyModel.h ${CMAKE_CURRENT_LIST_DIR}/SimpleComboBoxProxyModel.cpp
)
