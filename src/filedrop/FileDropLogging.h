#pragma once

#include <QLoggingCategory>
#include <exception>

namespace Orvo::UI::UIComponents {

// Messages of the window's file drop ("orvo.ui.filedrop").
Q_DECLARE_LOGGING_CATEGORY(lcFileDrop)

void LogFileDropFailure(const char* operation, const std::exception& error);

// Runs one call into the host for the file drop: a failure is logged at warning level and the
// drop goes on with the fallback.
template<typename Result, typename Operation>
Result CatchAtFileDropBoundary(const char* operation, Result fallback, Operation&& run)
{
    try {
        return run();
    } catch (const std::exception& error) {
        LogFileDropFailure(operation, error);
        return fallback;
    }
}

} // namespace Orvo::UI::UIComponents
