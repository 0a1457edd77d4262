#pragma once

#include <string_view>

namespace Orvo::UI::UIComponents {

// The order in which filter texts and cell texts compare when they are not both numbers:
// runs of decimal digits compare by their numeric value ("item2" before "item10", "007" equal to
// "7"), everything else case-insensitively by the default locale's collation (character values in
// the classic locale).
class NaturalTextOrder
{
public:
    // True when a sorts strictly before b.
    static bool Before(std::wstring_view a, std::wstring_view b);
};

} // namespace Orvo::UI::UIComponents
