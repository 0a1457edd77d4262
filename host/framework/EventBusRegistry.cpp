#include "EventBusRegistry.h"

#include <algorithm>
#include <utility>

namespace Orvo::Kernel::Framework {

std::uint64_t EventBusRegistry::Add(std::type_index eventType, ErasedHandler handler)
{
    const auto id = m_nextId++;
    m_subscriptions.push_back({ id, eventType, std::move(handler) });
    return id;
}

void EventBusRegistry::Remove(std::uint64_t subscriptionId)
{
    auto it = std::find_if(m_subscriptions.begin(), m_subscriptions.end(),
                           [subscriptionId](const Subscription& s) { return s.id == subscriptionId; });
    if (it != m_subscriptions.end())
        m_subscriptions.erase(it);
}

bool EventBusRegistry::Contains(std::uint64_t subscriptionId) const
{
    return Find(subscriptionId) != nullptr;
}

std::size_t EventBusRegistry::CountFor(std::type_index eventType) const
{
    return static_cast<std::size_t>(
        std::count_if(m_subscriptions.begin(), m_subscriptions.end(),
                      [&](const Subscription& s) { return s.eventType == eventType; }));
}

const EventBusRegistry::Subscription* EventBusRegistry::Find(std::uint64_t subscriptionId) const
{
    auto it = std::find_if(m_subscriptions.begin(), m_subscriptions.end(),
                           [subscriptionId](const Subscription& s) { return s.id == subscriptionId; });
    return it == m_subscriptions.end() ? nullptr : &*it;
}

void EventBusRegistry::Dispatch(std::type_index eventType, const void* event)
{
    // Handlers may subscribe or unsubscribe while we dispatch, which reallocates the vector:
    // work from a snapshot of ids and look each one up again right before calling it.
    std::vector<std::uint64_t> ids;
    for (const auto& subscription : m_subscriptions) {
        if (subscription.eventType == eventType)
            ids.push_back(subscription.id);
    }
    for (auto id : ids) {
        const Subscription* subscription = Find(id);
        if (!subscription)
            continue;
        auto handler = subscription->handler; // the handler may unsubscribe itself while running
        handler(event);
    }
}

} // namespace Orvo::Kernel::Framework
