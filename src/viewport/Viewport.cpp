#include "Viewport.h"

#include "Convert.h"
#include "OrvoInteractionStrategy.h"
#include "ViewportLogging.h"
#include "common/ThreadHandOver.h"
#include "framework/ServiceCatalog.h"
#include "graphic/GraphicTypes.h"
#include "graphic/GraphicsService.h"
#include "graphic/RenderSystem.h"
#include "graphic/RenderTarget.h"

#include <QGuiApplication>
#include <QImage>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QRunnable>
#include <QSGImageNode>
#include <QSGTexture>
#include <QThread>
// QQuickWindow::closing carries a QQuickCloseEvent, which only Qt's private header defines: a
// connection to the signal needs the complete type.
#include <QtQuick/private/qquickevents_p_p.h>
#include <algorithm>
#include <chrono>
#include <optional>

namespace Orvo::UI::UIComponents {

namespace {

using Clock = std::chrono::steady_clock;

std::uint8_t HostButton(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return Graphic::MouseButton::Left;
    case Qt::RightButton:
        return Graphic::MouseButton::Right;
    case Qt::MiddleButton:
        return Graphic::MouseButton::Middle;
    default:
        return Graphic::MouseButton::None;
    }
}

std::uint8_t HostModifiers(Qt::KeyboardModifiers modifiers)
{
    std::uint8_t host = Graphic::KeyModifier::None;
    if (modifiers & Qt::ShiftModifier)
        host |= Graphic::KeyModifier::Shift;
    if (modifiers & Qt::ControlModifier)
        host |= Graphic::KeyModifier::Control;
    if (modifiers & Qt::AltModifier)
        host |= Graphic::KeyModifier::Alt;
    return host;
}

Graphic::MouseEvent HostEvent(const QSinglePointEvent& event)
{
    Graphic::MouseEvent host;
    host.position = Convert::CreatePoint(event.position());
    host.button = HostButton(event.button());
    host.modifiers = HostModifiers(event.modifiers());
    return host;
}

std::shared_ptr<Graphic::GraphicsService> GraphicsService()
{
    return Kernel::Framework::ServiceCatalog::Global()->Get<Graphic::GraphicsService>();
}

} // namespace

Viewport::Viewport(QQuickItem* parent)
    : QQuickItem(parent)
    , InteractiveViewport(GraphicsService())
    , m_uiJobs(std::make_unique<UiJobs>(this))
{
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    setFlag(ItemAcceptsInputMethod);
    setFlag(ItemHasContents);
    SetInteractionStrategy(std::make_unique<OrvoInteractionStrategy>());
    m_redrawTimer.setSingleShot(true);
    connect(this, &QQuickItem::windowChanged, this, &Viewport::OnWindowChanged);
    connect(&m_redrawTimer, &QTimer::timeout, this, &Viewport::OnTimer);
    // Made with a parent already in a window, the item was in it before the connection.
    if (window())
        OnWindowChanged(window());
}

Viewport::~Viewport()
{
    if (!Initialized())
        return;
    // Too late for the release through the rendering queue, whose job would find this item
    // gone: the engine's resources leave in a job of their own.
    std::function<void()> release = TakeResources();
    m_imageNode = nullptr;
    m_viewportId = -1;
    if (m_renderingJobs && m_renderingJobs->IsThisThread())
        release();
    else if (window())
        window()->scheduleRenderJob(QRunnable::create(std::move(release)), QQuickWindow::NoStage);
}

int Viewport::viewportId() const
{
    return m_viewportId;
}

bool Viewport::displaySelectingRect() const
{
    return m_displaySelectingRect;
}

QRect Viewport::selectingRect() const
{
    const auto rect = GetSelectingRect();
    return QRect(int(rect[0]), int(rect[1]), int(rect[2]), int(rect[3]));
}

void Viewport::setDisplaySelectingRect(bool display)
{
    if (m_displaySelectingRect == display)
        return;
    m_displaySelectingRect = display;
    emit displaySelectingRectChanged();
}

void Viewport::RedrawWindowRequest()
{
    update();
}

void Viewport::PresentFrame()
{
    QSGImageNode* node = m_imageNode;
    const Graphic::RenderView& view = GetRenderView();
    const QSize size = view.GetSize();
    if (IsRendererTypeSoftware()) {
        if (!view.GetImage().isNull())
            node->setTexture(window()->createTextureFromImage(view.GetImage())); // frees the last one
    } else if (IsRendererTypeOpenGL()) {
        const std::uint32_t texture = view.GetNativeTexture();
        // A new size is a new texture of the engine; the same texture only has new content.
        if (texture && (!m_textureSized || texture != m_shownTexture)) {
            if (QSGTexture* wrapped
                = QNativeInterface::QSGOpenGLTexture::fromNative(texture, window(), size)) {
                node->setTexture(wrapped);
                m_shownTexture = texture;
            }
        }
        node->markDirty(QSGNode::DirtyMaterial);
    }
    if (!m_textureSized) {
        node->setRect(QRectF(0, 0, size.width(), size.height()));
        m_textureSized = true;
    }
}

void Viewport::ScheduleRedraw(int msec)
{
    std::optional<Clock::time_point> due;
    if (msec != -1)
        due = Clock::now() + std::chrono::milliseconds(msec);
    m_uiJobs->ScheduleOrRun([this, due]() {
        if (!due) {
            m_redrawTimer.stop();
            return;
        }
        const auto remaining = std::chrono::duration_cast<std::chrono::milliseconds>(*due - Clock::now());
        m_redrawTimer.start(int(std::max<std::chrono::milliseconds::rep>(0, remaining.count())));
    });
}

void Viewport::Initialize()
{
    m_renderingJobs = std::make_unique<RenderingJobs>(this);
    m_rendererType = Service() ? Service()->GetRenderSystem().GetRendererType()
                               : Graphic::RenderSystem(nullptr).GetRendererType();
    WId handle = window()->winId();
    if (QOpenGLContext* context = QOpenGLContext::currentContext()) {
        if (context->surface() && context->surface()->surfaceClass() == QSurface::Window)
            handle = static_cast<QWindow*>(context->surface())->winId();
    }
    QSGImageNode* node = window()->createImageNode();
    if (IsRendererTypeOpenGL())
        node->setTextureCoordinatesTransform(QSGImageNode::MirrorVertically);
    node->setOwnsTexture(true);
    // Until the first frame: one transparent pixel.
    QImage placeholder(1, 1, QImage::Format_ARGB32_Premultiplied);
    placeholder.fill(Qt::transparent);
    node->setTexture(window()->createTextureFromImage(placeholder));
    m_imageNode = node;
    m_textureSized = false;
    m_shownTexture = 0;
    InteractiveViewport::Initialize(quintptr(handle), true);
    const Graphic::RenderTarget* target = GetRenderTarget();
    m_viewportId = target ? target->GetId() : -1;
    EmitOnItemThread(&Viewport::viewportIdChanged);
    ApplySize(boundingRect());
}

void Viewport::Invalidate()
{
    InteractiveViewport::Invalidate();
    m_imageNode = nullptr;
    m_viewportId = -1;
    m_shownTexture = 0;
    EmitOnItemThread(&Viewport::viewportIdChanged);
    // A view still on screen gets its resources back with its next frame.
    QMetaObject::invokeMethod(this, &QQuickItem::update, Qt::QueuedConnection);
    // The queue is running this job: it lets go of itself safely once the batch is done.
    m_renderingJobs.reset();
}

void Viewport::OnTimer()
{
    ThreadHandOver::Take();
    if (Graphic::RenderTarget* target = GetRenderTarget()) {
        target->SetForceSingleCompleteFrame(true);
        target->DrawRequest();
    }
    ThreadHandOver::Give();
}

void Viewport::OnWindowChanged(QQuickWindow* window)
{
    disconnect(m_windowClosingConnection);
    disconnect(m_sceneGraphInvalidatedConnection);
    disconnect(m_beforeSyncConnection);
    m_windowClosingConnection = {};
    m_sceneGraphInvalidatedConnection = {};
    m_beforeSyncConnection = {};
    if (!window)
        return;
    // Emitted on the GUI thread just before it waits for the render thread to synchronise.
    m_beforeSyncConnection = connect(
        window, &QQuickWindow::afterAnimating, this, []() { ThreadHandOver::Give(); }, Qt::DirectConnection);
    m_windowClosingConnection
        = connect(window, &QQuickWindow::closing, this, &Viewport::OnParentWindowIsClosing);
    // The window's scene graph can also go without the window closing (a window grabbed before
    // it is shown renders with a scene graph of the moment): its nodes go with it, and the
    // engine's resources must follow on the render thread, where this signal comes.
    m_sceneGraphInvalidatedConnection = connect(
        window, &QQuickWindow::sceneGraphInvalidated, this,
        [this]() {
            if (Initialized())
                Invalidate();
        },
        Qt::DirectConnection);
}

void Viewport::OnParentWindowIsClosing()
{
    releaseResources();
}

bool Viewport::Initialized() const
{
    return m_imageNode != nullptr;
}

bool Viewport::IsRendererTypeOpenGL() const
{
    return Graphic::IsOpenGLRenderer(m_rendererType);
}

bool Viewport::IsRendererTypeSoftware() const
{
    return Graphic::IsSoftwareRenderer(m_rendererType);
}

void Viewport::releaseResources()
{
    if (!Initialized())
        return;
    m_renderingJobs->SetReleased(true);
    m_renderingJobs->ScheduleOrRun([this]() { Invalidate(); });
}

void Viewport::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    ThreadHandOver::Take();
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    ApplySize(newGeometry);
    ThreadHandOver::Give();
}

void Viewport::ApplySize(const QRectF& geometry)
{
    if (geometry.width() < 0 || geometry.height() < 0)
        return;
    Resize(QSize(int(geometry.width()), int(geometry.height())));
    m_textureSized = false;
}

void Viewport::hoverMoveEvent(QHoverEvent* event)
{
    QQuickItem::hoverMoveEvent(event);
    // Qt Quick also sends hover moves while a button is held (again at the last pointer position
    // after each frame): the drag's own moves carry that pointer, these would only jerk it back.
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        MouseMove(HostEvent(*event));
}

void Viewport::mouseMoveEvent(QMouseEvent* event)
{
    QQuickItem::mouseMoveEvent(event);
    if (!MouseMove(HostEvent(*event)))
        return;
    setDisplaySelectingRect(IsSelectingByRect());
    if (IsSelectingByRect())
        emit selectingRectChanged();
}

void Viewport::mousePressEvent(QMouseEvent* event)
{
    QQuickItem::mousePressEvent(event);
    if (!MousePress(HostEvent(*event)))
        return;
    setDisplaySelectingRect(IsSelectingByRect());
    emit selectingRectChanged();
    event->accept();
}

void Viewport::mouseReleaseEvent(QMouseEvent* event)
{
    QQuickItem::mouseReleaseEvent(event);
    if (!MouseRelease(HostEvent(*event)))
        return;
    setDisplaySelectingRect(false);
    emit selectingRectChanged();
}

void Viewport::mouseDoubleClickEvent(QMouseEvent* event)
{
    QQuickItem::mouseDoubleClickEvent(event);
    MouseDoubleClick(HostEvent(*event));
}

void Viewport::wheelEvent(QWheelEvent* event)
{
    QQuickItem::wheelEvent(event);
    Graphic::MouseEvent host = HostEvent(*event);
    host.delta = { 0.0, double(event->angleDelta().y()) };
    MouseWheel(host);
}

bool Viewport::event(QEvent* event)
{
    // Input reaches the engine here, between two synchronisations with the render thread; a
    // window grab synchronises without the window's afterAnimating, so the hand-over is marked
    // after each event as well.
    ThreadHandOver::Take();
    const bool handled = QQuickItem::event(event);
    ThreadHandOver::Give();
    return handled;
}

QSGNode* Viewport::updatePaintNode(QSGNode*, UpdatePaintNodeData*)
{
    ThreadHandOver::Take();
    // Runs while the GUI thread waits, which it stops doing when this returns.
    struct GiveBack
    {
        ~GiveBack() { ThreadHandOver::Give(); }
    } giveBack;
    try {
        if (!Initialized())
            Initialize();
        const QSize size = GetRenderView().GetSize();
        if (size.width() > 0 && size.height() > 0)
            Draw();
    } catch (const std::exception& error) {
        // The scene graph cannot take an exception: the view shows its last frame.
        qCWarning(lcViewport).noquote() << "A frame of the view failed:" << error.what();
    }
    return m_imageNode;
}

void Viewport::EmitOnItemThread(void (Viewport::*signal)())
{
    if (QThread::currentThread() == thread())
        (this->*signal)();
    else
        QMetaObject::invokeMethod(this, signal, Qt::QueuedConnection);
}

} // namespace Orvo::UI::UIComponents
