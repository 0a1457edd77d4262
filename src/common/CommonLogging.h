#pragma once

#include <QLoggingCategory>
#include <QString>

namespace Orvo::UI::UIComponents {

// Messages of the combo-box and selection helpers ("orvo.ui.common").
Q_DECLARE_LOGGING_CATEGORY(lcCommon)

// Reports what a document asked of a helper that it cannot do (a role the model does not have):
// the helper carries on with its fallback, the document's author learns why from the log.
void WarnAtComboBoxBoundary(const char* component, const QString& problem);

} // namespace Orvo::UI::UIComponents
