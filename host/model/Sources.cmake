target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ActiveEntities.h ${CMAKE_CURRENT_LIST_DIR}/ActiveEntities.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MaterialCatalog.h ${CMAKE_CURRENT_LIST_DIR}/MaterialCatalog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ModelGenerator.h ${CMAKE_CURRENT_LIST_DIR}/ModelGenerator.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ModelMessage.h ${CMAKE_CURRENT_LIST_DIR}/ModelMessage.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ModelFile.h ${CMAKE_CURRENT_LIST_DIR}/ModelFile.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ModelRecords.h
    ${CMAKE_CURRENT_LIST_DIR}/ObjectIds.h
    ${CMAKE_CURRENT_LIST_DIR}/ObjectTable.h
    ${CMAKE_CURRENT_LIST_DIR}/SectionProperties.h ${CMAKE_CURRENT_LIST_DIR}/SectionProperties.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Structure.h ${CMAKE_CURRENT_LIST_DIR}/Structure.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StructureChange.h ${CMAKE_CURRENT_LIST_DIR}/StructureChange.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StructureValidator.h ${CMAKE_CURRENT_LIST_DIR}/StructureValidator.cpp
)
