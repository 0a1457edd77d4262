#include "StatusBar.h"

namespace Orvo::UI::UIComponents {

StatusBar::StatusBar(QQuickItem* parent)
    : UIComponent(parent)
    , m_data(new StatusBarDataModel(this))
{ }

} // namespace Orvo::UI::UIComponents
