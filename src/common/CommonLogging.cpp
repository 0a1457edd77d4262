#include "CommonLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcCommon, "orvo.ui.common")

void WarnAtComboBoxBoundary(const char* component, const QString& problem)
{
    qCWarning(lcCommon, "%s: %s", component, qUtf8Printable(problem));
}

} // namespace Orvo::UI::UIComponents
