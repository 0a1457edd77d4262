target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/MixedValues.h ${CMAKE_CURRENT_LIST_DIR}/MixedValues.cpp
)
