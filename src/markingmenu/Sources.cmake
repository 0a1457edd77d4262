target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/MarkingMenu.h ${CMAKE_CURRENT_LIST_DIR}/MarkingMenu.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MarkingMenuConfig.h ${CMAKE_CURRENT_LIST_DIR}/MarkingMenuConfig.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MarkingMenuConfigXmlHandler.h ${CMAKE_CURRENT_LIST_DIR}/MarkingMenuConfigXmlHandler.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MarkingMenuLogging.h ${CMAKE_CURRENT_LIST_DIR}/MarkingMenuLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MarkingMenuSectionConfig.h ${CMAKE_CURRENT_LIST_DIR}/MarkingMenuSectionConfig.cpp
)
