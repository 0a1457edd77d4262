#include "SpotlightLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcSpotlight, "orvo.ui.spotlight")

void LogSpotlightFailure(const char* operation, const std::exception& error)
{
    qCWarning(lcSpotlight, "%s: %s", operation, error.what());
}

} // namespace Orvo::UI::UIComponents
