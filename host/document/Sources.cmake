target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ModelDocument.h ${CMAKE_CURRENT_LIST_DIR}/ModelDocument.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ModelDocumentEvents.h
)
