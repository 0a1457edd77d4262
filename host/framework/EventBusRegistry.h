#pragma once

#include "HostKitExport.h"

#include <cstdint>
#include <functional>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace Orvo::Kernel::Framework {

// The subscriber table behind an EventBus. Handlers are type-erased to take the event by
// const void*; EventBus guarantees that the pointer refers to an event of the subscribed type.
class HOSTKIT_EXPORT EventBusRegistry
{
public:
    using ErasedHandler = std::function<void(const void*)>;

    std::uint64_t Add(std::type_index eventType, ErasedHandler handler);
    void Remove(std::uint64_t subscriptionId);
    bool Contains(std::uint64_t subscriptionId) const;
    std::size_t CountFor(std::type_index eventType) const;

    // Calls every handler subscribed to eventType when the dispatch starts. A handler removed
    // by an earlier handler of the same dispatch is not called; one added during it is not either.
    void Dispatch(std::type_index eventType, const void* event);

private:
    struct Subscription
    {
        std::uint64_t id;
        std::type_index eventType;
        ErasedHandler handler;
    };

    const Subscription* Find(std::uint64_t subscriptionId) const;

    std::vector<Subscription> m_subscriptions;
    std::uint64_t m_nextId = 1;
};

} // namespace Orvo::Kernel::Framework
