#include "FramelessWindow.h"

#include <QMouseEvent>
#include <QSurfaceFormat>

namespace Orvo::UI::QtExtensions {

FramelessWindow::FramelessWindow(QWindow* parent)
    : QQuickWindowQmlImpl(parent)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    // Without an alpha channel the transparent parts of a popup come out black.
    QSurfaceFormat surfaceFormat = format();
    surfaceFormat.setAlphaBufferSize(8);
    setFormat(surfaceFormat);
    setColor(Qt::transparent);
}

bool FramelessWindow::grabsPointer() const
{
    return m_grabsPointer;
}

void FramelessWindow::setGrabsPointer(bool grabsPointer)
{
    if (m_grabsPointer == grabsPointer)
        return;
    m_grabsPointer = grabsPointer;
    UpdatePointerGrab();
    emit grabsPointerChanged();
}

bool FramelessWindow::event(QEvent* event)
{
    // Reported before the items see the event, so a handler sees the state the event left.
    if (event->type() == QEvent::MouseMove) {
        emit pointerMoved(static_cast<QMouseEvent*>(event)->position());
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouseEvent = static_cast<QMouseEvent*>(event);
        emit pointerReleased(mouseEvent->position(), static_cast<int>(mouseEvent->button()));
    }
    return QQuickWindowQmlImpl::event(event);
}

void FramelessWindow::exposeEvent(QExposeEvent* event)
{
    QQuickWindowQmlImpl::exposeEvent(event);
    // A grab needs a window the system shows, so it is taken once the window is exposed.
    UpdatePointerGrab();
}

void FramelessWindow::hideEvent(QHideEvent* event)
{
    setMouseGrabEnabled(false);
    QQuickWindowQmlImpl::hideEvent(event);
}

void FramelessWindow::UpdatePointerGrab()
{
    if (isExposed())
        setMouseGrabEnabled(m_grabsPointer);
}

} // namespace Orvo::UI::QtExtensions
