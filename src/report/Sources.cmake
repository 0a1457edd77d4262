target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ReportBuilder.h ${CMAKE_CURRENT_LIST_DIR}/ReportBuilder.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ReportDocument.h ${CMAKE_CURRENT_LIST_DIR}/ReportDocument.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ReportLogging.h ${CMAKE_CURRENT_LIST_DIR}/ReportLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ReportPageImageProvider.h ${CMAKE_CURRENT_LIST_DIR}/ReportPageImageProvider.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ReportPreview.h ${CMAKE_CURRENT_LIST_DIR}/ReportPreview.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ReportTableWriter.h ${CMAKE_CURRENT_LIST_DIR}/ReportTableWriter.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ReportViewPicture.h ${CMAKE_CURRENT_LIST_DIR}/ReportViewPicture.cpp
)
