#include "ActiveEntities.h"

#include "framework/EventBus.h"

#include <cmath>

namespace Orvo::Kernel::Model {

ActiveEntities::ActiveEntities(std::weak_ptr<Framework::EventBus> eventbus)
    : m_eventbus(std::move(eventbus))
{ }

void ActiveEntities::SetWorkPlaneLevel(double level)
{
    if (!std::isfinite(level) || level == m_workPlaneLevel)
        return;
    m_workPlaneLevel = level;
    Announce();
}

void ActiveEntities::SetLoadCase(Number loadCase)
{
    if (loadCase == m_loadCase)
        return;
    m_loadCase = loadCase;
    Announce();
}

void ActiveEntities::Announce() const
{
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(ActiveEntitiesChangedEvent {});
}

} // namespace Orvo::Kernel::Model
