#pragma once

#include <QLoggingCategory>

namespace Orvo::UI::UIComponents {

// Messages of the table models ("orvo.ui.tables").
Q_DECLARE_LOGGING_CATEGORY(lcTables)

} // namespace Orvo::UI::UIComponents
