#include "InteractionStrategy.h"

#include "InteractiveViewport.h"

namespace Orvo::Graphic {

namespace {

constexpr double c_rotationSensitivity = 0.4; // degrees per pixel
constexpr double c_zoomSensitivity = 0.15; // of the distance per notch
constexpr double c_zoomNearestLimit = 0.25; // m
constexpr double c_zoomFarthestLimit = 20000.0; // m
constexpr double c_objectPickingRadius = 6.0; // px

} // namespace

InteractionStrategy::~InteractionStrategy() = default;

double InteractionStrategy::GetRotationSensitivity() const
{
    return c_rotationSensitivity;
}

double InteractionStrategy::GetZoomSensitivity() const
{
    return c_zoomSensitivity;
}

bool InteractionStrategy::GetFollowCameraDirection() const
{
    return false;
}

double InteractionStrategy::GetZoomNearestLimit() const
{
    return c_zoomNearestLimit;
}

double InteractionStrategy::GetZoomFarthestLimit() const
{
    return c_zoomFarthestLimit;
}

double InteractionStrategy::GetObjectPickingRadius() const
{
    return c_objectPickingRadius;
}

Geometry::Point3D InteractionStrategy::GetCenterPoint() const
{
    return m_viewport ? m_viewport->DefaultCenterPoint() : Geometry::Point3D();
}

} // namespace Orvo::Graphic
