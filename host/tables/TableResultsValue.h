#pragma once

#include <string>

namespace Orvo::Kernel::Tables {

// One value of a results table as the host's result services produce it: the formatted text of a
// computed quantity, in bold when the host marks it (a governing or exceeded value).
struct TableResultsValue
{
    std::wstring text;
    bool bold = false;
};

} // namespace Orvo::Kernel::Tables
