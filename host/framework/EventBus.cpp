#include "EventBus.h"

#include <QThread>

namespace Orvo::Kernel::Framework {

EventBus::EventBus()
    : m_registry(std::make_shared<EventBusRegistry>())
    , m_threadContext(std::make_unique<QObject>())
{ }

EventBus::~EventBus() = default;

bool EventBus::IsBusThread() const
{
    return m_threadContext->thread() == QThread::currentThread();
}

void EventBus::PostToBusThread(std::function<void()> delivery)
{
    QMetaObject::invokeMethod(m_threadContext.get(), std::move(delivery), Qt::QueuedConnection);
}

} // namespace Orvo::Kernel::Framework
