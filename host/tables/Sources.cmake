target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ITableData.h
    ${CMAKE_CURRENT_LIST_DIR}/ITableInputTableData.h
    ${CMAKE_CURRENT_LIST_DIR}/ObjectTableData.h ${CMAKE_CURRENT_LIST_DIR}/ObjectTableData.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ObjectTableOrder.h ${CMAKE_CURRENT_LIST_DIR}/ObjectTableOrder.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableDataCatalog.h ${CMAKE_CURRENT_LIST_DIR}/TableDataCatalog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableDataCell.h
    ${CMAKE_CURRENT_LIST_DIR}/TableDataColumn.h
    ${CMAKE_CURRENT_LIST_DIR}/TableDataEvents.h
    ${CMAKE_CURRENT_LIST_DIR}/TableDataUpdate.h
    ${CMAKE_CURRENT_LIST_DIR}/TableResultsTabInfo.h
    ${CMAKE_CURRENT_LIST_DIR}/TableResultsValue.h
    ${CMAKE_CURRENT_LIST_DIR}/TableWorkstation.h
)
