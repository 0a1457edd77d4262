#include "IdleEventSource.h"

#include "Debug.h"
#include "EventBus.h"
#include "OnIdleEvent.h"

#include <QAbstractEventDispatcher>
#include <QScopedValueRollback>

namespace Orvo::Kernel::Framework {

IdleEventSource::IdleEventSource(std::weak_ptr<EventBus> eventbus)
    : m_eventbus(std::move(eventbus))
{
    auto* dispatcher = QAbstractEventDispatcher::instance();
    if (!dispatcher) {
        DebugOutput("No event loop on this thread: OnIdleEvent will not be posted.");
        return;
    }
    m_connection = QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, dispatcher,
                                    [this]() { PostIdle(); });
}

IdleEventSource::~IdleEventSource()
{
    QObject::disconnect(m_connection);
}

bool IdleEventSource::IsAttached() const
{
    return static_cast<bool>(m_connection);
}

void IdleEventSource::PostIdle()
{
    // A handler that runs a nested event loop (a modal dialog) makes that loop go idle inside
    // our delivery; those turns belong to the outer idle event and are not reported again.
    if (m_posting)
        return;
    auto eventbus = m_eventbus.lock();
    if (!eventbus)
        return;
    const QScopedValueRollback<bool> posting(m_posting, true);
    eventbus->Post(OnIdleEvent {});
}

} // namespace Orvo::Kernel::Framework
