#pragma once

#include "HostKitExport.h"

#include <QMetaObject>
#include <memory>

namespace Orvo::Kernel::Framework {

class EventBus;

// Posts OnIdleEvent on the bus each time the event loop of the thread that created the source
// has run out of work and is about to wait for more. Components use it for work that must
// wait until everything already queued has been handled (the marking menu's show delay).
class HOSTKIT_EXPORT IdleEventSource
{
public:
    // Without an event dispatcher on the calling thread (no application yet) the source stays
    // silent and says so on the debugger output.
    explicit IdleEventSource(std::weak_ptr<EventBus> eventbus);
    ~IdleEventSource();
    IdleEventSource(const IdleEventSource&) = delete;
    IdleEventSource& operator=(const IdleEventSource&) = delete;

    bool IsAttached() const;

private:
    void PostIdle();

    std::weak_ptr<EventBus> m_eventbus;
    QMetaObject::Connection m_connection;
    bool m_posting = false;
};

} // namespace Orvo::Kernel::Framework
