#pragma once

#include "HostKitExport.h"
#include "model/ObjectIds.h"

#include <QColor>
#include <QString>
#include <cstdint>
#include <variant>

namespace Orvo::Kernel::Framework {

// Identifies one object of the structural model: its kind and its number within the kind.
using Model::ObjectId;

// The value type of a property. The numbering is shared with the table value types, so the
// UI can treat a property row and a table cell of the same type alike.
enum class PropertyType : std::int32_t
{
    Bool = 1,
    Integer = 2,
    Real = 3,
    String = 4,
    List = 5,
    Color = 6,
};

// One property value. A list property holds the index of its choice.
using PropertyValue = std::variant<bool, std::int32_t, double, QString, QColor>;

// The alternative of PropertyValue that a property of type holds.
HOSTKIT_EXPORT std::size_t ValueIndexOf(PropertyType type);
HOSTKIT_EXPORT PropertyValue DefaultValueOf(PropertyType type);
HOSTKIT_EXPORT QString TypeName(PropertyType type);
// A readable form for messages and logs, not for display.
HOSTKIT_EXPORT QString DescribeValue(const PropertyValue& value);

} // namespace Orvo::Kernel::Framework
