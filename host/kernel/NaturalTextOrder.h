#pragma once

#include "HostKitExport.h"

#include <string_view>

namespace Orvo::Kernel {

// The order in which texts compare for people (table filters, sorted table columns): runs of
// decimal digits compare by their numeric value ("item2" before "item10", "007" equal to "7"),
// everything else case-insensitively by the default locale's collation (character values in the
// classic locale).
class HOSTKIT_EXPORT NaturalTextOrder
{
public:
    // True when a sorts strictly before b.
    static bool Before(std::wstring_view a, std::wstring_view b);
};

} // namespace Orvo::Kernel
