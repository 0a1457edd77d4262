#pragma once

#include <QLoggingCategory>
#include <exception>

namespace Orvo::UI::UIComponents {

// Messages of the notification centre ("orvo.ui.notifications").
Q_DECLARE_LOGGING_CATEGORY(lcNotifications)

void LogNotificationsFailure(const char* operation, const std::exception& error);

// Runs one call into the host for the notification centre: a failure is logged at warning level
// and the centre goes on with the fallback.
template<typename Result, typename Operation>
Result CatchAtNotificationsBoundary(const char* operation, Result fallback, Operation&& run)
{
    try {
        return run();
    } catch (const std::exception& error) {
        LogNotificationsFailure(operation, error);
        return fallback;
    }
}

} // namespace Orvo::UI::UIComponents
