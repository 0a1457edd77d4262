#pragma once

#include "HostKitExport.h"

#include <QtQuick/private/qquickwindowmodule_p.h>

namespace Orvo::UI::QtExtensions {

// A top-level QML window without system decorations, for popups that draw their own frame
// (the marking menu, floating panels). It behaves as QML's Window otherwise.
class HOSTKIT_EXPORT FramelessWindow : public QQuickWindowQmlImpl
{
    Q_OBJECT

public:
    explicit FramelessWindow(QWindow* parent = nullptr);
};

} // namespace Orvo::UI::QtExtensions
