target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/TutorialLogging.h ${CMAKE_CURRENT_LIST_DIR}/TutorialLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TutorialToolTip.h ${CMAKE_CURRENT_LIST_DIR}/TutorialToolTip.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TutorialToolTipData.h ${CMAKE_CURRENT_LIST_DIR}/TutorialToolTipData.cpp
)
