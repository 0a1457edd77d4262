target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/FuzzyMatcher.h ${CMAKE_CURRENT_LIST_DIR}/FuzzyMatcher.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Spotlight.h ${CMAKE_CURRENT_LIST_DIR}/Spotlight.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SpotlightLogging.h ${CMAKE_CURRENT_LIST_DIR}/SpotlightLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SpotlightModel.h ${CMAKE_CURRENT_LIST_DIR}/SpotlightModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SpotlightProxyModel.h ${CMAKE_CURRENT_LIST_DIR}/SpotlightProxyModel.cpp
)
