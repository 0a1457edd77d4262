#pragma once

#include "geometry/CKVPoint2D.h"
#include "geometry/Point3D.h"

#include <QPointF>
#include <QVector3D>

// Points and vectors between Qt's types and the host's geometry.
namespace Orvo::UI::UIComponents::Convert {

CKVPoint2D CreatePoint(const QPointF& point);
// Widened to double precision.
Geometry::Point3D CreatePoint(const QVector3D& point);
// Narrowed to single precision.
QVector3D CreateVector(const Geometry::Point3D& point);

} // namespace Orvo::UI::UIComponents::Convert
