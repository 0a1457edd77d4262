#pragma once

#include <QVector3D>
#include <algorithm>
#include <limits>

namespace Orvo::Graphic {

// An axis-aligned box of the scene's space; empty until the first point is added.
struct SceneBox
{
    QVector3D minimum { std::numeric_limits<float>::max(), std::numeric_limits<float>::max(),
                        std::numeric_limits<float>::max() };
    QVector3D maximum { std::numeric_limits<float>::lowest(), std::numeric_limits<float>::lowest(),
                        std::numeric_limits<float>::lowest() };

    bool IsEmpty() const { return minimum.x() > maximum.x(); }

    void Add(const QVector3D& point)
    {
        minimum = QVector3D(std::min(minimum.x(), point.x()), std::min(minimum.y(), point.y()),
                            std::min(minimum.z(), point.z()));
        maximum = QVector3D(std::max(maximum.x(), point.x()), std::max(maximum.y(), point.y()),
                            std::max(maximum.z(), point.z()));
    }

    void Add(const SceneBox& other)
    {
        if (!other.IsEmpty()) {
            Add(other.minimum);
            Add(other.maximum);
        }
    }

    QVector3D Center() const { return IsEmpty() ? QVector3D() : (minimum + maximum) * 0.5f; }
    // Half the diagonal: the radius of a sphere around the centre that holds the box.
    float Radius() const { return IsEmpty() ? 0.0f : (maximum - minimum).length() * 0.5f; }
};

} // namespace Orvo::Graphic
