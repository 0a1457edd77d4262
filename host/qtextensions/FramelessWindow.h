#pragma once

#include "HostKitExport.h"

#include <QtQuick/private/qquickwindowmodule_p.h>

namespace Orvo::UI::QtExtensions {

// A top-level QML window without system decorations, for popups that draw their own frame
// (the marking menu, floating panels). It behaves as QML's Window otherwise.
//
// A popup that opens in the middle of a mouse gesture (the button went down in another
// window) cannot rely on its items: they never saw the press, so they are not sent the moves
// and the release. The window therefore reports every pointer move and button release it
// receives, and with grabsPointer set it takes the pointer while it is shown, so those events
// come to it rather than to the window where the gesture began.
class HOSTKIT_EXPORT FramelessWindow : public QQuickWindowQmlImpl
{
    Q_OBJECT
    Q_PROPERTY(bool grabsPointer READ grabsPointer WRITE setGrabsPointer NOTIFY grabsPointerChanged)

public:
    explicit FramelessWindow(QWindow* parent = nullptr);

    bool grabsPointer() const;
    void setGrabsPointer(bool grabsPointer);

signals:
    void grabsPointerChanged();
    // position in window coordinates.
    void pointerMoved(QPointF position);
    void pointerReleased(QPointF position, int button);

protected:
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void UpdatePointerGrab();

    bool m_grabsPointer = false;
};

} // namespace Orvo::UI::QtExtensions
