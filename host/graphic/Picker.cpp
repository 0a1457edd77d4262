#include "Picker.h"

#include "Camera.h"
#include "StructureScene.h"

#include <QVector4D>
#include <algorithm>
#include <cmath>

namespace Orvo::Graphic {

namespace Model = Kernel::Model;

namespace {

double DistanceToSegment(const QPointF& point, const QPointF& a, const QPointF& b, double& along)
{
    const QPointF segment = b - a;
    const double lengthSquared = QPointF::dotProduct(segment, segment);
    along = lengthSquared > 0.0
        ? std::clamp(QPointF::dotProduct(point - a, segment) / lengthSquared, 0.0, 1.0)
        : 0.0;
    const QPointF nearest = a + segment * along;
    return std::hypot(point.x() - nearest.x(), point.y() - nearest.y());
}

// Liang-Barsky: whether any part of the segment lies in the rectangle.
bool SegmentTouches(const QPointF& a, const QPointF& b, const QRectF& rectangle)
{
    double enter = 0.0;
    double leave = 1.0;
    const double start[2] = { a.x(), a.y() };
    const double change[2] = { b.x() - a.x(), b.y() - a.y() };
    const double low[2] = { rectangle.left(), rectangle.top() };
    const double high[2] = { rectangle.right(), rectangle.bottom() };
    for (int axis = 0; axis < 2; ++axis) {
        if (change[axis] == 0.0) {
            if (start[axis] < low[axis] || start[axis] > high[axis])
                return false;
            continue;
        }
        double t0 = (low[axis] - start[axis]) / change[axis];
        double t1 = (high[axis] - start[axis]) / change[axis];
        if (t0 > t1)
            std::swap(t0, t1);
        enter = std::max(enter, t0);
        leave = std::min(leave, t1);
        if (enter > leave)
            return false;
    }
    return true;
}

} // namespace

Picker::Picker(const StructureScene& scene, const Camera& camera)
    : m_scene(scene)
    , m_camera(camera)
{
    const QMatrix4x4 viewProjection = camera.ViewProjection();
    const QSize size = camera.ViewportSize();
    const auto& positions = scene.NodePositions();
    m_nodes.resize(positions.size());
    for (std::size_t i = 0; i < positions.size(); ++i) {
        const QVector4D clip = viewProjection * QVector4D(positions[i], 1.0f);
        // Nodes behind the near plane cannot be picked, nor can members reaching them.
        if (clip.w() <= 1e-6f || clip.z() < -clip.w())
            continue;
        m_nodes[i].position = QPointF((clip.x() / clip.w() + 1.0) * 0.5 * size.width(),
                                      (1.0 - clip.y() / clip.w()) * 0.5 * size.height());
        m_nodes[i].depth = clip.z() / clip.w();
        m_nodes[i].visible = true;
    }
}

std::optional<QPointF> Picker::ToScreen(const QVector3D& point) const
{
    const QVector4D clip = m_camera.ViewProjection() * QVector4D(point, 1.0f);
    if (clip.w() <= 1e-6f || clip.z() < -clip.w())
        return std::nullopt;
    const QSize size = m_camera.ViewportSize();
    return QPointF((clip.x() / clip.w() + 1.0) * 0.5 * size.width(),
                   (1.0 - clip.y() / clip.w()) * 0.5 * size.height());
}

std::optional<Model::ObjectId> Picker::PickAt(const QPointF& point, double radius) const
{
    std::optional<std::uint32_t> bestNode;
    double bestNodeDistance = radius;
    for (std::uint32_t i = 0; i < m_nodes.size(); ++i) {
        if (!m_nodes[i].visible)
            continue;
        const double distance
            = std::hypot(m_nodes[i].position.x() - point.x(), m_nodes[i].position.y() - point.y());
        if (distance <= bestNodeDistance) {
            bestNodeDistance = distance;
            bestNode = i;
        }
    }
    if (bestNode)
        return m_scene.NodeId(*bestNode);

    std::optional<std::uint32_t> bestMember;
    double bestDistance = radius;
    float bestDepth = 2.0f;
    const auto& members = m_scene.Members();
    for (std::uint32_t i = 0; i < members.size(); ++i) {
        const Projected& start = m_nodes[members[i].startNode];
        const Projected& end = m_nodes[members[i].endNode];
        if (!start.visible || !end.visible)
            continue;
        double along = 0.0;
        const double distance = DistanceToSegment(point, start.position, end.position, along);
        if (distance > bestDistance)
            continue;
        const float depth = float(start.depth + (end.depth - start.depth) * along);
        if (distance < bestDistance || depth < bestDepth) {
            bestDistance = distance;
            bestDepth = depth;
            bestMember = i;
        }
    }
    if (bestMember)
        return m_scene.MemberId(*bestMember);
    return std::nullopt;
}

std::vector<Model::ObjectId> Picker::PickInRectangle(const QRectF& rectangle, bool crossing) const
{
    std::vector<Model::ObjectId> picked;
    const QRectF area = rectangle.normalized();
    for (std::uint32_t i = 0; i < m_nodes.size(); ++i) {
        if (m_nodes[i].visible && area.contains(m_nodes[i].position))
            picked.push_back(m_scene.NodeId(i));
    }
    const auto& members = m_scene.Members();
    for (std::uint32_t i = 0; i < members.size(); ++i) {
        const Projected& start = m_nodes[members[i].startNode];
        const Projected& end = m_nodes[members[i].endNode];
        if (!start.visible || !end.visible)
            continue;
        const bool inside = crossing ? SegmentTouches(start.position, end.position, area)
                                     : area.contains(start.position) && area.contains(end.position);
        if (inside)
            picked.push_back(m_scene.MemberId(i));
    }
    return picked;
}

std::optional<QVector3D> Picker::PointOnMember(std::uint32_t member, const QPointF& point) const
{
    if (member >= m_scene.Members().size())
        return std::nullopt;
    const auto& item = m_scene.Members()[member];
    const QVector3D a = m_scene.NodePositions()[item.startNode];
    const QVector3D b = m_scene.NodePositions()[item.endNode];
    const Camera::Ray ray = m_camera.RayThrough(point);
    // The nearest points of two lines; the member's parameter kept on the member.
    const QVector3D segment = b - a;
    const QVector3D between = a - ray.origin;
    const float segmentSquared = QVector3D::dotProduct(segment, segment);
    const float cross = QVector3D::dotProduct(segment, ray.direction);
    const float denominator = segmentSquared - cross * cross;
    if (segmentSquared <= 0.0f)
        return a;
    float along = 0.0f;
    if (std::abs(denominator) > 1e-9f) {
        along = (cross * QVector3D::dotProduct(between, ray.direction)
                 - QVector3D::dotProduct(between, segment))
            / denominator;
    }
    return a + segment * std::clamp(along, 0.0f, 1.0f);
}

} // namespace Orvo::Graphic
