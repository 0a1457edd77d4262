#include "FrameComposer.h"

#include "OverlaySymbols.h"
#include "ScenePalette.h"
#include "StructureScene.h"

#include <QVector4D>
#include <QtMath>
#include <algorithm>
#include <cmath>

namespace Orvo::Graphic {

namespace Model = Kernel::Model;

namespace {

// Lines of the grid across the model's larger side, about; the step is rounded to 1, 2 or 5
// times a power of ten.
constexpr double c_gridLinesAcross = 20.0;
constexpr int c_gridMajorEvery = 5;
// The grid reaches this part of the model's size beyond it on every side.
constexpr float c_gridMargin = 0.1f;

class Frustum
{
public:
    explicit Frustum(const QMatrix4x4& viewProjection)
    {
        const QVector4D rows[4]
            = { viewProjection.row(0), viewProjection.row(1), viewProjection.row(2), viewProjection.row(3) };
        for (int axis = 0; axis < 3; ++axis) {
            m_planes[2 * axis] = rows[3] + rows[axis];
            m_planes[2 * axis + 1] = rows[3] - rows[axis];
        }
    }

    bool Intersects(const SceneBox& box) const
    {
        for (const QVector4D& plane : m_planes) {
            const QVector3D farthest(plane.x() >= 0 ? box.maximum.x() : box.minimum.x(),
                                     plane.y() >= 0 ? box.maximum.y() : box.minimum.y(),
                                     plane.z() >= 0 ? box.maximum.z() : box.minimum.z());
            if (QVector3D::dotProduct(plane.toVector3D(), farthest) + plane.w() < 0.0f)
                return false;
        }
        return true;
    }

private:
    QVector4D m_planes[6];
};

double GridStep(double extent)
{
    const double rough = std::max(extent, 1.0) / c_gridLinesAcross;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double factor : { 1.0, 2.0, 5.0 }) {
        if (factor * power >= rough)
            return factor * power;
    }
    return 10.0 * power;
}

} // namespace

FramePlan FrameComposer::Compose(const Input& input)
{
    FramePlan plan;
    const Camera& camera = *input.camera;
    plan.size = camera.ViewportSize();
    plan.viewProjection = camera.ViewProjection();
    plan.eye = camera.Eye();
    plan.forward = camera.Forward();
    plan.light = (-camera.Forward() * 0.55f + camera.Up() * 0.65f - camera.Right() * 0.45f).normalized();
    plan.perspective = camera.GetProjection() == Camera::Projection::Perspective;
    plan.complete = input.complete;
    plan.nodes = input.options.nodes;
    if (!input.scene)
        return plan;

    CullCells(input, plan);
    if (input.options.grid)
        AddGrid(*input.scene, plan);
    if (input.resultLines)
        plan.modelLines.insert(plan.modelLines.end(), input.resultLines->begin(), input.resultLines->end());
    AddEmphasis(input, plan);
    OverlaySymbols symbols(*input.scene, camera, plan);
    if (input.options.supports)
        symbols.AddSupports();
    if (input.options.loads)
        symbols.AddLoads(ShownLoadCase(*input.scene, input.options.loadCase), input.complete);
    if (input.options.axes)
        symbols.AddAxesTriad();
    return plan;
}

Model::Number FrameComposer::ShownLoadCase(const StructureScene& scene, Model::Number chosen)
{
    const auto& cases = scene.LoadCases();
    if (std::find(cases.begin(), cases.end(), chosen) != cases.end())
        return chosen;
    return cases.empty() ? 0 : cases.front();
}

void FrameComposer::CullCells(const Input& input, FramePlan& plan)
{
    const StructureScene& scene = *input.scene;
    const Camera& camera = *input.camera;
    const Frustum frustum(plan.viewProjection);
    const bool solidsWanted = input.options.extrudedSections && input.complete;
    const float halfFieldTangent = std::tan(qDegreesToRadians(Camera::c_fieldOfViewDegrees) * 0.5f);
    const float viewHeight = float(plan.size.height());
    for (std::uint32_t index = 0; index < scene.Cells().size(); ++index) {
        const auto& cell = scene.Cells()[index];
        if (!frustum.Intersects(cell.box))
            continue;
        bool solid = false;
        if (solidsWanted) {
            float largestSection = 0.0f;
            for (std::uint32_t run = cell.firstRun; run < cell.firstRun + cell.runCount; ++run)
                largestSection
                    = std::max(largestSection, float(scene.Profiles()[scene.Runs()[run].profile].Size()));
            float pixelsPerUnit = 1.0f / camera.UnitsPerPixel();
            if (plan.perspective) {
                const float depth
                    = QVector3D::dotProduct(cell.box.Center() - plan.eye, plan.forward) - cell.box.Radius();
                pixelsPerUnit = viewHeight / (2.0f * std::max(depth, camera.NearPlane()) * halfFieldTangent);
            }
            solid = largestSection * pixelsPerUnit >= c_minimumSolidPixels;
        }
        (solid ? plan.solidCells : plan.lineCells).push_back(index);
    }
}

void FrameComposer::AddGrid(const StructureScene& scene, FramePlan& plan)
{
    const SceneBox& bounds = scene.Bounds();
    if (bounds.IsEmpty())
        return;
    // Laid out in the model's own coordinates, so that grid lines fall on round numbers.
    const Geometry::Point3D low = scene.ToModel(bounds.minimum);
    const Geometry::Point3D high = scene.ToModel(bounds.maximum);
    const double extent = std::max(high.x - low.x, high.y - low.y);
    const double margin = std::max(extent * c_gridMargin, 1.0);
    const double step = GridStep(extent);
    const double firstX = std::floor((low.x - margin) / step) * step;
    const double lastX = std::ceil((high.x + margin) / step) * step;
    const double firstY = std::floor((low.y - margin) / step) * step;
    const double lastY = std::ceil((high.y + margin) / step) * step;
    const double ground = low.z;
    auto addLine = [&](const Geometry::Point3D& a, const Geometry::Point3D& b, double at) {
        const bool major = std::lround(at / step) % c_gridMajorEvery == 0;
        const std::uint32_t color = major ? Palette::c_gridMajor : Palette::c_gridMinor;
        plan.modelLines.push_back({ scene.ToScene(a), color });
        plan.modelLines.push_back({ scene.ToScene(b), color });
    };
    for (double x = firstX; x <= lastX + step * 0.5; x += step)
        addLine({ x, firstY, ground }, { x, lastY, ground }, x);
    for (double y = firstY; y <= lastY + step * 0.5; y += step)
        addLine({ firstX, y, ground }, { lastX, y, ground }, y);
}

void FrameComposer::AddEmphasis(const Input& input, FramePlan& plan)
{
    const StructureScene& scene = *input.scene;
    const auto& nodes = scene.NodePositions();
    auto addMember = [&](std::uint32_t member, std::uint32_t color) {
        const auto& item = scene.Members()[member];
        plan.emphasisLines.push_back({ nodes[item.startNode], color });
        plan.emphasisLines.push_back({ nodes[item.endNode], color });
    };
    plan.emphasisLines.reserve(scene.SelectedMembers().size() * 2 + 2);
    for (const std::uint32_t member : scene.SelectedMembers())
        addMember(member, Palette::c_selected);
    for (const std::uint32_t node : scene.SelectedNodes())
        plan.emphasisPoints.push_back({ nodes[node], Palette::c_selected });

    if (!Model::IsKnownKind(input.hovered))
        return;
    const Model::Number number = Model::NumberOf(input.hovered);
    if (Model::KindOf(input.hovered) == Model::ObjectKind::Member) {
        if (const auto member = scene.FindMember(number))
            addMember(*member, Palette::c_hovered);
    } else if (Model::KindOf(input.hovered) == Model::ObjectKind::Node) {
        if (const auto node = scene.FindNode(number))
            plan.emphasisPoints.push_back({ nodes[*node], Palette::c_hovered });
    }
}

} // namespace Orvo::Graphic
