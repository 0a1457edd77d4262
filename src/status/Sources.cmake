target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/CoordinatesSubModel.h ${CMAKE_CURRENT_LIST_DIR}/CoordinatesSubModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MasterEntitySubDataModel.h ${CMAKE_CURRENT_LIST_DIR}/MasterEntitySubDataModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ScaleSubDataModel.h ${CMAKE_CURRENT_LIST_DIR}/ScaleSubDataModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SnapListModel.h ${CMAKE_CURRENT_LIST_DIR}/SnapListModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SnappingSubDataModel.h ${CMAKE_CURRENT_LIST_DIR}/SnappingSubDataModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StatusBar.h ${CMAKE_CURRENT_LIST_DIR}/StatusBar.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StatusBarDataModel.h ${CMAKE_CURRENT_LIST_DIR}/StatusBarDataModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StatusLogging.h ${CMAKE_CURRENT_LIST_DIR}/StatusLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UnitsSubDataModel.h ${CMAKE_CURRENT_LIST_DIR}/UnitsSubDataModel.cpp
)
