#include "Camera.h"

#include <QQuaternion>
#include <QVector4D>
#include <QtMath>
#include <algorithm>
#include <cmath>

namespace Orvo::Graphic {

namespace {

// Near plane of a perspective camera as a part of the far plane's distance: the depth buffer
// keeps enough precision for a whole building at that ratio.
constexpr float c_nearToFarRatio = 1.0f / 4000.0f;
// Depth range margin around the scene, so that nothing touches the clipping planes.
constexpr float c_depthMargin = 1.05f;
// A framed box keeps some room around it: the symbols at its edges (supports, loads) reach out.
constexpr float c_fitMargin = 1.08f;

float Clamp(float value, float limitA, float limitB)
{
    return std::clamp(value, std::min(limitA, limitB), std::max(limitA, limitB));
}

} // namespace

void Camera::SetViewportSize(const QSize& size)
{
    m_viewportSize = QSize(std::max(1, size.width()), std::max(1, size.height()));
}

void Camera::SetSceneBounds(const SceneBox& box)
{
    m_sceneCenter = box.Center();
    m_sceneRadius = std::max(box.Radius(), 0.5f);
}

void Camera::SetProjection(Projection projection)
{
    m_projection = projection;
}

void Camera::SetTarget(const QVector3D& target)
{
    m_target = target;
}

void Camera::SetOrientation(float yawDegrees, float pitchDegrees)
{
    m_yaw = std::fmod(yawDegrees, 360.0f);
    m_pitch = std::clamp(pitchDegrees, -90.0f, 90.0f);
}

void Camera::SetDistance(float distance, float nearestLimit, float farthestLimit)
{
    m_distance = Clamp(distance, nearestLimit, farthestLimit);
}

void Camera::Orbit(float yawDegrees, float pitchDegrees, const QVector3D& pivot)
{
    const QQuaternion yawTurn = QQuaternion::fromAxisAndAngle(QVector3D(0, 0, 1), yawDegrees);
    m_target = pivot + yawTurn.rotatedVector(m_target - pivot);
    m_yaw = std::fmod(m_yaw + yawDegrees, 360.0f);

    const float pitch = std::clamp(m_pitch + pitchDegrees, -90.0f, 90.0f);
    // Turning about the right axis by a positive angle lowers the eye.
    const QQuaternion pitchTurn = QQuaternion::fromAxisAndAngle(Right(), m_pitch - pitch);
    m_target = pivot + pitchTurn.rotatedVector(m_target - pivot);
    m_pitch = pitch;
}

void Camera::Pan(const QPointF& pixels)
{
    const float units = UnitsPerPixel();
    m_target += (-float(pixels.x()) * Right() + float(pixels.y()) * Up()) * units;
}

void Camera::Zoom(float factor, float nearestLimit, float farthestLimit, std::optional<QPointF> focus)
{
    if (!(factor > 0.0f))
        return;
    const float distance = Clamp(m_distance * factor, nearestLimit, farthestLimit);
    const float applied = distance / m_distance;
    if (focus) {
        const QVector3D focused = PointOnTargetPlane(*focus);
        m_target += (focused - m_target) * (1.0f - applied);
    }
    m_distance = distance;
}

void Camera::Fit(const SceneBox& box, float nearestLimit, float farthestLimit)
{
    if (box.IsEmpty())
        return;
    m_target = box.Center();
    const float radius = std::max(box.Radius(), 0.5f);
    const float halfVertical = qDegreesToRadians(c_fieldOfViewDegrees) * 0.5f;
    const float halfHorizontal = std::atan(std::tan(halfVertical) * AspectRatio());
    const float halfAngle = std::min(halfVertical, halfHorizontal);
    SetDistance(c_fitMargin * radius / std::sin(halfAngle), nearestLimit, farthestLimit);
}

QVector3D Camera::Eye() const
{
    return m_target - Forward() * m_distance;
}

QVector3D Camera::Forward() const
{
    const float yaw = qDegreesToRadians(m_yaw);
    const float pitch = qDegreesToRadians(m_pitch);
    return -QVector3D(std::cos(pitch) * std::cos(yaw), std::cos(pitch) * std::sin(yaw), std::sin(pitch));
}

QVector3D Camera::Up() const
{
    // The derivative of the eye's direction by pitch: defined straight up and down as well.
    const float yaw = qDegreesToRadians(m_yaw);
    const float pitch = qDegreesToRadians(m_pitch);
    return QVector3D(-std::sin(pitch) * std::cos(yaw), -std::sin(pitch) * std::sin(yaw), std::cos(pitch));
}

QVector3D Camera::Right() const
{
    return QVector3D::crossProduct(Forward(), Up()).normalized();
}

QMatrix4x4 Camera::View() const
{
    QMatrix4x4 view;
    view.lookAt(Eye(), m_target, Up());
    return view;
}

QMatrix4x4 Camera::ProjectionMatrix() const
{
    QMatrix4x4 projection;
    if (m_projection == Projection::Perspective) {
        projection.perspective(c_fieldOfViewDegrees, AspectRatio(), NearPlane(), FarPlane());
    } else {
        const float halfHeight = HalfHeightAtTarget();
        const float halfWidth = halfHeight * AspectRatio();
        projection.ortho(-halfWidth, halfWidth, -halfHeight, halfHeight, NearPlane(), FarPlane());
    }
    return projection;
}

Camera::ScreenPoint Camera::Project(const QVector3D& point) const
{
    const QVector4D clip = ViewProjection() * QVector4D(point, 1.0f);
    ScreenPoint screen;
    if (clip.w() <= 1e-6f)
        return screen;
    const QVector3D ndc = clip.toVector3D() / clip.w();
    screen.position = QPointF((ndc.x() + 1.0) * 0.5 * m_viewportSize.width(),
                              (1.0 - ndc.y()) * 0.5 * m_viewportSize.height());
    screen.depth = ndc.z() * 0.5f + 0.5f;
    screen.visible = true;
    return screen;
}

Camera::Ray Camera::RayThrough(const QPointF& pixel) const
{
    const float x = float(2.0 * pixel.x() / m_viewportSize.width() - 1.0);
    const float y = float(1.0 - 2.0 * pixel.y() / m_viewportSize.height());
    const QMatrix4x4 inverse = ViewProjection().inverted();
    const QVector3D nearPoint = inverse.map(QVector3D(x, y, -1.0f));
    const QVector3D farPoint = inverse.map(QVector3D(x, y, 1.0f));
    return { nearPoint, (farPoint - nearPoint).normalized() };
}

QVector3D Camera::PointOnTargetPlane(const QPointF& pixel) const
{
    const Ray ray = RayThrough(pixel);
    const QVector3D normal = Forward();
    const float facing = QVector3D::dotProduct(ray.direction, normal);
    if (std::abs(facing) < 1e-6f)
        return m_target;
    const float along = QVector3D::dotProduct(m_target - ray.origin, normal) / facing;
    return ray.origin + ray.direction * along;
}

float Camera::UnitsPerPixel() const
{
    return 2.0f * HalfHeightAtTarget() / float(m_viewportSize.height());
}

float Camera::NearPlane() const
{
    const float toScene = (Eye() - m_sceneCenter).length();
    const float farPlane = FarPlane();
    if (m_projection == Projection::Orthographic)
        return toScene - m_sceneRadius * c_depthMargin;
    return std::max({ toScene - m_sceneRadius * c_depthMargin, farPlane * c_nearToFarRatio, 1e-3f });
}

float Camera::FarPlane() const
{
    const float toScene = (Eye() - m_sceneCenter).length();
    return std::max(toScene + m_sceneRadius * c_depthMargin, m_distance * 2.0f);
}

float Camera::AspectRatio() const
{
    return float(m_viewportSize.width()) / float(m_viewportSize.height());
}

float Camera::HalfHeightAtTarget() const
{
    return m_distance * std::tan(qDegreesToRadians(c_fieldOfViewDegrees) * 0.5f);
}

} // namespace Orvo::Graphic
