#pragma once

#include "PropertyValue.h"
#include "model/ModelRecords.h"

#include <QString>
#include <vector>

namespace Orvo::Kernel::Framework {

// Posted on the event bus when the set of selected objects changes.
struct SelectionChangedEvent
{
    std::vector<ObjectId> selection;
};

// Posted when property values of objects changed. An empty key means that any property of
// those objects may have changed (an action ran, a step was undone).
struct ObjectValuesChangedEvent
{
    std::vector<ObjectId> objects;
    QString propertyKey;
};

// Posted when objects were added to or removed from the model: of the kinds listed, or of any
// kind when the list is empty (the whole structure was replaced).
struct StructureChangedEvent
{
    std::vector<Model::ObjectKind> kinds;
};

// Posted when a user's edit was refused, wholly or for some of its objects: why, in the user's
// language, and the first object that kept its value.
struct EditRejectedEvent
{
    QString message;
    ObjectId object = 0;
    int rejected = 0;
};

} // namespace Orvo::Kernel::Framework
