target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/TableValueType.h
    ${CMAKE_CURRENT_LIST_DIR}/TableCellContent.h
    ${CMAKE_CURRENT_LIST_DIR}/FilterConditionBase.h
    ${CMAKE_CURRENT_LIST_DIR}/FilterConditionFactory.h
    ${CMAKE_CURRENT_LIST_DIR}/FilterConditionFactory.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ExpressionFilterCondition.h ${CMAKE_CURRENT_LIST_DIR}/ExpressionFilterCondition.cpp
    ${CMAKE_CURRENT_LIST_DIR}/IntervalFilterCondition.h ${CMAKE_CURRENT_LIST_DIR}/IntervalFilterCondition.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ValueTextFilterCondition.h ${CMAKE_CURRENT_LIST_DIR}/ValueTextFilterCondition.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FilterComparison.h ${CMAKE_CURRENT_LIST_DIR}/FilterComparison.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FilterCellText.h ${CMAKE_CURRENT_LIST_DIR}/FilterCellText.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NaturalTextOrder.h ${CMAKE_CURRENT_LIST_DIR}/NaturalTextOrder.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UnicodeStripped.h ${CMAKE_CURRENT_LIST_DIR}/UnicodeStripped.cpp
)
