#include "ViewportLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcViewport, "orvo.ui.viewport", QtInfoMsg)

} // namespace Orvo::UI::UIComponents
