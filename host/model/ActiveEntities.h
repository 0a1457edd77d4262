#pragma once

#include "HostKitExport.h"
#include "ObjectIds.h"

#include <memory>

namespace Orvo::Kernel::Framework {
class EventBus;
}

namespace Orvo::Kernel::Model {

// What new objects attach to: the work plane (the storey level, a height in metres) new nodes
// are placed on, and the load case new loads belong to and the views show the loads of. A
// service of the catalog; a change is announced with ActiveEntitiesChangedEvent.
class HOSTKIT_EXPORT ActiveEntities
{
public:
    explicit ActiveEntities(std::weak_ptr<Framework::EventBus> eventbus = {});

    double GetWorkPlaneLevel() const { return m_workPlaneLevel; }
    void SetWorkPlaneLevel(double level);
    // 0: the model's first load case.
    Number GetLoadCase() const { return m_loadCase; }
    void SetLoadCase(Number loadCase);

private:
    void Announce() const;

    std::weak_ptr<Framework::EventBus> m_eventbus;
    double m_workPlaneLevel = 0.0;
    Number m_loadCase = 0;
};

struct ActiveEntitiesChangedEvent
{
};

} // namespace Orvo::Kernel::Model
