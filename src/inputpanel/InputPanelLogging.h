#pragma once

#include <QLoggingCategory>
#include <exception>

namespace Orvo::UI::UIComponents {

// Messages of the command input panel ("orvo.ui.inputpanel").
Q_DECLARE_LOGGING_CATEGORY(lcInputPanel)

void LogInputPanelFailure(const char* operation, const std::exception& error);

// Runs one operation of the input panel for a caller that cannot take an exception (QML, the
// host's configuration loading): the failure is logged at warning level and the caller gets the
// fallback.
template<typename Result, typename Operation>
Result CatchAtInputPanelBoundary(const char* operation, Result fallback, Operation&& run)
{
    try {
        return run();
    } catch (const std::exception& error) {
        LogInputPanelFailure(operation, error);
        return fallback;
    }
}

} // namespace Orvo::UI::UIComponents
