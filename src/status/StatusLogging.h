#pragma once

#include <QLoggingCategory>
#include <exception>

namespace Orvo::UI::UIComponents {

// Messages of the status bar, the process toolbar and the view bar ("orvo.ui.status").
Q_DECLARE_LOGGING_CATEGORY(lcStatus)

void LogStatusFailure(const char* operation, const std::exception& error);

// Runs one call into the host's services for a status panel: a failure is logged at warning level
// and the panel goes on with the fallback.
template<typename Result, typename Operation>
Result CatchAtStatusBoundary(const char* operation, Result fallback, Operation&& run)
{
    try {
        return run();
    } catch (const std::exception& error) {
        LogStatusFailure(operation, error);
        return fallback;
    }
}

} // namespace Orvo::UI::UIComponents
