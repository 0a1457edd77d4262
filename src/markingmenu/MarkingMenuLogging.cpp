#include "MarkingMenuLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcMarkingMenu, "orvo.ui.markingmenu")

} // namespace Orvo::UI::UIComponents
