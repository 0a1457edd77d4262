#pragma once

#include "ObjectType.h"
#include "PropertyBinding.h"
#include "StructuralModel.h"

namespace Orvo::Kernel::Framework {

// Categories and property shapes that several object types share.
namespace Categories {
inline const QString c_general = QStringLiteral("UI_PROPERTIES_CATEGORY_GENERAL");
inline const QString c_geometry = QStringLiteral("UI_PROPERTIES_CATEGORY_GEOMETRY");
inline const QString c_support = QStringLiteral("UI_PROPERTIES_CATEGORY_SUPPORT");
inline const QString c_crossSection = QStringLiteral("UI_PROPERTIES_CATEGORY_CROSS_SECTION");
inline const QString c_material = QStringLiteral("UI_PROPERTIES_CATEGORY_MATERIAL");
inline const QString c_releases = QStringLiteral("UI_PROPERTIES_CATEGORY_RELEASES");
inline const QString c_analysis = QStringLiteral("UI_PROPERTIES_CATEGORY_ANALYSIS");
inline const QString c_loads = QStringLiteral("UI_PROPERTIES_CATEGORY_LOADS");
inline const QString c_display = QStringLiteral("UI_PROPERTIES_CATEGORY_DISPLAY");
} // namespace Categories

// The number every object shows first: read-only, numbered per kind from 1.
template<class Record> void AddNumber(ObjectType& type)
{
    type.AddProperty(BindComputed<Record>(
        PropertyDefinition(StructuralModel::c_numberProperty, PropertyType::Integer,
                           QStringLiteral("UI_PROP_NUMBER"))
            .WithCategory(Categories::c_general)
            .HiddenWhenValuesDiffer(),
        [](const Model::Structure&, const Record& record) { return std::int32_t(record.number); }));
}

template<class Record> void AddNumberAndName(ObjectType& type)
{
    AddNumber<Record>(type);
    type.AddProperty(BindField(PropertyDefinition(QStringLiteral("general.name"), PropertyType::String,
                                                  QStringLiteral("UI_PROP_NAME"))
                                   .WithCategory(Categories::c_general)
                                   .HiddenWhenValuesDiffer(),
                               &Record::name));
}

// A reference to another object by its number; the model refuses numbers that name nothing.
inline PropertyDefinition Reference(const QString& key, const QString& nameId, const QString& category)
{
    return PropertyDefinition(key, PropertyType::Integer, nameId)
        .WithCategory(category)
        .WithRange(1.0, double(Model::c_largestNumber));
}

inline PropertyDefinition Quantity(const QString& key, const QString& nameId, const QString& category,
                                   const QString& units, int decimals)
{
    return PropertyDefinition(key, PropertyType::Real, nameId)
        .WithCategory(category)
        .WithUnits(units, decimals);
}

} // namespace Orvo::Kernel::Framework
