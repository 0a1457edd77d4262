#include "InteractiveViewport.h"

#include "FrameComposer.h"
#include "GraphicLogging.h"
#include "GraphicsService.h"
#include "InteractionStrategy.h"
#include "OpenGLRenderer.h"
#include "RenderSystem.h"
#include "RenderTarget.h"
#include "ResultsLayer.h"
#include "SoftwareRenderer.h"
#include "ViewNavigation.h"
#include "ViewportEvents.h"
#include "framework/EventBus.h"

#include <atomic>

namespace Orvo::Graphic {

namespace {

// Supersampling of the smooth software renderer and samples of the multisampled OpenGL one.
constexpr int c_smoothSupersampling = 2;
constexpr int c_multisamples = 4;
// The camera's depth range reaches past the model by this part of its size, and at least
// these metres, so that the grid and results drawn around it are not clipped.
constexpr float c_boundsMargin = 0.2f;
constexpr float c_boundsMarginMinimum = 2.0f;
// A selection framed alone is shown at least this large, in metres (a single node).
constexpr float c_smallestFramedSize = 2.0f;

// The isometric view: from the front right, the eye as high above the ground as it is far
// along each horizontal axis.
constexpr float c_isometricYaw = -45.0f;
constexpr float c_isometricPitch = 35.264f;

// Ids of views without a graphics service (a bare engine in a test or benchmark).
std::atomic<int> s_standaloneIds { -1000 };

const StructureScene& EmptyScene()
{
    static const StructureScene scene;
    return scene;
}

} // namespace

InteractiveViewport::InteractiveViewport(std::shared_ptr<GraphicsService> service)
    : m_service(std::move(service))
    , m_navigation(std::make_unique<ViewNavigation>(*this))
{
    SetInteractionStrategy(std::make_unique<InteractionStrategy>());
    // Not through SetViewPreset: asking the window for a frame is not possible before it exists.
    m_camera.SetOrientation(c_isometricYaw, c_isometricPitch);
    if (m_service) {
        m_sceneListener = m_service->GetScene().AddListener(
            [this](SceneDocument::Change change) { OnSceneChanged(int(change)); });
    }
}

InteractiveViewport::~InteractiveViewport()
{
    if (m_service)
        m_service->GetScene().RemoveListener(m_sceneListener);
    if (m_renderTarget) {
        qCWarning(GraphicLogging()) << "View" << m_renderTarget->GetId()
                                    << "destroyed while initialised: its graphics resources are left behind";
        if (m_service)
            m_service->Unregister(m_renderTarget->GetId());
    }
}

bool InteractiveViewport::Initialize(quintptr windowHandle, bool shareCurrentContext)
{
    if (IsInitialized())
        Invalidate();
    m_windowHandle = windowHandle;
    m_rendererType = m_service ? m_service->GetRenderSystem().GetRendererType()
                               : RenderSystem(nullptr).GetRendererType();
    m_renderer = CreateRenderer(m_rendererType, shareCurrentContext);
    bool ready = m_renderer || m_rendererType == int(RendererType::Headless);
    if (m_renderer && !m_renderer->Initialize()) {
        qCWarning(GraphicLogging()) << "Renderer type" << m_rendererType
                                    << "cannot work in this window; the view stays empty";
        m_renderer.reset();
        ready = false;
    }
    const int id = m_service ? m_service->Register(this) : s_standaloneIds--;
    m_renderTarget = std::make_unique<RenderTarget>(id, *this);
    return ready;
}

void InteractiveViewport::Invalidate()
{
    if (m_renderer) {
        m_renderer->Release();
        m_renderer.reset();
    }
    if (m_renderTarget) {
        if (m_service)
            m_service->Unregister(m_renderTarget->GetId());
        m_renderTarget.reset();
    }
    m_view.SetImage(QImage());
    m_view.SetNativeTexture(0);
}

std::function<void()> InteractiveViewport::TakeResources()
{
    std::shared_ptr<SceneRenderer> renderer(std::move(m_renderer));
    if (m_renderTarget) {
        if (m_service)
            m_service->Unregister(m_renderTarget->GetId());
        m_renderTarget.reset();
    }
    m_view.SetImage(QImage());
    m_view.SetNativeTexture(0);
    return [renderer]() {
        if (renderer)
            renderer->Release();
    };
}

bool InteractiveViewport::IsInitialized() const
{
    return m_renderTarget != nullptr;
}

void InteractiveViewport::Resize(const QSize& size)
{
    m_view.SetSize(size.expandedTo(QSize(0, 0)));
    // The window repaints a resized view on its own.
    m_camera.SetViewportSize(size);
    AnnounceScale();
}

void InteractiveViewport::Draw()
{
    const QSize size = m_view.GetSize();
    if (!m_renderTarget || size.width() <= 0 || size.height() <= 0)
        return;
    const StructureScene& scene = Scene();
    m_camera.SetViewportSize(size);
    ApplySceneBounds();
    if (m_framePending && !scene.Bounds().IsEmpty()) {
        m_camera.Fit(scene.Bounds(), float(m_strategy->GetZoomNearestLimit()),
                     float(m_strategy->GetZoomFarthestLimit()));
        m_framePending = false;
    }
    const bool complete
        = m_renderTarget->IsForceSingleCompleteFrame() || !(m_transforming || m_stepsSinceCompleteFrame);
    FrameComposer::Input input;
    input.scene = &scene;
    input.camera = &m_camera;
    input.options = m_options;
    input.complete = complete;
    input.hovered = m_navigation->Hovered();
    input.resultLines = &m_resultLines;
    if (m_renderer)
        m_renderer->Render(FrameComposer::Compose(input), scene, m_view);
    m_lastFrameComplete = complete;
    if (complete)
        m_stepsSinceCompleteFrame = false;
    m_renderTarget->SetForceSingleCompleteFrame(false);
    PresentFrame();
}

bool InteractiveViewport::MousePress(const MouseEvent& event)
{
    return m_navigation->Press(event);
}

bool InteractiveViewport::MouseMove(const MouseEvent& event)
{
    return m_navigation->Move(event);
}

bool InteractiveViewport::MouseRelease(const MouseEvent& event)
{
    return m_navigation->Release(event);
}

bool InteractiveViewport::MouseDoubleClick(const MouseEvent& event)
{
    return m_navigation->DoubleClick(event);
}

bool InteractiveViewport::MouseWheel(const MouseEvent& event)
{
    return m_navigation->Wheel(event);
}

bool InteractiveViewport::IsSelectingByRect() const
{
    return m_navigation->IsSelectingByRect();
}

std::array<double, 4> InteractiveViewport::GetSelectingRect() const
{
    return m_navigation->SelectingRect();
}

void InteractiveViewport::SetInteractionStrategy(std::unique_ptr<InteractionStrategy> strategy)
{
    m_strategy = strategy ? std::move(strategy) : std::make_unique<InteractionStrategy>();
    m_strategy->Attach(this);
}

void InteractiveViewport::SetViewPreset(ViewPreset preset)
{
    struct Orientation
    {
        float yaw;
        float pitch;
    };
    // The eye's direction from the target: yaw from the x axis towards y, pitch above the ground.
    const Orientation orientation = [preset]() -> Orientation {
        switch (preset) {
        case ViewPreset::Top:
            return { -90.0f, 90.0f };
        case ViewPreset::Bottom:
            return { -90.0f, -90.0f };
        case ViewPreset::Front:
            return { -90.0f, 0.0f };
        case ViewPreset::Back:
            return { 90.0f, 0.0f };
        case ViewPreset::Left:
            return { 180.0f, 0.0f };
        case ViewPreset::Right:
            return { 0.0f, 0.0f };
        case ViewPreset::Isometric:
            break;
        }
        return { c_isometricYaw, c_isometricPitch };
    }();
    m_camera.SetOrientation(orientation.yaw, orientation.pitch);
    RequestFrame();
}

void InteractiveViewport::SetProjection(Camera::Projection projection)
{
    m_camera.SetProjection(projection);
    RequestFrame();
}

void InteractiveViewport::FitAll(bool selectionOnly)
{
    const StructureScene& scene = Scene();
    SceneBox box = selectionOnly ? scene.SelectionBounds() : SceneBox();
    if (box.IsEmpty()) {
        box = scene.Bounds();
    } else {
        const QVector3D half(c_smallestFramedSize / 2, c_smallestFramedSize / 2, c_smallestFramedSize / 2);
        box.Add(box.Center() - half);
        box.Add(box.Center() + half);
    }
    if (box.IsEmpty())
        return;
    m_camera.Fit(box, float(m_strategy->GetZoomNearestLimit()), float(m_strategy->GetZoomFarthestLimit()));
    m_framePending = false;
    AnnounceScale();
    RequestFrame();
}

void InteractiveViewport::SetDisplayOptions(const DisplayOptions& options)
{
    if (options == m_options)
        return;
    m_options = options;
    RebuildResultLines();
    RequestFrame();
}

std::optional<Geometry::Point3D> InteractiveViewport::GetPointerPosition() const
{
    const auto pointer = m_navigation->PointerPosition();
    if (!pointer)
        return std::nullopt;
    return Scene().ToModel(*pointer);
}

double InteractiveViewport::GetViewScale() const
{
    return double(m_camera.UnitsPerPixel());
}

Kernel::Model::ObjectId InteractiveViewport::GetHoveredObject() const
{
    return m_navigation->Hovered();
}

Geometry::Point3D InteractiveViewport::DefaultCenterPoint() const
{
    const SceneBox selection = Scene().SelectionBounds();
    return Scene().ToModel(selection.IsEmpty() ? m_camera.Target() : selection.Center());
}

const StructureScene& InteractiveViewport::Scene() const
{
    return m_service ? m_service->GetScene().Scene() : EmptyScene();
}

void InteractiveViewport::OnResultsChanged()
{
    RebuildResultLines();
    RequestFrame();
}

void InteractiveViewport::RequestFrame()
{
    if (m_renderTarget)
        m_renderTarget->DrawRequest();
    else
        RedrawWindowRequest();
}

void InteractiveViewport::AnnouncePointer() const
{
    if (!m_service || !m_service->GetEventBus())
        return;
    PointerPositionChangedEvent event;
    event.viewportId = m_renderTarget ? m_renderTarget->GetId() : -1;
    if (const auto position = GetPointerPosition()) {
        event.valid = true;
        event.position = *position;
    }
    m_service->GetEventBus()->Post(event);
}

void InteractiveViewport::AnnounceScale() const
{
    if (m_service && m_service->GetEventBus())
        m_service->GetEventBus()->Post(
            ViewScaleChangedEvent { m_renderTarget ? m_renderTarget->GetId() : -1, GetViewScale() });
}

void InteractiveViewport::OnDrawRequest()
{
    RedrawWindowRequest();
}

void InteractiveViewport::TransformingChanged()
{
    if (!m_transforming)
        AnnounceScale();
}

void InteractiveViewport::OnStartTransforming()
{
    m_transforming = true;
    // A complete frame still due from an earlier move would only interrupt this one.
    ScheduleRedraw(-1);
    TransformingChanged();
}

void InteractiveViewport::OnStepTransforming()
{
    m_stepsSinceCompleteFrame = true;
    RequestFrame();
}

void InteractiveViewport::OnEndTransforming()
{
    m_transforming = false;
    TransformingChanged();
    ScheduleRedraw(c_completeFrameDelayMs);
}

std::unique_ptr<SceneRenderer> InteractiveViewport::CreateRenderer(int type, bool shareCurrentContext) const
{
    switch (RendererType(type)) {
    case RendererType::Software:
        return std::make_unique<SoftwareRenderer>();
    case RendererType::SoftwareSmooth:
        return std::make_unique<SoftwareRenderer>(c_smoothSupersampling);
    case RendererType::OpenGL:
        return std::make_unique<OpenGLRenderer>(shareCurrentContext, 0);
    case RendererType::OpenGLMultisample:
        return std::make_unique<OpenGLRenderer>(shareCurrentContext, c_multisamples);
    case RendererType::Headless:
        break;
    }
    return nullptr;
}

void InteractiveViewport::OnSceneChanged(int change)
{
    if (SceneDocument::Change(change) == SceneDocument::Change::Replaced)
        m_framePending = true;
    if (SceneDocument::Change(change) != SceneDocument::Change::Selection)
        RebuildResultLines();
    RequestFrame();
}

void InteractiveViewport::RebuildResultLines()
{
    const auto source = m_service ? m_service->GetResultsSource() : nullptr;
    m_resultLines = ResultsLayer::Build(Scene(), source.get(), m_options);
}

void InteractiveViewport::ApplySceneBounds()
{
    SceneBox box = Scene().Bounds();
    if (box.IsEmpty()) {
        m_camera.SetSceneBounds(box);
        return;
    }
    const QVector3D extent = box.maximum - box.minimum;
    const float margin
        = std::max(std::max({ extent.x(), extent.y(), extent.z() }) * c_boundsMargin, c_boundsMarginMinimum);
    box.Add(box.minimum - QVector3D(margin, margin, margin));
    box.Add(box.maximum + QVector3D(margin, margin, margin));
    m_camera.SetSceneBounds(box);
}

} // namespace Orvo::Graphic
