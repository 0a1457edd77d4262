#pragma once

#include <cstdint>

namespace Orvo::UI::UIComponents {

// The value type of a table column or cell. The numbering is shared with the host's table
// data and with TableContentModel::ContentType, which passes it through unchanged.
enum class TableValueType : std::int32_t
{
    Unknown = 0,
    Bool = 1,
    Integer = 2,
    Real = 3,
    String = 4,
    List = 5,
    Color = 6,
};

} // namespace Orvo::UI::UIComponents
