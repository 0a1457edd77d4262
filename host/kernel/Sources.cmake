target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/Directories.h ${CMAKE_CURRENT_LIST_DIR}/Directories.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NaturalTextOrder.h ${CMAKE_CURRENT_LIST_DIR}/NaturalTextOrder.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PathText.h ${CMAKE_CURRENT_LIST_DIR}/PathText.cpp
)
