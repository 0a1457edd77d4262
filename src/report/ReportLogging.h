#pragma once

#include <QLoggingCategory>
#include <QString>
#include <exception>

namespace Orvo::UI::UIComponents {

// Messages of the report preview ("orvo.ui.report").
Q_DECLARE_LOGGING_CATEGORY(lcReport)

// The one way the report's failures reach the log: at warning level, with what was being done.
void LogReportWarning(const char* operation, const QString& message);

// Runs one step of making or exporting a report: a failure is logged and the preview goes on
// with the fallback.
template<typename Result, typename Operation>
Result CatchAtReportBoundary(const char* operation, Result fallback, Operation&& run)
{
    try {
        return run();
    } catch (const std::exception& error) {
        LogReportWarning(operation, QString::fromUtf8(error.what()));
        return fallback;
    }
}

} // namespace Orvo::UI::UIComponents
