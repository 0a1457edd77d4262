#pragma once

#include "PropertyValue.h"

#include <QString>
#include <vector>

namespace Orvo::Kernel::Framework {

// Posted on the event bus when the set of selected objects changes.
struct SelectionChangedEvent
{
    std::vector<ObjectId> selection;
};

// Posted when property values of objects changed. An empty key means that any property of
// those objects may have changed (an action ran).
struct ObjectValuesChangedEvent
{
    std::vector<ObjectId> objects;
    QString propertyKey;
};

// Posted when objects were added to or removed from the model.
struct StructureChangedEvent
{
};

} // namespace Orvo::Kernel::Framework
