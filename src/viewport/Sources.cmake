target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/Convert.h ${CMAKE_CURRENT_LIST_DIR}/Convert.cpp
    ${CMAKE_CURRENT_LIST_DIR}/GraphicView.h ${CMAKE_CURRENT_LIST_DIR}/GraphicView.cpp
    ${CMAKE_CURRENT_LIST_DIR}/OrvoInteractionStrategy.h ${CMAKE_CURRENT_LIST_DIR}/OrvoInteractionStrategy.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Viewport.h ${CMAKE_CURRENT_LIST_DIR}/Viewport.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ViewportLogging.h ${CMAKE_CURRENT_LIST_DIR}/ViewportLogging.cpp
)
