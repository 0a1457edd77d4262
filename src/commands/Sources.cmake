target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/CommandMenuHelper.h ${CMAKE_CURRENT_LIST_DIR}/CommandMenuHelper.cpp
)
