#pragma once

#include "qtextensions/UIComponent.h"

#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The native half of the graphic view panel: its document lays out the handle bar, the
// viewport and the rubber band. The base is named in full: the QML type description finds
// base classes by their full name.
class GraphicView : public Orvo::UI::QtExtensions::UIComponent
{
    Q_OBJECT
    QML_NAMED_ELEMENT(GraphicView_Cpp)

public:
    // Built without a parent item, as every panel root: QML places it.
    explicit GraphicView(QQuickItem* parent = nullptr);
};

} // namespace Orvo::UI::UIComponents
