#pragma once

#include "Jobs.h"

#include <QQuickWindow>

class QQuickItem;

namespace Orvo::UI::UIComponents {

// Runs its batches in the render loop of item's window: at the start of the next frame's
// synchronisation, or, once released, as soon as the render thread is free.
class RenderingJobs : public Jobs
{
public:
    explicit RenderingJobs(QQuickItem* item);

    void SetReleased(bool released);
    QQuickWindow::RenderStage CurrentStage() const;

protected:
    void RequestPerform() override;

private:
    QQuickItem* m_item;
    bool m_released = false;
};

} // namespace Orvo::UI::UIComponents
