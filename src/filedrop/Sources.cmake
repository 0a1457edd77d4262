target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/FileDrop.h ${CMAKE_CURRENT_LIST_DIR}/FileDrop.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FileDropLogging.h ${CMAKE_CURRENT_LIST_DIR}/FileDropLogging.cpp
)
