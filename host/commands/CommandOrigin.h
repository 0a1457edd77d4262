#pragma once

#include "HostKitExport.h"

#include <string>

namespace Orvo::Kernel::Framework {

// Components name themselves to the command processor by a tracking identifier ("MarkingMenu",
// "HotkeyHandler"), which is for usage statistics, not for people.
class HOSTKIT_EXPORT CommandOrigin
{
public:
    // The origin as a user reads it ("Marking menu"), from the components' string table; an
    // origin the host does not know as it is.
    static std::wstring DisplayName(const std::wstring& origin);
};

} // namespace Orvo::Kernel::Framework
