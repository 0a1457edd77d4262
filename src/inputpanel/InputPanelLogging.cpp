#include "InputPanelLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcInputPanel, "orvo.ui.inputpanel")

void LogInputPanelFailure(const char* operation, const std::exception& error)
{
    qCWarning(lcInputPanel).nospace() << operation << ": " << error.what();
}

} // namespace Orvo::UI::UIComponents
