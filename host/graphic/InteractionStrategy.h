#pragma once

#include "HostKitExport.h"
#include "geometry/Point3D.h"

namespace Orvo::Graphic {

class InteractiveViewport;

// How a view answers the user's hand: the engine asks its strategy each time it needs one of
// these values. This class gives the engine's own values; an application derives from it to
// apply its users' settings.
class HOSTKIT_EXPORT InteractionStrategy
{
public:
    virtual ~InteractionStrategy();

    // Degrees the camera turns per pixel of a drag.
    virtual double GetRotationSensitivity() const;
    // The part of the distance to the target one wheel notch moves the camera.
    virtual double GetZoomSensitivity() const;
    // True: zooming moves along the line of sight; false: towards the point under the pointer.
    virtual bool GetFollowCameraDirection() const;
    // Nearest and farthest distance to the target in metres.
    virtual double GetZoomNearestLimit() const;
    virtual double GetZoomFarthestLimit() const;
    // Pixels from an object within which a click picks it.
    virtual double GetObjectPickingRadius() const;
    // The point the camera turns about, in the model's coordinates: the middle of the selection,
    // or the middle of the view when nothing is selected.
    virtual Geometry::Point3D GetCenterPoint() const;

    // The view the strategy serves; set when the view takes it.
    void Attach(const InteractiveViewport* viewport) { m_viewport = viewport; }

protected:
    const InteractiveViewport* Viewport() const { return m_viewport; }

private:
    const InteractiveViewport* m_viewport = nullptr;
};

} // namespace Orvo::Graphic
