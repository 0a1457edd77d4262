#pragma once

#include "EventBusRegistry.h"
#include "EventConnection.h"
#include "HostKitExport.h"

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <typeindex>

namespace Orvo::Kernel::Framework {

// Typed publish/subscribe between the host and its components. Events are plain value types;
// a handler subscribes to one type and receives every event of exactly that type.
//
// Posting on the bus's thread delivers at once, before Post returns. Posting from another
// thread queues the event to the bus's thread, since components only expect host events
// on the GUI thread.
class HOSTKIT_EXPORT EventBus
{
public:
    EventBus();
    ~EventBus();
    EventBus(const EventBus&) = delete;
    EventBus& operator=(const EventBus&) = delete;

    template<class Event> [[nodiscard]] EventConnection Subscribe(std::function<void(const Event&)> handler)
    {
        auto id = m_registry->Add(typeid(Event), [handler = std::move(handler)](const void* event) {
            handler(*static_cast<const Event*>(event));
        });
        return EventConnection(m_registry, id);
    }

    template<class Event> void Post(Event event)
    {
        if (IsBusThread()) {
            m_registry->Dispatch(typeid(Event), &event);
            return;
        }
        std::weak_ptr<EventBusRegistry> registry = m_registry;
        PostToBusThread([registry, event = std::move(event)]() {
            if (auto alive = registry.lock())
                alive->Dispatch(typeid(Event), &event);
        });
    }

    template<class Event> std::size_t SubscriberCount() const { return m_registry->CountFor(typeid(Event)); }

private:
    bool IsBusThread() const;
    void PostToBusThread(std::function<void()> delivery);

    std::shared_ptr<EventBusRegistry> m_registry;
    std::unique_ptr<QObject> m_threadContext;
};

} // namespace Orvo::Kernel::Framework
