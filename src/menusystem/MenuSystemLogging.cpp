#include "MenuSystemLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcMenuSystem, "orvo.ui.menusystem")

void LogMenuFailure(const char* operation, const std::exception& error)
{
    qCWarning(lcMenuSystem, "%s: %s", operation, error.what());
}

} // namespace Orvo::UI::UIComponents
