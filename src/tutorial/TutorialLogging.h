#pragma once

#include <QLoggingCategory>
#include <exception>

namespace Orvo::UI::UIComponents {

// Messages of the guided tour ("orvo.ui.tutorial").
Q_DECLARE_LOGGING_CATEGORY(lcTutorial)

void LogTutorialFailure(const char* operation, const std::exception& error);

// Runs one call into the host for the guided tour: a failure is logged at warning level and the
// tour goes on with the fallback.
template<typename Result, typename Operation>
Result CatchAtTutorialBoundary(const char* operation, Result fallback, Operation&& run)
{
    try {
        return run();
    } catch (const std::exception& error) {
        LogTutorialFailure(operation, error);
        return fallback;
    }
}

} // namespace Orvo::UI::UIComponents
