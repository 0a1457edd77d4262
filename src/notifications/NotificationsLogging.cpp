#include "NotificationsLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcNotifications, "orvo.ui.notifications")

void LogNotificationsFailure(const char* operation, const std::exception& error)
{
    qCWarning(lcNotifications, "%s: %s", operation, error.what());
}

} // namespace Orvo::UI::UIComponents
