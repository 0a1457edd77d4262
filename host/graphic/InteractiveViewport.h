#pragma once

#include "Camera.h"
#include "DisplayOptions.h"
#include "GraphicTypes.h"
#include "HostKitExport.h"
#include "RenderView.h"
#include "RenderingFlowListener.h"
#include "StructureScene.h"

#include <QSize>
#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace Orvo::Graphic {

class GraphicsService;
class InteractionStrategy;
class RenderTarget;
class SceneRenderer;
class ViewNavigation;

enum class ViewPreset
{
    Isometric,
    Top,
    Bottom,
    Front,
    Back,
    Left,
    Right,
};

// One interactive view of the structural model: a camera the user moves with the pointer,
// picking and rectangle selection into the model's selection, and frames drawn by the renderer
// the render system chose.
//
// Threads: Initialize, Draw, Invalidate and the release job run where the frames are rendered
// (a Qt Quick window's render thread, while the GUI thread waits); input, Resize and the view
// operations run on the GUI thread. A window derives from it and implements the first three
// operations of RenderingFlowListener.
class HOSTKIT_EXPORT InteractiveViewport : public RenderingFlowListener
{
public:
    // How long after the last step of a camera move the complete frame follows.
    static constexpr int c_completeFrameDelayMs = 150;

    explicit InteractiveViewport(std::shared_ptr<GraphicsService> service);
    ~InteractiveViewport() override;
    InteractiveViewport(const InteractiveViewport&) = delete;
    InteractiveViewport& operator=(const InteractiveViewport&) = delete;

    // Creates the render target and the renderer for the window with that native handle. An
    // OpenGL renderer shares the OpenGL context current on the calling thread when
    // shareCurrentContext is set, and cannot work without one.
    bool Initialize(quintptr windowHandle, bool shareCurrentContext);
    // Gives back the renderer's graphics resources and the render target; Initialize may follow.
    void Invalidate();
    // For a window that goes away before it can invalidate: takes the renderer and the render
    // target out of the view, into a job that releases them where they were created. Running
    // the job is the caller's business; dropping it unrun leaks graphics resources, safely.
    std::function<void()> TakeResources();
    bool IsInitialized() const;

    void Resize(const QSize& size);
    // Renders a frame into the render view and presents it; nothing without a render target or
    // with an empty size.
    void Draw();

    // Pointer input, in view pixels. Press, move and release return whether the engine used
    // the event; a press it does not use (the secondary button) belongs to someone else.
    bool MousePress(const MouseEvent& event);
    bool MouseMove(const MouseEvent& event);
    bool MouseRelease(const MouseEvent& event);
    bool MouseDoubleClick(const MouseEvent& event);
    bool MouseWheel(const MouseEvent& event);
    bool IsSelectingByRect() const;
    // The rubber band: the corner where the drag began (left, top), then the pointer's corner.
    std::array<double, 4> GetSelectingRect() const;

    // The view takes ownership.
    void SetInteractionStrategy(std::unique_ptr<InteractionStrategy> strategy);
    const InteractionStrategy& GetInteractionStrategy() const { return *m_strategy; }

    // Null while not initialised.
    RenderTarget* GetRenderTarget() const { return m_renderTarget.get(); }
    RenderView& GetRenderView() { return m_view; }
    const RenderView& GetRenderView() const { return m_view; }
    // The renderer chosen at initialisation (RendererType); -1 before.
    int GetRendererType() const { return m_rendererType; }

    // The view's operations for bars and panels (GUI thread).
    const Camera& GetCamera() const { return m_camera; }
    Camera& GetCamera() { return m_camera; }
    void SetViewPreset(ViewPreset preset);
    void SetProjection(Camera::Projection projection);
    // Frames the whole model, or the selection when there is one and selectionOnly is set.
    void FitAll(bool selectionOnly = false);
    void SetDisplayOptions(const DisplayOptions& options);
    const DisplayOptions& GetDisplayOptions() const { return m_options; }
    // The model point under the pointer, while the pointer is over the model.
    std::optional<Geometry::Point3D> GetPointerPosition() const;
    // Model metres one pixel covers at the camera's target.
    double GetViewScale() const;
    // The object under the pointer; 0 for none.
    Kernel::Model::ObjectId GetHoveredObject() const;
    // The engine's centre of rotation: the middle of the selection, else the camera's target.
    Geometry::Point3D DefaultCenterPoint() const;
    bool IsTransforming() const { return m_transforming; }
    // Whether the last frame drawn had every detail.
    bool WasLastFrameComplete() const { return m_lastFrameComplete; }

    GraphicsService* Service() const { return m_service.get(); }
    const StructureScene& Scene() const;
    // The results changed: rebuild what the view shows of them.
    void OnResultsChanged();
    // Asks for a frame when initialised.
    void RequestFrame();
    // Announces the pointer's model position and the view's scale on the event bus.
    void AnnouncePointer() const;
    void AnnounceScale() const;

    void OnDrawRequest() override;
    void TransformingChanged() override;
    void OnStartTransforming() override;
    void OnStepTransforming() override;
    void OnEndTransforming() override;

private:
    std::unique_ptr<SceneRenderer> CreateRenderer(int type, bool shareCurrentContext) const;
    void OnSceneChanged(int change);
    void RebuildResultLines();
    void ApplySceneBounds();

    std::shared_ptr<GraphicsService> m_service;
    std::unique_ptr<InteractionStrategy> m_strategy;
    std::unique_ptr<ViewNavigation> m_navigation;
    std::unique_ptr<RenderTarget> m_renderTarget;
    std::unique_ptr<SceneRenderer> m_renderer;
    RenderView m_view;
    Camera m_camera;
    DisplayOptions m_options;
    std::vector<LineVertex> m_resultLines;
    quintptr m_windowHandle = 0;
    int m_rendererType = -1;
    int m_sceneListener = 0;
    bool m_framePending = true; // frame the model at the next draw
    bool m_transforming = false;
    bool m_stepsSinceCompleteFrame = false;
    bool m_lastFrameComplete = false;
};

} // namespace Orvo::Graphic
