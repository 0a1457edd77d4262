#include "GraphicView.h"

#include "framework/Debug.h"

namespace Orvo::UI::UIComponents {

GraphicView::GraphicView(QQuickItem*)
    : UIComponent(nullptr)
{
    Kernel::Framework::DebugOutput("Cpp GraphicView created.");
}

} // namespace Orvo::UI::UIComponents
