#pragma once

#include <QLoggingCategory>

namespace Orvo::UI::UIComponents {

Q_DECLARE_LOGGING_CATEGORY(lcProperties)

} // namespace Orvo::UI::UIComponents
