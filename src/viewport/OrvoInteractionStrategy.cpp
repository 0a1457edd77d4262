#include "OrvoInteractionStrategy.h"

#include "datamodel/Settings.h"
#include "framework/ServiceCatalog.h"

namespace Orvo::UI::UIComponents {

namespace {

// Read at every use: a setting the user changes applies to the next drag or wheel turn.
template<typename Value, typename Getter> Value FromSettings(Value engineDefault, Getter getter)
{
    const auto settings = Kernel::Framework::ServiceCatalog::Global()->Get<DataModel::Settings>();
    return settings ? ((*settings).*getter)(engineDefault) : engineDefault;
}

} // namespace

double OrvoInteractionStrategy::GetRotationSensitivity() const
{
    return FromSettings(InteractionStrategy::GetRotationSensitivity(),
                        &DataModel::Settings::GetRotationSensitivity);
}

double OrvoInteractionStrategy::GetZoomSensitivity() const
{
    return FromSettings(InteractionStrategy::GetZoomSensitivity(), &DataModel::Settings::GetZoomSensitivity);
}

bool OrvoInteractionStrategy::GetFollowCameraDirection() const
{
    return FromSettings(InteractionStrategy::GetFollowCameraDirection(),
                        &DataModel::Settings::GetZoomFollowCameraDirection);
}

double OrvoInteractionStrategy::GetZoomNearestLimit() const
{
    return FromSettings(InteractionStrategy::GetZoomNearestLimit(),
                        &DataModel::Settings::GetZoomNearestLimit);
}

double OrvoInteractionStrategy::GetZoomFarthestLimit() const
{
    return FromSettings(InteractionStrategy::GetZoomFarthestLimit(),
                        &DataModel::Settings::GetZoomFarthestLimit);
}

double OrvoInteractionStrategy::GetObjectPickingRadius() const
{
    return FromSettings(InteractionStrategy::GetObjectPickingRadius(),
                        &DataModel::Settings::GetObjectPickingRadius);
}

} // namespace Orvo::UI::UIComponents
