#include "CommandsLogging.h"

namespace Orvo::UI::UIComponents {

// Trace only when asked for (QT_LOGGING_RULES="orvo.ui.commands.debug=true").
Q_LOGGING_CATEGORY(lcCommands, "orvo.ui.commands", QtInfoMsg)

} // namespace Orvo::UI::UIComponents
