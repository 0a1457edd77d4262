#include "TutorialLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcTutorial, "orvo.ui.tutorial")

void LogTutorialFailure(const char* operation, const std::exception& error)
{
    qCWarning(lcTutorial, "%s: %s", operation, error.what());
}

} // namespace Orvo::UI::UIComponents
