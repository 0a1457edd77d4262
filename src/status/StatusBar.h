#pragma once

#include "StatusBarDataModel.h"
#include "qtextensions/UIComponent.h"

#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The native half of the status bar along the foot of the application window: the pointer's
// coordinates, the view's scale, the object snaps, the units, the active work plane and load
// case, and the progress of the analysis.
class StatusBar : public Orvo::UI::QtExtensions::UIComponent
{
    Q_OBJECT
    QML_NAMED_ELEMENT(StatusBar_Cpp)
    Q_PROPERTY(Orvo::UI::UIComponents::StatusBarDataModel* statusbarData READ statusbarData CONSTANT)

public:
    explicit StatusBar(QQuickItem* parent = nullptr);

    StatusBarDataModel* statusbarData() const { return m_data; }

private:
    StatusBarDataModel* m_data;
};

} // namespace Orvo::UI::UIComponents
