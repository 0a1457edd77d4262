#pragma once

#include "graphic/InteractionStrategy.h"

namespace Orvo::UI::UIComponents {

// The engine's camera interaction with the user's settings: each value is the setting's when
// the application has settings, the engine's own otherwise (and for a setting never set).
class OrvoInteractionStrategy : public Graphic::InteractionStrategy
{
public:
    double GetRotationSensitivity() const override;
    double GetZoomSensitivity() const override;
    bool GetFollowCameraDirection() const override;
    double GetZoomNearestLimit() const override;
    double GetZoomFarthestLimit() const override;
    double GetObjectPickingRadius() const override;
};

} // namespace Orvo::UI::UIComponents
