#pragma once

#include <string>
#include <utility>

namespace Orvo::UI::Events {

// The UI command processor ran a command: the application's command handlers act on it.
// origin names the component that asked (its tracking identifier), for usage statistics.
class CommandExecuted
{
public:
    CommandExecuted(std::wstring commandUuid, std::wstring parameterString, std::wstring origin)
        : m_commandUuid(std::move(commandUuid))
        , m_parameterString(std::move(parameterString))
        , m_origin(std::move(origin))
    { }

    const std::wstring& GetCommandUuid() const { return m_commandUuid; }
    const std::wstring& GetParameterString() const { return m_parameterString; }
    const std::wstring& GetOrigin() const { return m_origin; }

private:
    std::wstring m_commandUuid;
    std::wstring m_parameterString;
    std::wstring m_origin;
};

} // namespace Orvo::UI::Events
