#pragma once

#include <string>
#include <utility>

namespace Orvo::UI::Events {

// A command was enabled, disabled, shown or hidden (its identifier), or the repository was
// reloaded (an empty identifier). Menus refresh what they show.
class CommandStateChange
{
public:
    explicit CommandStateChange(std::wstring commandUuid = {})
        : m_commandUuid(std::move(commandUuid))
    { }

    const std::wstring& GetCommandUuid() const { return m_commandUuid; }

private:
    std::wstring m_commandUuid;
};

} // namespace Orvo::UI::Events
