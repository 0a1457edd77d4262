#pragma once

#include <string>
#include <utility>
#include <vector>

namespace Orvo::UI::Events {

// An interactive command started or finished waiting for the user's input (an empty identifier
// when none waits any more). Input surfaces show or hide what they offer it.
class RunningCommandChanged
{
public:
    explicit RunningCommandChanged(std::wstring commandUuid = {})
        : m_commandUuid(std::move(commandUuid))
    { }

    const std::wstring& GetCommandUuid() const { return m_commandUuid; }

private:
    std::wstring m_commandUuid;
};

// Values the user typed for the running command (a point's coordinates, a distance), which the
// command's handler takes as if they had been picked in a view.
class CommandInputOffered
{
public:
    CommandInputOffered(std::wstring commandUuid, std::vector<double> values)
        : m_commandUuid(std::move(commandUuid))
        , m_values(std::move(values))
    { }

    const std::wstring& GetCommandUuid() const { return m_commandUuid; }
    const std::vector<double>& GetValues() const { return m_values; }

private:
    std::wstring m_commandUuid;
    std::vector<double> m_values;
};

// The running command's inputs changed: all of them (an empty input identifier) or one value.
class RunningCommandInputsChanged
{
public:
    RunningCommandInputsChanged(std::wstring commandUuid, std::wstring inputId)
        : m_commandUuid(std::move(commandUuid))
        , m_inputId(std::move(inputId))
    { }

    const std::wstring& GetCommandUuid() const { return m_commandUuid; }
    const std::wstring& GetInputId() const { return m_inputId; }

private:
    std::wstring m_commandUuid;
    std::wstring m_inputId;
};

// The user confirmed the running command's inputs: its handler acts on them.
class CommandInputsApplied
{
public:
    explicit CommandInputsApplied(std::wstring commandUuid)
        : m_commandUuid(std::move(commandUuid))
    { }

    const std::wstring& GetCommandUuid() const { return m_commandUuid; }

private:
    std::wstring m_commandUuid;
};

} // namespace Orvo::UI::Events
