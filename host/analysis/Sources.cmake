target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/AnalysisLogging.h ${CMAKE_CURRENT_LIST_DIR}/AnalysisLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/AnalysisEvents.h
    ${CMAKE_CURRENT_LIST_DIR}/AnalysisResults.h ${CMAKE_CURRENT_LIST_DIR}/AnalysisResults.cpp
    ${CMAKE_CURRENT_LIST_DIR}/AnalysisService.h ${CMAKE_CURRENT_LIST_DIR}/AnalysisService.cpp
    ${CMAKE_CURRENT_LIST_DIR}/DesignCheck.h ${CMAKE_CURRENT_LIST_DIR}/DesignCheck.cpp
    ${CMAKE_CURRENT_LIST_DIR}/DesignService.h ${CMAKE_CURRENT_LIST_DIR}/DesignService.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FrameAnalysis.h ${CMAKE_CURRENT_LIST_DIR}/FrameAnalysis.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FrameMember.h ${CMAKE_CURRENT_LIST_DIR}/FrameMember.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FrameModel.h ${CMAKE_CURRENT_LIST_DIR}/FrameModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StiffnessSolver.h ${CMAKE_CURRENT_LIST_DIR}/StiffnessSolver.cpp
)
