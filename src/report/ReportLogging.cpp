#include "ReportLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcReport, "orvo.ui.report")

void LogReportWarning(const char* operation, const QString& message)
{
    qCWarning(lcReport, "%s: %s", operation, qUtf8Printable(message));
}

} // namespace Orvo::UI::UIComponents
