#include "FramelessWindow.h"

namespace Orvo::UI::QtExtensions {

FramelessWindow::FramelessWindow(QWindow* parent)
    : QQuickWindowQmlImpl(parent)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setColor(Qt::transparent);
}

} // namespace Orvo::UI::QtExtensions
