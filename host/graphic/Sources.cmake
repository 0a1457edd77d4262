target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/AnalysisResultsSource.h ${CMAKE_CURRENT_LIST_DIR}/AnalysisResultsSource.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Camera.h ${CMAKE_CURRENT_LIST_DIR}/Camera.cpp
    ${CMAKE_CURRENT_LIST_DIR}/DisplayOptions.h
    ${CMAKE_CURRENT_LIST_DIR}/FrameComposer.h ${CMAKE_CURRENT_LIST_DIR}/FrameComposer.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FramePlan.h
    ${CMAKE_CURRENT_LIST_DIR}/GLPrograms.h ${CMAKE_CURRENT_LIST_DIR}/GLPrograms.cpp
    ${CMAKE_CURRENT_LIST_DIR}/GLSceneBuffers.h ${CMAKE_CURRENT_LIST_DIR}/GLSceneBuffers.cpp
    ${CMAKE_CURRENT_LIST_DIR}/GraphicLogging.h ${CMAKE_CURRENT_LIST_DIR}/GraphicLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/GraphicTypes.h
    ${CMAKE_CURRENT_LIST_DIR}/GraphicsService.h ${CMAKE_CURRENT_LIST_DIR}/GraphicsService.cpp
    ${CMAKE_CURRENT_LIST_DIR}/InteractionStrategy.h ${CMAKE_CURRENT_LIST_DIR}/InteractionStrategy.cpp
    ${CMAKE_CURRENT_LIST_DIR}/InteractiveViewport.h ${CMAKE_CURRENT_LIST_DIR}/InteractiveViewport.cpp
    ${CMAKE_CURRENT_LIST_DIR}/OpenGLRenderer.h ${CMAKE_CURRENT_LIST_DIR}/OpenGLRenderer.cpp
    ${CMAKE_CURRENT_LIST_DIR}/OverlaySymbols.h ${CMAKE_CURRENT_LIST_DIR}/OverlaySymbols.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Picker.h ${CMAKE_CURRENT_LIST_DIR}/Picker.cpp
    ${CMAKE_CURRENT_LIST_DIR}/RenderSystem.h ${CMAKE_CURRENT_LIST_DIR}/RenderSystem.cpp
    ${CMAKE_CURRENT_LIST_DIR}/RenderTarget.h ${CMAKE_CURRENT_LIST_DIR}/RenderTarget.cpp
    ${CMAKE_CURRENT_LIST_DIR}/RenderView.h
    ${CMAKE_CURRENT_LIST_DIR}/RenderingFlowListener.h
    ${CMAKE_CURRENT_LIST_DIR}/ResultsLayer.h ${CMAKE_CURRENT_LIST_DIR}/ResultsLayer.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ResultsSource.h
    ${CMAKE_CURRENT_LIST_DIR}/SceneBox.h
    ${CMAKE_CURRENT_LIST_DIR}/SceneDocument.h ${CMAKE_CURRENT_LIST_DIR}/SceneDocument.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ScenePalette.h
    ${CMAKE_CURRENT_LIST_DIR}/SceneRenderer.h
    ${CMAKE_CURRENT_LIST_DIR}/SectionProfile.h ${CMAKE_CURRENT_LIST_DIR}/SectionProfile.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SoftwareRaster.h ${CMAKE_CURRENT_LIST_DIR}/SoftwareRaster.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SoftwareRenderer.h ${CMAKE_CURRENT_LIST_DIR}/SoftwareRenderer.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StructureScene.h ${CMAKE_CURRENT_LIST_DIR}/StructureScene.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ViewNavigation.h ${CMAKE_CURRENT_LIST_DIR}/ViewNavigation.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ViewportEvents.h
)
