#pragma once

#include <string>
#include <utility>

namespace Orvo::UI::Events {

// The command repository's shortcuts changed: one command's (its identifier) or, after a
// reload, all of them (an empty identifier). Listeners re-read the whole shortcut list.
class CommandShortcutChange
{
public:
    explicit CommandShortcutChange(std::wstring commandUuid = {})
        : m_commandUuid(std::move(commandUuid))
    { }

    const std::wstring& GetCommandUuid() const { return m_commandUuid; }

private:
    std::wstring m_commandUuid;
};

} // namespace Orvo::UI::Events
