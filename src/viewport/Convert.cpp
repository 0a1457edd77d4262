#include "Convert.h"

namespace Orvo::UI::UIComponents::Convert {

CKVPoint2D CreatePoint(const QPointF& point)
{
    return { point.x(), point.y() };
}

Geometry::Point3D CreatePoint(const QVector3D& point)
{
    return { double(point.x()), double(point.y()), double(point.z()) };
}

QVector3D CreateVector(const Geometry::Point3D& point)
{
    return QVector3D(float(point.x), float(point.y), float(point.z));
}

} // namespace Orvo::UI::UIComponents::Convert
