#include "ViewNavigation.h"

#include "GraphicsService.h"
#include "InteractionStrategy.h"
#include "InteractiveViewport.h"
#include "Picker.h"
#include "properties/StructuralModel.h"

#include "datamodel/Settings.h"

#include <QLineF>
#include <QRectF>
#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace Orvo::Graphic {

namespace {

constexpr double c_gridSpacing = 1.0; // m

// Which points the pointer snaps to: the user's settings, or all but the grid without them.
struct Snaps
{
    bool nodes = true;
    bool midpoints = false;
    bool members = true;
    bool grid = false;
};

Snaps ReadSnaps(const GraphicsService* service)
{
    Snaps snaps;
    const auto* settings = service ? service->GetSettings().get() : nullptr;
    if (!settings)
        return snaps;
    const auto read = [settings](const QString& key, bool fallback) {
        const QVariant value = settings->Value(key);
        return value.isValid() ? value.toBool() : fallback;
    };
    using UI::DataModel::Settings;
    snaps.nodes = read(Settings::c_snapToNodes, snaps.nodes);
    snaps.midpoints = read(Settings::c_snapToMidpoints, snaps.midpoints);
    snaps.members = read(Settings::c_snapToMembers, snaps.members);
    snaps.grid = read(Settings::c_snapToGrid, snaps.grid);
    return snaps;
}

} // namespace

namespace Model = Kernel::Model;

namespace {

// Keeps a sensitivity from the strategy within what makes the camera move at all and never
// past its target.
constexpr double c_smallestZoomSensitivity = 0.01;
constexpr double c_largestZoomSensitivity = 0.9;

} // namespace

ViewNavigation::ViewNavigation(InteractiveViewport& viewport)
    : m_viewport(viewport)
{ }

bool ViewNavigation::Press(const MouseEvent& event)
{
    const bool viewButton = event.button == MouseButton::Left || event.button == MouseButton::Middle;
    if (m_gesture != Gesture::None || !viewButton)
        return viewButton; // a second button during a gesture changes nothing, but is the view's
    m_button = event.button;
    m_pressPosition = m_lastPosition = Position(event);
    if (event.button == MouseButton::Left) {
        if (event.modifiers & KeyModifier::Alt)
            StartCameraGesture(Gesture::Orbit, event);
        else
            m_gesture = Gesture::PendingClick;
    } else if (event.modifiers & KeyModifier::Shift) {
        StartCameraGesture(Gesture::Pan, event);
    } else if (event.modifiers & KeyModifier::Control) {
        StartCameraGesture(Gesture::Zoom, event);
    } else {
        StartCameraGesture(Gesture::Orbit, event);
    }
    return true;
}

bool ViewNavigation::Move(const MouseEvent& event)
{
    const QPointF position = Position(event);
    const QPointF delta = position - m_lastPosition;
    const InteractionStrategy& strategy = m_viewport.GetInteractionStrategy();
    Camera& camera = m_viewport.GetCamera();
    switch (m_gesture) {
    case Gesture::None:
        UpdateHover(position);
        return false;
    case Gesture::PendingClick:
        if (std::hypot(position.x() - m_pressPosition.x(), position.y() - m_pressPosition.y())
            < c_dragThreshold)
            return true;
        m_gesture = Gesture::RectangleSelection;
        m_lastPosition = position;
        return true;
    case Gesture::RectangleSelection:
        m_lastPosition = position;
        return true;
    case Gesture::Orbit: {
        const double sensitivity = strategy.GetRotationSensitivity();
        camera.Orbit(float(-delta.x() * sensitivity), float(delta.y() * sensitivity), m_pivot);
        break;
    }
    case Gesture::Pan:
        camera.Pan(delta);
        break;
    case Gesture::Zoom:
        camera.Zoom(float(std::exp(delta.y() * c_zoomDragPerPixel)), float(strategy.GetZoomNearestLimit()),
                    float(strategy.GetZoomFarthestLimit()));
        break;
    }
    m_lastPosition = position;
    m_viewport.OnStepTransforming();
    return true;
}

bool ViewNavigation::Release(const MouseEvent& event)
{
    if (m_gesture == Gesture::None)
        return false;
    if (event.button != m_button)
        return event.button == MouseButton::Left || event.button == MouseButton::Middle;
    const Gesture gesture = m_gesture;
    m_gesture = Gesture::None;
    m_button = MouseButton::None;
    switch (gesture) {
    case Gesture::PendingClick:
        SelectAt(m_pressPosition, event.modifiers);
        break;
    case Gesture::RectangleSelection:
        m_lastPosition = Position(event);
        SelectInRectangle(event.modifiers);
        break;
    default:
        m_viewport.OnEndTransforming();
        break;
    }
    return true;
}

bool ViewNavigation::DoubleClick(const MouseEvent& event)
{
    if (event.button != MouseButton::Left && event.button != MouseButton::Middle)
        return false;
    // The first click of the pair has selected what lies under the pointer: frame it.
    m_viewport.FitAll(true);
    return true;
}

bool ViewNavigation::Wheel(const MouseEvent& event)
{
    if (event.delta.y == 0.0 || !std::isfinite(event.delta.y))
        return false;
    const InteractionStrategy& strategy = m_viewport.GetInteractionStrategy();
    const double sensitivity
        = std::clamp(strategy.GetZoomSensitivity(), c_smallestZoomSensitivity, c_largestZoomSensitivity);
    const double notches = event.delta.y / c_wheelNotch;
    const auto focus
        = strategy.GetFollowCameraDirection() ? std::nullopt : std::optional<QPointF>(Position(event));
    m_viewport.GetCamera().Zoom(float(std::pow(1.0 - sensitivity, notches)),
                                float(strategy.GetZoomNearestLimit()), float(strategy.GetZoomFarthestLimit()),
                                focus);
    m_viewport.OnStepTransforming();
    m_viewport.ScheduleRedraw(InteractiveViewport::c_completeFrameDelayMs);
    m_viewport.AnnounceScale();
    return true;
}

void ViewNavigation::Cancel()
{
    const bool transforming
        = m_gesture == Gesture::Orbit || m_gesture == Gesture::Pan || m_gesture == Gesture::Zoom;
    m_gesture = Gesture::None;
    m_button = MouseButton::None;
    if (transforming)
        m_viewport.OnEndTransforming();
}

std::array<double, 4> ViewNavigation::SelectingRect() const
{
    if (m_gesture != Gesture::RectangleSelection)
        return { 0.0, 0.0, 0.0, 0.0 };
    return { m_pressPosition.x(), m_pressPosition.y(), m_lastPosition.x(), m_lastPosition.y() };
}

void ViewNavigation::StartCameraGesture(Gesture gesture, const MouseEvent&)
{
    m_gesture = gesture;
    m_pivot = m_viewport.Scene().ToScene(m_viewport.GetInteractionStrategy().GetCenterPoint());
    m_viewport.OnStartTransforming();
}

void ViewNavigation::UpdateHover(const QPointF& position)
{
    if (GraphicsService* service = m_viewport.Service())
        service->GetScene().EnsureCurrent();
    const StructureScene& scene = m_viewport.Scene();
    const Camera& camera = m_viewport.GetCamera();
    const Picker picker(scene, camera);
    const auto picked = picker.PickAt(position, m_viewport.GetInteractionStrategy().GetObjectPickingRadius());
    const Model::ObjectId hovered = picked.value_or(0);

    const Snaps snaps = ReadSnaps(m_viewport.Service());
    const double radius = m_viewport.GetInteractionStrategy().GetObjectPickingRadius();
    m_pointer.reset();
    if (picked && Model::KindOf(*picked) == Model::ObjectKind::Node && snaps.nodes) {
        if (const auto node = scene.FindNode(Model::NumberOf(*picked)))
            m_pointer = scene.NodePositions()[*node];
    } else if (picked && Model::KindOf(*picked) == Model::ObjectKind::Member) {
        if (const auto member = scene.FindMember(Model::NumberOf(*picked))) {
            const StructureScene::Member& record = scene.Members()[*member];
            const QVector3D middle
                = (scene.NodePositions()[record.startNode] + scene.NodePositions()[record.endNode]) * 0.5f;
            const auto middleOnScreen = picker.ToScreen(middle);
            if (snaps.midpoints && middleOnScreen && QLineF(*middleOnScreen, position).length() <= radius)
                m_pointer = middle;
            else if (snaps.members)
                m_pointer = picker.PointOnMember(*member, position);
        }
    }
    if (!m_pointer && !scene.Bounds().IsEmpty()) {
        // Off the objects (or on one no snap takes): the point of the ground the model stands on.
        const Camera::Ray ray = camera.RayThrough(position);
        const float ground = scene.Bounds().minimum.z();
        if (std::abs(ray.direction.z()) > 1e-6f) {
            const float along = (ground - ray.origin.z()) / ray.direction.z();
            if (along > 0.0f)
                m_pointer = ray.origin + ray.direction * along;
        }
        if (m_pointer && snaps.grid) {
            // The grid's lines lie on whole metres of the model.
            Geometry::Point3D onGrid = scene.ToModel(*m_pointer);
            onGrid.x = std::round(onGrid.x / c_gridSpacing) * c_gridSpacing;
            onGrid.y = std::round(onGrid.y / c_gridSpacing) * c_gridSpacing;
            m_pointer = scene.ToScene(onGrid);
        }
    }
    m_viewport.AnnouncePointer();
    if (hovered != m_hovered) {
        m_hovered = hovered;
        m_viewport.RequestFrame();
    }
}

void ViewNavigation::SelectAt(const QPointF& position, std::uint8_t modifiers)
{
    if (GraphicsService* service = m_viewport.Service())
        service->GetScene().EnsureCurrent();
    const Picker picker(m_viewport.Scene(), m_viewport.GetCamera());
    const auto picked = picker.PickAt(position, m_viewport.GetInteractionStrategy().GetObjectPickingRadius());
    ApplySelection(picked ? std::vector<Model::ObjectId> { *picked } : std::vector<Model::ObjectId> {},
                   modifiers);
}

void ViewNavigation::SelectInRectangle(std::uint8_t modifiers)
{
    if (GraphicsService* service = m_viewport.Service())
        service->GetScene().EnsureCurrent();
    const Picker picker(m_viewport.Scene(), m_viewport.GetCamera());
    const bool crossing = m_lastPosition.x() < m_pressPosition.x();
    ApplySelection(picker.PickInRectangle(QRectF(m_pressPosition, m_lastPosition), crossing), modifiers);
}

void ViewNavigation::ApplySelection(const std::vector<Model::ObjectId>& picked, std::uint8_t modifiers)
{
    GraphicsService* service = m_viewport.Service();
    Kernel::Framework::StructuralModel* model = service ? service->GetScene().Model() : nullptr;
    if (!model)
        return;
    if (!(modifiers & (KeyModifier::Shift | KeyModifier::Control))) {
        model->Select(picked);
        return;
    }
    std::vector<Model::ObjectId> selection = model->Selection();
    const std::unordered_set<Model::ObjectId> pickedSet(picked.begin(), picked.end());
    if (modifiers & KeyModifier::Control) {
        // Toggle: what was picked and selected leaves, what was picked and not selected joins.
        std::unordered_set<Model::ObjectId> selected(selection.begin(), selection.end());
        selection.erase(std::remove_if(selection.begin(), selection.end(),
                                       [&pickedSet](Model::ObjectId id) { return pickedSet.count(id) > 0; }),
                        selection.end());
        for (const Model::ObjectId id : picked) {
            if (!selected.count(id))
                selection.push_back(id);
        }
    } else {
        std::unordered_set<Model::ObjectId> selected(selection.begin(), selection.end());
        for (const Model::ObjectId id : picked) {
            if (selected.insert(id).second)
                selection.push_back(id);
        }
    }
    model->Select(selection);
}

} // namespace Orvo::Graphic
