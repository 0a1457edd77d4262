#pragma once

#include <string>

namespace Orvo::Kernel::Framework {

// Runs commands on the user's behalf.
class IUICommandProcessor
{
public:
    virtual ~IUICommandProcessor() = default;

    // Runs the command with the given parameters; origin names the component that asked.
    // Returns false when the command is unknown or disabled.
    virtual bool ExecuteCommand(const std::wstring& uuid, const std::wstring& parameterString,
                                const std::wstring& origin)
        = 0;
};

} // namespace Orvo::Kernel::Framework
