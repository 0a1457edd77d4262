#include "StatusLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcStatus, "orvo.ui.status")

void LogStatusFailure(const char* operation, const std::exception& error)
{
    qCWarning(lcStatus, "%s: %s", operation, error.what());
}

} // namespace Orvo::UI::UIComponents
