target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ResultsDatabase.h ${CMAKE_CURRENT_LIST_DIR}/ResultsDatabase.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ResultsSchema.h ${CMAKE_CURRENT_LIST_DIR}/ResultsSchema.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ResultsTableData.h ${CMAKE_CURRENT_LIST_DIR}/ResultsTableData.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ResultsWriter.h ${CMAKE_CURRENT_LIST_DIR}/ResultsWriter.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SqliteConnection.h ${CMAKE_CURRENT_LIST_DIR}/SqliteConnection.cpp
)
