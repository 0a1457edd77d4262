target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/FramelessWindowForeign.h
    ${CMAKE_CURRENT_LIST_DIR}/QtComponentsText.h ${CMAKE_CURRENT_LIST_DIR}/QtComponentsText.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StringsQtComponents.h ${CMAKE_CURRENT_LIST_DIR}/StringsQtComponents.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TypeRegistration.h ${CMAKE_CURRENT_LIST_DIR}/TypeRegistration.cpp
    ${CMAKE_CURRENT_LIST_DIR}/jobs/Jobs.h ${CMAKE_CURRENT_LIST_DIR}/jobs/Jobs.cpp
    ${CMAKE_CURRENT_LIST_DIR}/jobs/UiJobs.h ${CMAKE_CURRENT_LIST_DIR}/jobs/UiJobs.cpp
    ${CMAKE_CURRENT_LIST_DIR}/jobs/RenderingJobs.h ${CMAKE_CURRENT_LIST_DIR}/jobs/RenderingJobs.cpp
)
