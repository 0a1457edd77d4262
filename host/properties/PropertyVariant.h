#pragma once

#include "HostKitExport.h"
#include "PropertyDefinition.h"

#include <QVariant>
#include <optional>

namespace Orvo::UI::BasicComponents {
class DisplayUnits;
}

namespace Orvo::Kernel::Framework {

class IStringLoader;

// Property values as the views hand them around in variants (QML, table cells, pasted text).
class HOSTKIT_EXPORT PropertyVariant
{
public:
    // List choices as their display text, colours as QColor, everything else as it is. With
    // units, real numbers are in the unit the user chose for their quantity.
    static QVariant ToVariant(const PropertyValue& value, const PropertyDefinition& definition,
                              const IStringLoader* strings,
                              const UI::BasicComponents::DisplayUnits* units = nullptr);

    // Reads a value of definition's type: numbers also as text in the user's number format, list
    // choices as index, display text or text identifier, colours as QColor or colour name,
    // yes/no as bool, number or "true"/"false". No value when it cannot be read as that type;
    // range checks are the model's. With units, a real number is read in the unit the user chose
    // for its quantity.
    static std::optional<PropertyValue> FromVariant(const QVariant& value,
                                                    const PropertyDefinition& definition,
                                                    const IStringLoader* strings,
                                                    const UI::BasicComponents::DisplayUnits* units = nullptr);

    // The display text of a list property's choice; empty for an index it does not have.
    static QString ChoiceText(std::int32_t index, const PropertyDefinition& definition,
                              const IStringLoader* strings);
};

} // namespace Orvo::Kernel::Framework
