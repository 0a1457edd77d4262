#pragma once

#include "qtextensions/FramelessWindow.h"

#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The host's frameless window is registered in this module under its own name. Declaring it here
// puts it, with its properties and signals, into the module's type description.
struct FramelessWindowForeign
{
    Q_GADGET
    QML_FOREIGN(Orvo::UI::QtExtensions::FramelessWindow)
    QML_NAMED_ELEMENT(FramelessWindow)
};

} // namespace Orvo::UI::UIComponents
