#pragma once

#include <string>
#include <vector>

namespace Orvo::Kernel::Tables {

// Posted when what tables show changed: their rows came or went (rowsChanged), or only values.
// Table panels refill from it; it comes after the tables themselves have followed the change.
struct TableDataChangedEvent
{
    std::vector<std::wstring> tableIds;
    bool rowsChanged = false;
};

} // namespace Orvo::Kernel::Tables
