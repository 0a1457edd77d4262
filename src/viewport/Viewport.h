#pragma once

#include "graphic/InteractiveViewport.h"
#include "plugin/jobs/RenderingJobs.h"
#include "plugin/jobs/UiJobs.h"

#include <QMetaObject>
#include <QQuickItem>
#include <QRect>
#include <QTimer>
#include <QtQml/qqmlregistration.h>
#include <atomic>
#include <memory>

class QSGImageNode;

namespace Orvo::UI::UIComponents {

// The item in which the graphics engine shows the model: it gives the engine its window and
// size, shows each finished frame as the texture of one image node, forwards pointer input,
// and turns the engine's redraw wishes into updates and a timer. Redraw timing travels to the
// GUI thread through uiJobs; the release of the engine's graphics resources travels to the
// render thread through renderingJobs.
class Viewport : public QQuickItem, public Graphic::InteractiveViewport
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Viewport)
    // The engine's id for this view, -1 until the first frame: bars and panels reach the view
    // through the graphics service with it.
    Q_PROPERTY(int viewportId READ viewportId NOTIFY viewportIdChanged)
    // A rubber band is to be drawn over the view.
    Q_PROPERTY(bool displaySelectingRect READ displaySelectingRect NOTIFY displaySelectingRectChanged)
    // The rubber band: x and y are the corner where the drag began, width and height hold the
    // pointer's corner (not a size), so that a drag to the left or up is told from one to the
    // right or down.
    Q_PROPERTY(QRect selectingRect READ selectingRect NOTIFY selectingRectChanged)

public:
    explicit Viewport(QQuickItem* parent = nullptr);
    ~Viewport() override;

    int viewportId() const;
    bool displaySelectingRect() const;
    QRect selectingRect() const;
    void setDisplaySelectingRect(bool display);

    void RedrawWindowRequest() override;
    void PresentFrame() override;
    void ScheduleRedraw(int msec) override;

    // Render thread, from updatePaintNode: the rendering queue, the node, the engine.
    virtual void Initialize();
    // Render thread: the engine's resources go, and the node with them.
    void Invalidate();
    void OnTimer();
    void OnWindowChanged(QQuickWindow* window);
    void OnParentWindowIsClosing();
    bool Initialized() const;
    bool IsRendererTypeOpenGL() const;
    bool IsRendererTypeSoftware() const;

    // GUI thread: hands the release of the engine's resources to the render thread.
    void releaseResources() override;

    // For tests and the host's diagnostics.
    const QTimer& RedrawTimer() const { return m_redrawTimer; }
    int RendererType() const { return m_rendererType; }
    QSGImageNode* ImageNode() const { return m_imageNode; }
    RenderingJobs* RenderingQueue() const { return m_renderingJobs.get(); }

signals:
    void viewportIdChanged();
    void displaySelectingRectChanged();
    void selectingRectChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;
    QSGNode* updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* data) override;

private:
    void ApplySize(const QRectF& geometry);
    // Signals that QML binds to are emitted on the item's thread, whichever thread decides.
    void EmitOnItemThread(void (Viewport::*signal)());

    QMetaObject::Connection m_windowClosingConnection;
    QMetaObject::Connection m_beforeSyncConnection;
    QMetaObject::Connection m_sceneGraphInvalidatedConnection;
    int m_rendererType = 1;
    bool m_textureSized = false;
    // Set on the render thread, read on the GUI thread when the release is decided.
    std::atomic<QSGImageNode*> m_imageNode { nullptr };
    // The render target's id, set on the render thread as the target comes and goes, read on the
    // GUI thread by bindings at any time: the target itself is not the GUI thread's to look at.
    std::atomic<int> m_viewportId { -1 };
    QTimer m_redrawTimer;
    bool m_displaySelectingRect = false;
    std::unique_ptr<UiJobs> m_uiJobs;
    std::unique_ptr<RenderingJobs> m_renderingJobs;
    // The engine's texture the node shows, so that a new one is wrapped anew.
    std::uint32_t m_shownTexture = 0;
};

} // namespace Orvo::UI::UIComponents
