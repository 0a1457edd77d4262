#include "FramelessWindow.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPolygon>
#include <QRegion>
#include <QSurfaceFormat>
#include <qpa/qplatformnativeinterface.h>

namespace Orvo::UI::QtExtensions {

namespace {

// Wayland, Windows and macOS always compose windows, and the offscreen platform draws into
// images; on X11 it takes a compositing manager, which the platform plugin tracks per screen.
bool WindowSystemBlendsTransparency(QScreen* screen)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return true;
    QPlatformNativeInterface* native = QGuiApplication::platformNativeInterface();
    return native && screen
        && native->nativeResourceForScreen(QByteArrayLiteral("compositingEnabled"), screen);
}

QPoint ToPoint(const QVariant& value)
{
    if (value.canConvert<QPointF>() && value.userType() != QMetaType::QVariantMap)
        return value.toPointF().toPoint();
    const QVariantMap map = value.toMap();
    return QPointF(map.value(QStringLiteral("x")).toDouble(), map.value(QStringLiteral("y")).toDouble())
        .toPoint();
}

QRegion ToRegion(const QVariantList& polygons)
{
    QRegion region;
    for (const QVariant& polygon : polygons) {
        QPolygon points;
        for (const QVariant& point : polygon.toList())
            points << ToPoint(point);
        if (points.size() >= 3)
            region += QRegion(points, Qt::WindingFill);
    }
    return region;
}

} // namespace

FramelessWindow::FramelessWindow(QWindow* parent)
    : QQuickWindow(parent)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    // Without an alpha channel the transparent parts of a popup come out black.
    QSurfaceFormat surfaceFormat = format();
    surfaceFormat.setAlphaBufferSize(8);
    setFormat(surfaceFormat);
    setColor(Qt::transparent);
    m_visibleForwarding = connect(this, &QWindow::visibleChanged, this, &FramelessWindow::visibleChanged);
}

FramelessWindow::~FramelessWindow()
{
    // QWindow's destructor hides the window, and this part of it is gone by then.
    disconnect(m_visibleForwarding);
}

void FramelessWindow::setVisible(bool visible)
{
    m_visibleRequested = visible;
    if (m_complete)
        QQuickWindow::setVisible(visible);
}

void FramelessWindow::classBegin()
{
    m_complete = false;
}

void FramelessWindow::componentComplete()
{
    m_complete = true;
    if (m_visibleRequested != isVisible())
        QQuickWindow::setVisible(m_visibleRequested);
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

void FramelessWindow::setMaskPolicy(MaskPolicy policy)
{
    if (m_maskPolicy == policy)
        return;
    m_maskPolicy = policy;
    emit maskPolicyChanged();
    UpdateMask();
}

void FramelessWindow::setMaskPolygons(const QVariantList& polygons)
{
    if (m_maskPolygons == polygons)
        return;
    m_maskPolygons = polygons;
    emit maskPolygonsChanged();
    UpdateMask();
}

bool FramelessWindow::isShownAt(const QPointF& position) const
{
    return mask().isEmpty() || mask().contains(position.toPoint());
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
    return QQuickWindow::event(event);
}

void FramelessWindow::exposeEvent(QExposeEvent* event)
{
    QQuickWindow::exposeEvent(event);
    // A grab needs a window the system shows, so it is taken once the window is exposed.
    UpdatePointerGrab();
}

void FramelessWindow::showEvent(QShowEvent* event)
{
    // A compositing manager may have come or gone since the window was last shown.
    UpdateTranslucency();
    QQuickWindow::showEvent(event);
}

void FramelessWindow::hideEvent(QHideEvent* event)
{
    setMouseGrabEnabled(false);
    QQuickWindow::hideEvent(event);
}

void FramelessWindow::UpdatePointerGrab()
{
    if (isExposed())
        setMouseGrabEnabled(m_grabsPointer);
}

void FramelessWindow::UpdateTranslucency()
{
    const bool translucent = WindowSystemBlendsTransparency(QWindow::screen());
    if (m_translucent != translucent) {
        m_translucent = translucent;
        emit translucentChanged();
    }
    UpdateMask();
}

void FramelessWindow::UpdateMask()
{
    const bool masked = !m_maskPolygons.isEmpty()
        && (m_maskPolicy == MaskAlways || (m_maskPolicy == MaskWhenOpaque && !m_translucent));
    // Only a real change goes to the platform: some plugins (offscreen) warn at every call.
    const QRegion region = masked ? ToRegion(m_maskPolygons) : QRegion();
    if (region != mask())
        setMask(region);
    if (m_masked != masked) {
        m_masked = masked;
        emit maskedChanged();
    }
}

} // namespace Orvo::UI::QtExtensions
