target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/DisplayUnits.h ${CMAKE_CURRENT_LIST_DIR}/DisplayUnits.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FieldExpression.h ${CMAKE_CURRENT_LIST_DIR}/FieldExpression.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NumberFormat.h ${CMAKE_CURRENT_LIST_DIR}/NumberFormat.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NumberFormatSettings.h ${CMAKE_CURRENT_LIST_DIR}/NumberFormatSettings.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NumberHelper.h ${CMAKE_CURRENT_LIST_DIR}/NumberHelper.cpp
)
