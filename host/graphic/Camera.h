#pragma once

#include "HostKitExport.h"
#include "SceneBox.h"

#include <QMatrix4x4>
#include <QPointF>
#include <QSize>
#include <QVector3D>
#include <optional>

namespace Orvo::Graphic {

// A view's camera: it looks at a target from a distance, turned about the vertical (yaw) and
// raised above the horizontal (pitch), the z axis up. It works in the scene's space (the model's
// coordinates less the scene's origin), in single precision as the renderers do.
class HOSTKIT_EXPORT Camera
{
public:
    enum class Projection
    {
        Perspective,
        Orthographic,
    };

    // Where a point lands on the screen: pixels from the top left, and depth from 0 (near) to
    // 1 (far). Not visible when behind the camera.
    struct ScreenPoint
    {
        QPointF position;
        float depth = 0.0f;
        bool visible = false;
    };

    struct Ray
    {
        QVector3D origin;
        QVector3D direction; // unit length
    };

    static constexpr float c_fieldOfViewDegrees = 40.0f;

    void SetViewportSize(const QSize& size);
    QSize ViewportSize() const { return m_viewportSize; }
    // The scene's extent decides the depth range; the farther the camera may go, the more.
    void SetSceneBounds(const SceneBox& box);

    void SetProjection(Projection projection);
    Projection GetProjection() const { return m_projection; }

    void SetTarget(const QVector3D& target);
    QVector3D Target() const { return m_target; }
    void SetOrientation(float yawDegrees, float pitchDegrees);
    float Yaw() const { return m_yaw; }
    float Pitch() const { return m_pitch; }
    void SetDistance(float distance, float nearestLimit, float farthestLimit);
    float Distance() const { return m_distance; }

    // Turns the camera about a pivot: yaw about the vertical through it, pitch about the
    // camera's right axis through it. Pitch stops at straight up and straight down.
    void Orbit(float yawDegrees, float pitchDegrees, const QVector3D& pivot);
    // Moves the view so that the scene follows the pointer's move by pixels.
    void Pan(const QPointF& pixels);
    // Multiplies the distance by factor within the limits; with a focus, the point under it
    // stays where it is on the screen.
    void Zoom(float factor, float nearestLimit, float farthestLimit,
              std::optional<QPointF> focus = std::nullopt);
    // Frames the box: its centre becomes the target, at a distance that shows all of it.
    void Fit(const SceneBox& box, float nearestLimit, float farthestLimit);

    QVector3D Eye() const;
    QVector3D Forward() const;
    QVector3D Right() const;
    QVector3D Up() const;
    QMatrix4x4 View() const;
    QMatrix4x4 ProjectionMatrix() const;
    QMatrix4x4 ViewProjection() const { return ProjectionMatrix() * View(); }

    ScreenPoint Project(const QVector3D& point) const;
    Ray RayThrough(const QPointF& pixel) const;
    // The point under the pixel on the plane through the target that faces the camera.
    QVector3D PointOnTargetPlane(const QPointF& pixel) const;
    // Scene units one pixel covers at the target's depth.
    float UnitsPerPixel() const;

    float NearPlane() const;
    float FarPlane() const;

private:
    float AspectRatio() const;
    float HalfHeightAtTarget() const;

    QSize m_viewportSize { 1, 1 };
    Projection m_projection = Projection::Perspective;
    QVector3D m_target;
    float m_yaw = -60.0f;
    float m_pitch = 30.0f;
    float m_distance = 10.0f;
    QVector3D m_sceneCenter;
    float m_sceneRadius = 1.0f;
};

} // namespace Orvo::Graphic
