#include "ReportViewPicture.h"

#include "graphic/Camera.h"
#include "graphic/FrameComposer.h"
#include "graphic/GraphicsService.h"
#include "graphic/InteractionStrategy.h"
#include "graphic/InteractiveViewport.h"
#include "graphic/RenderView.h"
#include "graphic/ResultsLayer.h"
#include "graphic/SoftwareRenderer.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace Graphic;

namespace {

// The isometric direction a new view starts with.
constexpr float c_isometricYaw = -45.0f;
constexpr float c_isometricPitch = 35.264f;
// Room around the model for the depth range, as the views keep it.
constexpr float c_boundsMargin = 0.2f;
constexpr float c_boundsMarginMinimum = 2.0f;

SceneBox WithMargin(SceneBox box)
{
    const QVector3D extent = box.maximum - box.minimum;
    const float margin
        = std::max(std::max({ extent.x(), extent.y(), extent.z() }) * c_boundsMargin, c_boundsMarginMinimum);
    box.Add(box.minimum - QVector3D(margin, margin, margin));
    box.Add(box.maximum + QVector3D(margin, margin, margin));
    return box;
}

} // namespace

QImage ReportViewPicture::Render(GraphicsService& graphics, const InteractiveViewport* view,
                                 const QSize& size)
{
    if (size.isEmpty())
        return {};
    SceneDocument& document = graphics.GetScene();
    // The scene follows the model from the event loop; the report must not show an older one.
    document.EnsureCurrent();
    const StructureScene& scene = document.Scene();
    if (scene.Bounds().IsEmpty())
        return {};

    const InteractionStrategy defaults;
    const InteractionStrategy& strategy = view ? view->GetInteractionStrategy() : defaults;
    Camera camera;
    camera.SetViewportSize(size);
    camera.SetSceneBounds(WithMargin(scene.Bounds()));
    DisplayOptions options;
    if (view) {
        camera.SetProjection(view->GetCamera().GetProjection());
        camera.SetOrientation(view->GetCamera().Yaw(), view->GetCamera().Pitch());
        options = view->GetDisplayOptions();
    } else {
        camera.SetOrientation(c_isometricYaw, c_isometricPitch);
    }
    camera.Fit(scene.Bounds(), float(strategy.GetZoomNearestLimit()), float(strategy.GetZoomFarthestLimit()));

    const auto results = graphics.GetResultsSource();
    const std::vector<LineVertex> resultLines = ResultsLayer::Build(scene, results.get(), options);
    FrameComposer::Input input;
    input.scene = &scene;
    input.camera = &camera;
    input.options = options;
    input.resultLines = &resultLines;

    SoftwareRenderer renderer(c_supersampling);
    RenderView target;
    target.SetSize(size);
    if (!renderer.Initialize())
        return {};
    renderer.Render(FrameComposer::Compose(input), scene, target);
    renderer.Release();
    return target.GetImage();
}

} // namespace Orvo::UI::UIComponents
