#include "OverlaySymbols.h"

#include "ScenePalette.h"
#include "StructureScene.h"

#include <QVector4D>
#include <algorithm>
#include <cmath>

namespace Orvo::Graphic {

namespace Model = Kernel::Model;

namespace {

// Sizes in pixels.
constexpr double c_supportHeight = 14.0;
constexpr double c_supportHalfWidth = 9.0;
constexpr double c_arrowMinimum = 12.0;
constexpr double c_arrowRange = 16.0; // added for the largest load
constexpr double c_arrowHeadLength = 7.0;
constexpr double c_arrowHeadHalfWidth = 3.5;
constexpr double c_memberLoadSpacing = 40.0; // between arrows along a member
constexpr int c_memberLoadMostArrows = 7;
constexpr double c_triadLength = 36.0;
constexpr double c_triadInset = 52.0;
// Symbols of points this far off the view still reach into it.
constexpr double c_offScreenReach = 48.0;
// Support symbols cover at most this part of the view; more supports in sight draw smaller
// ones, down to the smallest scale, so that they never hide the structure above them.
constexpr double c_supportCoverage = 0.03;
constexpr double c_smallestSupportScale = 0.3;

double Length(const QPointF& vector)
{
    return std::hypot(vector.x(), vector.y());
}

QPointF Perpendicular(const QPointF& direction)
{
    return { -direction.y(), direction.x() };
}

} // namespace

OverlaySymbols::OverlaySymbols(const StructureScene& scene, const Camera& camera, FramePlan& plan)
    : m_scene(scene)
    , m_camera(camera)
    , m_plan(plan)
    , m_directionStep(camera.UnitsPerPixel() * 10.0f)
{ }

void OverlaySymbols::AddSupports()
{
    const auto& supports = m_scene.Supports();
    std::vector<std::pair<std::size_t, QPointF>> inSight;
    for (std::size_t i = 0; i < supports.size(); ++i) {
        if (const auto at = OnScreen(m_scene.NodePositions()[supports[i].node]))
            inSight.emplace_back(i, *at);
    }
    if (inSight.empty())
        return;
    const double symbolArea = 4.0 * c_supportHeight * c_supportHalfWidth;
    const double viewArea = double(m_plan.size.width()) * m_plan.size.height();
    const double scale
        = std::clamp(std::sqrt(c_supportCoverage * viewArea / (symbolArea * double(inSight.size()))),
                     c_smallestSupportScale, 1.0);
    for (const auto& [i, at] : inSight) {
        const std::uint32_t color = m_scene.IsSupportSelected(i) ? Palette::c_selected : Palette::c_support;
        const QVector3D position = m_scene.NodePositions()[supports[i].node];
        AddSupport(at, ScreenDirection(position, QVector3D(0, 0, -1)), scale, supports[i].fixed, color);
    }
}

void OverlaySymbols::AddSupport(const QPointF& at, const QPointF& down, double scale, Model::DofMask fixed,
                                std::uint32_t color)
{
    if (down.isNull()) {
        // Seen from above or below: a square around the node.
        const double half = c_supportHalfWidth * 0.7 * scale;
        const QPointF corners[4] = { at + QPointF(-half, -half), at + QPointF(half, -half),
                                     at + QPointF(half, half), at + QPointF(-half, half) };
        for (int i = 0; i < 4; ++i)
            AddLine(corners[i], corners[(i + 1) % 4], color);
        return;
    }
    const QPointF across = Perpendicular(down) * scale;
    const QPointF step = down * scale;
    const QPointF base = at + step * c_supportHeight;
    const QPointF left = base - across * c_supportHalfWidth;
    const QPointF right = base + across * c_supportHalfWidth;
    AddLine(at, left, color);
    AddLine(at, right, color);
    AddLine(left, right, color);
    if ((fixed & Model::c_allDofs) == Model::c_allDofs) {
        // Fixed: a ground line with hatching.
        const QPointF groundLeft = left - across * 3.0;
        const QPointF groundRight = right + across * 3.0;
        AddLine(groundLeft, groundRight, color, 2);
        for (int i = 0; i <= 4; ++i) {
            const QPointF from = groundLeft + (groundRight - groundLeft) * (i / 4.0);
            AddLine(from, from + step * 5.0 - across * 4.0, color);
        }
    } else if ((fixed & Model::c_translations) != Model::c_translations) {
        // Free to slide: a second line below, as rollers.
        AddLine(left + step * 4.0, right + step * 4.0, color);
    }
}

void OverlaySymbols::AddLoads(Model::Number loadCase, bool complete)
{
    if (loadCase == 0)
        return;
    const std::uint32_t color = m_scene.LoadCaseColor(loadCase);
    const float largest = std::max(m_scene.LargestNodalForce(), 1e-9f);
    for (const auto& load : m_scene.NodalLoads()) {
        if (load.loadCase != loadCase)
            continue;
        const QVector3D position = m_scene.NodePositions()[load.node];
        const auto head = OnScreen(position);
        if (!head)
            continue;
        const QPointF direction = ScreenDirection(position, load.force.normalized());
        const double length = c_arrowMinimum + c_arrowRange * double(load.force.length() / largest);
        if (direction.isNull()) {
            // Along the line of sight: a cross in a square marks it.
            AddLine(*head + QPointF(-5, -5), *head + QPointF(5, 5), color);
            AddLine(*head + QPointF(-5, 5), *head + QPointF(5, -5), color);
            continue;
        }
        AddArrow(*head - direction * length, *head, color);
    }
    if (complete)
        AddMemberLoads(loadCase);
}

void OverlaySymbols::AddMemberLoads(Model::Number loadCase)
{
    const std::uint32_t color = m_scene.LoadCaseColor(loadCase);
    const float largest = std::max(m_scene.LargestMemberLoad(), 1e-9f);
    const auto& nodes = m_scene.NodePositions();
    for (const auto& load : m_scene.MemberLoads()) {
        if (load.loadCase != loadCase)
            continue;
        const auto& member = m_scene.Members()[load.member];
        const auto start = OnScreen(nodes[member.startNode]);
        const auto end = OnScreen(nodes[member.endNode]);
        if (!start || !end)
            continue;
        const double screenLength = Length(*end - *start);
        if (screenLength < c_memberLoadSpacing)
            continue;
        const QVector3D middle = (nodes[member.startNode] + nodes[member.endNode]) * 0.5f;
        const QPointF direction = ScreenDirection(middle, load.direction * (load.value < 0 ? -1.0f : 1.0f));
        if (direction.isNull())
            continue;
        const double length = c_arrowMinimum + c_arrowRange * double(std::abs(load.value) / largest);
        const int arrows = std::clamp(int(screenLength / c_memberLoadSpacing), 2, c_memberLoadMostArrows);
        for (int i = 0; i < arrows; ++i) {
            const QPointF head = *start + (*end - *start) * (double(i) / (arrows - 1));
            AddArrow(head - direction * length, head, color);
        }
        AddLine(*start - direction * length, *end - direction * length, color);
    }
}

void OverlaySymbols::AddAxesTriad()
{
    const QPointF origin(c_triadInset, m_plan.size.height() - c_triadInset);
    const QVector3D right = m_camera.Right();
    const QVector3D up = m_camera.Up();
    const struct
    {
        QVector3D axis;
        std::uint32_t color;
        char letter;
    } axes[] = { { { 1, 0, 0 }, Palette::c_axisX, 'X' },
                 { { 0, 1, 0 }, Palette::c_axisY, 'Y' },
                 { { 0, 0, 1 }, Palette::c_axisZ, 'Z' } };
    for (const auto& axis : axes) {
        const QPointF direction(QVector3D::dotProduct(axis.axis, right),
                                -QVector3D::dotProduct(axis.axis, up));
        const QPointF tip = origin + direction * c_triadLength;
        if (Length(direction) < 0.1) {
            // Pointing at the viewer: a dot where the arrow would end.
            AddLine(origin - QPointF(2, 0), origin + QPointF(2, 0), axis.color, 3);
        } else {
            AddArrow(origin, tip, axis.color);
        }
        AddLetter(axis.letter, origin + direction * (c_triadLength + 11.0), axis.color);
    }
}

void OverlaySymbols::AddLetter(char letter, const QPointF& center, std::uint32_t color)
{
    auto at = [&center](double x, double y) { return center + QPointF(x, y); };
    switch (letter) {
    case 'X':
        AddLine(at(-3, -4), at(3, 4), color);
        AddLine(at(-3, 4), at(3, -4), color);
        break;
    case 'Y':
        AddLine(at(-3, -4), at(0, 0), color);
        AddLine(at(3, -4), at(0, 0), color);
        AddLine(at(0, 0), at(0, 4), color);
        break;
    default:
        AddLine(at(-3, -4), at(3, -4), color);
        AddLine(at(3, -4), at(-3, 4), color);
        AddLine(at(-3, 4), at(3, 4), color);
        break;
    }
}

std::optional<QPointF> OverlaySymbols::Project(const QVector3D& point) const
{
    const QVector4D clip = m_plan.viewProjection * QVector4D(point, 1.0f);
    if (clip.w() <= 1e-6f)
        return std::nullopt;
    return QPointF((clip.x() / clip.w() + 1.0) * 0.5 * m_plan.size.width(),
                   (1.0 - clip.y() / clip.w()) * 0.5 * m_plan.size.height());
}

std::optional<QPointF> OverlaySymbols::OnScreen(const QVector3D& point) const
{
    const auto screen = Project(point);
    if (!screen || screen->x() < -c_offScreenReach || screen->y() < -c_offScreenReach
        || screen->x() > m_plan.size.width() + c_offScreenReach
        || screen->y() > m_plan.size.height() + c_offScreenReach)
        return std::nullopt;
    return screen;
}

QPointF OverlaySymbols::ScreenDirection(const QVector3D& point, const QVector3D& direction) const
{
    // A step small against the view, so that perspective barely bends it.
    const auto a = Project(point);
    const auto b = Project(point + direction * m_directionStep);
    if (!a || !b)
        return {};
    const QPointF delta = *b - *a;
    const double length = Length(delta);
    // Less than a pixel for ten pixels' worth of model: the direction points at the viewer.
    if (length < 1.0)
        return {};
    return delta / length;
}

void OverlaySymbols::AddLine(const QPointF& a, const QPointF& b, std::uint32_t color, int width)
{
    m_plan.overlay.push_back({ a, b, color, width });
}

void OverlaySymbols::AddArrow(const QPointF& tail, const QPointF& head, std::uint32_t color)
{
    const QPointF shaft = head - tail;
    const double length = Length(shaft);
    if (length <= 0.0)
        return;
    const QPointF along = shaft / length;
    const QPointF across = Perpendicular(along);
    AddLine(tail, head, color);
    AddLine(head, head - along * c_arrowHeadLength + across * c_arrowHeadHalfWidth, color);
    AddLine(head, head - along * c_arrowHeadLength - across * c_arrowHeadHalfWidth, color);
}

} // namespace Orvo::Graphic
