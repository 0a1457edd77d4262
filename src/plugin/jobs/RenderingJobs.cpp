#include "RenderingJobs.h"

#include "common/ThreadHandOver.h"

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
    QQuickWindow* window = m_item->window();
    QRunnable* runnable = QRunnable::create([this, lifetime]() {
        ThreadHandOver::Take();
        if (!lifetime.expired())
            Perform();
    });
    ThreadHandOver::Give();
    window->scheduleRenderJob(runnable, CurrentStage());
}

} // namespace Orvo::UI::UIComponents
