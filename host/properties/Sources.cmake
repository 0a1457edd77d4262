target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/CommonProperties.h
    ${CMAKE_CURRENT_LIST_DIR}/LoadObjectTypes.h ${CMAKE_CURRENT_LIST_DIR}/LoadObjectTypes.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ObjectType.h ${CMAKE_CURRENT_LIST_DIR}/ObjectType.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertyBinding.h
    ${CMAKE_CURRENT_LIST_DIR}/PropertyDefinition.h ${CMAKE_CURRENT_LIST_DIR}/PropertyDefinition.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertyValue.h ${CMAKE_CURRENT_LIST_DIR}/PropertyValue.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PropertyVariant.h ${CMAKE_CURRENT_LIST_DIR}/PropertyVariant.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SectionObjectTypes.h ${CMAKE_CURRENT_LIST_DIR}/SectionObjectTypes.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StructuralModel.h ${CMAKE_CURRENT_LIST_DIR}/StructuralModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StructuralModelEvents.h
    ${CMAKE_CURRENT_LIST_DIR}/StructuralObjectTypes.h ${CMAKE_CURRENT_LIST_DIR}/StructuralObjectTypes.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StructureReplaceCommand.h ${CMAKE_CURRENT_LIST_DIR}/StructureReplaceCommand.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StructureUndoCommand.h ${CMAKE_CURRENT_LIST_DIR}/StructureUndoCommand.cpp
)
