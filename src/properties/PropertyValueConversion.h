#pragma once

#include "basiccomponents/DisplayUnits.h"
#include "properties/PropertyDefinition.h"
#include "valueentry/MixedValues.h"

#include <QVariant>
#include <optional>

namespace Orvo::UI::UIComponents::PropertyValueConversion {

using Kernel::Framework::PropertyDefinition;
using Kernel::Framework::PropertyValue;

// How the definition's numbers are shown: in the unit the user chose for their quantity.
BasicComponents::DisplayUnits::Shown Shown(const PropertyDefinition& definition);

// The QML form of a value: list choices as their display text, colours as QColor, numbers in the
// unit the user chose for their quantity.
QVariant ToVariant(const PropertyValue& value, const PropertyDefinition& definition);

// The form a value takes in the panel's list of distinct values: like ToVariant, but colours as
// their name, since MixedValues holds no colours.
MixedValues::Value ToMixedValue(const PropertyValue& value, const PropertyDefinition& definition);

// Reads what QML or a caller hands in as a value of definition's type: numbers also as text in the
// user's number format and in the unit the user chose, list choices as index or display text,
// colours as QColor or colour name.
// No value when it cannot be read as that type; range checks are the host's.
std::optional<PropertyValue> FromVariant(const QVariant& value, const PropertyDefinition& definition);

} // namespace Orvo::UI::UIComponents::PropertyValueConversion
