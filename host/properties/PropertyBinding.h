#pragma once

#include "PropertyDefinition.h"

#include <type_traits>

namespace Orvo::Kernel::Framework {

// Conversions between record fields and property values: enums travel as list indices.
template<class Field> PropertyValue ToPropertyValue(const Field& field)
{
    if constexpr (std::is_enum_v<Field>)
        return std::int32_t(field);
    else if constexpr (std::is_same_v<Field, bool>)
        return field;
    else if constexpr (std::is_integral_v<Field>)
        return std::int32_t(field);
    else
        return PropertyValue(field);
}

template<class Field> Field FromPropertyValue(const PropertyValue& value)
{
    if constexpr (std::is_enum_v<Field>)
        return Field(std::get<std::int32_t>(value));
    else if constexpr (std::is_same_v<Field, bool>)
        return std::get<bool>(value);
    else if constexpr (std::is_integral_v<Field>)
        return Field(std::get<std::int32_t>(value));
    else
        return std::get<Field>(value);
}

// Reads and writes one field of the records of a kind.
template<class Record, class Field>
PropertyDefinition BindField(PropertyDefinition definition, Field Record::*field)
{
    return definition.Bind(
        [field](const Model::Structure& structure, std::size_t index) {
            return ToPropertyValue(structure.Table<Record>().At(index).*field);
        },
        [field](Model::Structure& structure, std::size_t index, const PropertyValue& value) {
            structure.Table<Record>().At(index).*field = FromPropertyValue<Field>(value);
            return Model::ModelMessage();
        });
}

// A value computed from the record, shown read-only.
template<class Record, class Compute>
PropertyDefinition BindComputed(PropertyDefinition definition, Compute compute)
{
    return definition.Bind([compute](const Model::Structure& structure, std::size_t index) {
        return PropertyValue(compute(structure, structure.Table<Record>().At(index)));
    });
}

} // namespace Orvo::Kernel::Framework
