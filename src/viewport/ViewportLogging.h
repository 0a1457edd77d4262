#pragma once

#include <QLoggingCategory>

namespace Orvo::UI::UIComponents {

// Messages of the viewport item ("orvo.ui.viewport").
Q_DECLARE_LOGGING_CATEGORY(lcViewport)

} // namespace Orvo::UI::UIComponents
