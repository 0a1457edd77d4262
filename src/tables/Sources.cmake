target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/TableValueType.h
    ${CMAKE_CURRENT_LIST_DIR}/TableCellContent.h
    ${CMAKE_CURRENT_LIST_DIR}/FilterConditionBase.h
    ${CMAKE_CURRENT_LIST_DIR}/FilterConditionFactory.h
)
