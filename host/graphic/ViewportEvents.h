#pragma once

#include "geometry/Point3D.h"

namespace Orvo::Graphic {

// Posted on the event bus when the pointer moves over a view: the model point under it (on
// the object under it, else on the ground plane), or none when the pointer is off the model's
// ground and objects or has left the view.
struct PointerPositionChangedEvent
{
    int viewportId = -1;
    bool valid = false;
    Geometry::Point3D position;
};

// Posted when a view's scale changed: model metres one pixel covers at the camera's target.
struct ViewScaleChangedEvent
{
    int viewportId = -1;
    double metresPerPixel = 0.0;
};

} // namespace Orvo::Graphic
