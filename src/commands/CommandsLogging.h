#pragma once

#include <QLoggingCategory>

namespace Orvo::UI::UIComponents {

// The command surfaces' own trace (shortcut lists read, shortcuts switched on and off);
// failures go to the host's debugger output.
Q_DECLARE_LOGGING_CATEGORY(lcCommands)

} // namespace Orvo::UI::UIComponents
