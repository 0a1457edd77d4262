#pragma once

#include "HostKitExport.h"

#include <cstdint>
#include <memory>

namespace Orvo::Kernel::Framework {

class EventBusRegistry;

// Owns one subscription on an event bus: the handler stays subscribed exactly as long as
// this object (or the one it was moved into) lives. Outliving the bus is harmless.
class HOSTKIT_EXPORT EventConnection
{
public:
    EventConnection() = default;
    EventConnection(std::weak_ptr<EventBusRegistry> registry, std::uint64_t subscriptionId);
    EventConnection(EventConnection&& other) noexcept;
    EventConnection& operator=(EventConnection&& other) noexcept;
    EventConnection(const EventConnection&) = delete;
    EventConnection& operator=(const EventConnection&) = delete;
    ~EventConnection();

    void Disconnect();
    bool IsConnected() const;

private:
    std::weak_ptr<EventBusRegistry> m_registry;
    std::uint64_t m_subscriptionId = 0;
};

} // namespace Orvo::Kernel::Framework
