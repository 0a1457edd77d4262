#include "EventConnection.h"

#include "EventBusRegistry.h"

#include <utility>

namespace Orvo::Kernel::Framework {

EventConnection::EventConnection(std::weak_ptr<EventBusRegistry> registry, std::uint64_t subscriptionId)
    : m_registry(std::move(registry))
    , m_subscriptionId(subscriptionId)
{ }

EventConnection::EventConnection(EventConnection&& other) noexcept
    : m_registry(std::move(other.m_registry))
    , m_subscriptionId(std::exchange(other.m_subscriptionId, 0))
{ }

EventConnection& EventConnection::operator=(EventConnection&& other) noexcept
{
    if (this != &other) {
        Disconnect();
        m_registry = std::move(other.m_registry);
        m_subscriptionId = std::exchange(other.m_subscriptionId, 0);
    }
    return *this;
}

EventConnection::~EventConnection()
{
    Disconnect();
}

void EventConnection::Disconnect()
{
    if (m_subscriptionId == 0)
        return;
    if (auto registry = m_registry.lock())
        registry->Remove(m_subscriptionId);
    m_registry.reset();
    m_subscriptionId = 0;
}

bool EventConnection::IsConnected() const
{
    auto registry = m_registry.lock();
    return registry && registry->Contains(m_subscriptionId);
}

} // namespace Orvo::Kernel::Framework
