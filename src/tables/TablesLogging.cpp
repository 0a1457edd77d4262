#include "TablesLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcTables, "orvo.ui.tables")

void LogCaughtException(const char* operation, const std::exception& error)
{
    qCWarning(lcTables, "%s: %s", operation, error.what());
}

} // namespace Orvo::UI::UIComponents
