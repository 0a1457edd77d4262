#pragma once

namespace Orvo::Geometry {

// A point or a direction of the model's space, in metres.
struct Point3D
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    friend bool operator==(const Point3D& a, const Point3D& b)
    {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    }
    friend bool operator!=(const Point3D& a, const Point3D& b) { return !(a == b); }
};

// A displacement on the screen or in a plane (a wheel turn, a drag).
struct Vector2D
{
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const Vector2D& a, const Vector2D& b) { return a.x == b.x && a.y == b.y; }
    friend bool operator!=(const Vector2D& a, const Vector2D& b) { return !(a == b); }
};

} // namespace Orvo::Geometry
