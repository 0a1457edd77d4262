#pragma once

#include <QLoggingCategory>
#include <exception>

namespace Orvo::UI::UIComponents {

// Messages of the spotlight search ("orvo.ui.spotlight").
Q_DECLARE_LOGGING_CATEGORY(lcSpotlight)

void LogSpotlightFailure(const char* operation, const std::exception& error);

// Runs one call into the host's services for the search: a service that fails is logged at
// warning level and the search goes on with the fallback (what that service would have added).
template<typename Result, typename Operation>
Result CatchAtSpotlightBoundary(const char* operation, Result fallback, Operation&& run)
{
    try {
        return run();
    } catch (const std::exception& error) {
        LogSpotlightFailure(operation, error);
        return fallback;
    }
}

} // namespace Orvo::UI::UIComponents
