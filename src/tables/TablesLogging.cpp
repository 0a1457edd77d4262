#include "TablesLogging.h"

namespace Orvo::UI::UIComponents {

Q_LOGGING_CATEGORY(lcTables, "orvo.ui.tables")

} // namespace Orvo::UI::UIComponents
