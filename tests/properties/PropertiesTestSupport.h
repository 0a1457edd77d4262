#pragma once

#include "properties/PropertyDefinition.h"
#include "properties/StructuralModel.h"

#include <vector>

// The objects of one kind in a model, in number order.
inline std::vector<Orvo::Kernel::Framework::ObjectId>
ObjectsOfType(const Orvo::Kernel::Framework::StructuralModel& model, const QString& typeKey)
{
    std::vector<Orvo::Kernel::Framework::ObjectId> ids;
    for (const auto* object : model.Objects()) {
        if (object->Type().Key() == typeKey)
            ids.push_back(object->Id());
    }
    return ids;
}

// The UUID the panel's rows carry for the property key.
inline QString UuidOf(const QString& key)
{
    using namespace Orvo::Kernel::Framework;
    return PropertyDefinition(key, PropertyType::Bool, QString()).uuid;
}
