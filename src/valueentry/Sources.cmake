target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ExpressionEscape.h ${CMAKE_CURRENT_LIST_DIR}/ExpressionEscape.cpp
    ${CMAKE_CURRENT_LIST_DIR}/InlineCalculator.h ${CMAKE_CURRENT_LIST_DIR}/InlineCalculator.cpp
    ${CMAKE_CURRENT_LIST_DIR}/IntegerValidator.h ${CMAKE_CURRENT_LIST_DIR}/IntegerValidator.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MixedValues.h ${CMAKE_CURRENT_LIST_DIR}/MixedValues.cpp
    ${CMAKE_CURRENT_LIST_DIR}/RealValidator.h ${CMAKE_CURRENT_LIST_DIR}/RealValidator.cpp
)
