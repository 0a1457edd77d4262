#include "RunningCommand.h"

#include "events/RunningCommandEvents.h"
#include "framework/EventBus.h"

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
    Announce();
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
