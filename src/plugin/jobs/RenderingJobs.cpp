#include "RenderingJobs.h"

#include <QQuickItem>
#include <QRunnable>

namespace Orvo::UI::UIComponents {

RenderingJobs::RenderingJobs(QQuickItem* item)
    : m_item(item)
{ }

void RenderingJobs::SetReleased(bool released)
{
    m_released = released;
}

QQuickWindow::RenderStage RenderingJobs::CurrentStage() const
{
    // After release no further frame may come, so the work must not wait for one.
    return m_released ? QQuickWindow::NoStage : QQuickWindow::BeforeSynchronizingStage;
}

void RenderingJobs::RequestPerform()
{
    std::weak_ptr<void> lifetime = LifetimeToken();
    QRunnable* runnable = QRunnable::create([this, lifetime]() {
        if (!lifetime.expired())
            Perform();
    });
    m_item->window()->scheduleRenderJob(runnable, CurrentStage());
}

} // namespace Orvo::UI::UIComponents
