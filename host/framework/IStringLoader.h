#pragma once

#include "StringReference.h"

#include <string>

namespace Orvo::Kernel::Framework {

class IStringLoader
{
public:
    virtual ~IStringLoader() = default;
    // The localised text of reference; for an identifier the table does not know, the
    // identifier itself, so that a missing text is visible rather than blank.
    virtual std::wstring Load(const StringReference& reference) const = 0;
};

} // namespace Orvo::Kernel::Framework
