#pragma once

#include <QLoggingCategory>
#include <exception>

namespace Orvo::UI::UIComponents {

// Messages of the table models ("orvo.ui.tables").
Q_DECLARE_LOGGING_CATEGORY(lcTables)

// Writes an exception caught where a table operation meets its caller (QML, a view, the feeder).
void LogCaughtException(const char* operation, const std::exception& error);

// Runs one operation of a table component for a caller that cannot take an exception: a broken
// feeder contract or a bad argument is logged at warning level and the caller gets the fallback.
template<typename Result, typename Operation>
Result CatchAtBoundary(const char* operation, Result fallback, Operation&& run)
{
    try {
        return run();
    } catch (const std::exception& error) {
        LogCaughtException(operation, error);
        return fallback;
    }
}

template<typename Operation> void CatchAtBoundary(const char* operation, Operation&& run)
{
    try {
        run();
    } catch (const std::exception& error) {
        LogCaughtException(operation, error);
    }
}

} // namespace Orvo::UI::UIComponents
