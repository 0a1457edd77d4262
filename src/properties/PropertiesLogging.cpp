#include "PropertiesLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcProperties, "orvo.ui.properties")

} // namespace Orvo::UI::UIComponents
