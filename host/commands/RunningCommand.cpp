#include "RunningCommand.h"

#include "events/RunningCommandEvents.h"
#include "framework/EventBus.h"

#include <algorithm>
#include <cmath>

namespace Orvo::Kernel::Framework {

RunningCommand::RunningCommand(std::weak_ptr<EventBus> eventbus)
    : m_eventbus(std::move(eventbus))
{ }

void RunningCommand::Start(const std::wstring& commandUuid, const std::wstring& prompt, int valueCount)
{
    if (commandUuid.empty()) {
        Finish();
        return;
    }
    if (m_commandUuid != commandUuid)
        m_inputs.clear();
    m_commandUuid = commandUuid;
    m_prompt = prompt;
    m_valueCount = std::max(valueCount, 1);
    Announce();
}

void RunningCommand::SetPrompt(const std::wstring& prompt, int valueCount)
{
    if (!IsRunning())
        return;
    m_prompt = prompt;
    m_valueCount = std::max(valueCount, 1);
    Announce();
}

void RunningCommand::Finish()
{
    if (!IsRunning())
        return;
    m_commandUuid.clear();
    m_prompt.clear();
    m_valueCount = 0;
    m_inputs.clear();
    Announce();
}

void RunningCommand::SetInputs(std::vector<CommandInput> inputs)
{
    if (!IsRunning())
        return;
    m_inputs = std::move(inputs);
    AnnounceInput({});
}

const CommandInput* RunningCommand::FindInput(const std::wstring& id) const
{
    for (const CommandInput& input : m_inputs) {
        if (input.id == id)
            return &input;
    }
    return nullptr;
}

CommandInput* RunningCommand::Find(const std::wstring& id, CommandInput::Kind kind)
{
    for (CommandInput& input : m_inputs) {
        if (input.id == id)
            return input.kind == kind ? &input : nullptr;
    }
    return nullptr;
}

bool RunningCommand::SetNumber(const std::wstring& id, double value)
{
    CommandInput* input = Find(id, CommandInput::Kind::Number);
    if (!input || !std::isfinite(value))
        return false;
    if (input->number != value) {
        input->number = value;
        AnnounceInput(id);
    }
    return true;
}

bool RunningCommand::SetChoice(const std::wstring& id, int choice)
{
    CommandInput* input = Find(id, CommandInput::Kind::Choice);
    if (!input || choice < 0 || choice >= int(input->choices.size()))
        return false;
    if (input->choice != choice) {
        input->choice = choice;
        AnnounceInput(id);
    }
    return true;
}

bool RunningCommand::RemoveObject(const std::wstring& id, int objectId)
{
    CommandInput* input = Find(id, CommandInput::Kind::Objects);
    if (!input)
        return false;
    const auto found = std::find(input->objects.begin(), input->objects.end(), objectId);
    if (found == input->objects.end())
        return false;
    input->objects.erase(found);
    AnnounceInput(id);
    return true;
}

bool RunningCommand::Apply()
{
    if (!IsRunning())
        return false;
    if (auto bus = m_eventbus.lock())
        bus->Post(UI::Events::CommandInputsApplied(m_commandUuid));
    return true;
}

void RunningCommand::AnnounceInput(const std::wstring& id) const
{
    if (auto bus = m_eventbus.lock())
        bus->Post(UI::Events::RunningCommandInputsChanged(m_commandUuid, id));
}

bool RunningCommand::Accepts(const std::vector<double>& values) const
{
    if (!IsRunning() || values.empty() || int(values.size()) > m_valueCount)
        return false;
    // A point may leave out trailing coordinates ("2 3" in a plan); other inputs need them all.
    if (int(values.size()) < m_valueCount && m_valueCount != 3)
        return false;
    for (double value : values) {
        if (!std::isfinite(value))
            return false;
    }
    return true;
}

bool RunningCommand::Offer(const std::vector<double>& values)
{
    if (!Accepts(values))
        return false;
    std::vector<double> input = values;
    input.resize(std::size_t(m_valueCount), 0.0);
    if (auto bus = m_eventbus.lock())
        bus->Post(UI::Events::CommandInputOffered(m_commandUuid, std::move(input)));
    return true;
}

void RunningCommand::Announce() const
{
    if (auto bus = m_eventbus.lock())
        bus->Post(UI::Events::RunningCommandChanged(m_commandUuid));
}

} // namespace Orvo::Kernel::Framework
