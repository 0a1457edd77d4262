#include "FileDropLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcFileDrop, "orvo.ui.filedrop")

void LogFileDropFailure(const char* operation, const std::exception& error)
{
    qCWarning(lcFileDrop, "%s: %s", operation, error.what());
}

} // namespace Orvo::UI::UIComponents
