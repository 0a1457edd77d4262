#pragma once

#include <string>

namespace Orvo::Kernel::Tables {

// The host's description of a results tab: which table it shows and how the tab looks.
struct TableResultsTabInfo
{
    std::wstring id;
    std::wstring label;
    std::wstring iconName;
};

} // namespace Orvo::Kernel::Tables
