#pragma once

#include "model/ModelGenerator.h"
#include "properties/PropertyDefinition.h"
#include "properties/StructuralModel.h"

#include <vector>

// The objects of one kind in a model, in number order.
inline std::vector<Orvo::Kernel::Framework::ObjectId>
ObjectsOfType(const Orvo::Kernel::Framework::StructuralModel& model, const QString& typeKey)
{
    const auto* type = model.FindType(typeKey);
    return type ? model.Objects(type->Kind()) : std::vector<Orvo::Kernel::Framework::ObjectId>();
}

// A portal frame of two bays: nodes 1 to 6 (feet at odd numbers), three columns (members 1 to 3)
// of section 1 and two beams (4, 5) of section 2, all of material 1; three load cases.
inline void FillSampleFrame(Orvo::Kernel::Framework::StructuralModel& model)
{
    model.Replace([](Orvo::Kernel::Model::Structure& structure) {
        Orvo::Kernel::Model::ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 });
        structure.Nodes().At(0).name = QStringLiteral("Base left");
        structure.Members().At(0).name = QStringLiteral("Column left");
    });
}

// The UUID the panel's rows carry for the property key.
inline QString UuidOf(const QString& key)
{
    using namespace Orvo::Kernel::Framework;
    return PropertyDefinition(key, PropertyType::Bool, QString()).uuid;
}
