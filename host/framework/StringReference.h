#pragma once

#include <string>

namespace Orvo::Kernel::Framework {

// Names one text: its identifier in one of the host's string tables.
struct StringReference
{
    std::wstring id;
    std::wstring table;
};

} // namespace Orvo::Kernel::Framework
