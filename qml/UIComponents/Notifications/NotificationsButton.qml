import QtQuick
import QtQuick.Controls.Basic
import Qml.QtComponents

// The bell of the notification centre: shows the unread count and opens or closes the centre.
NotificationsButton_UI {
    id: bell

    // The centre the bell belongs to.
    required property Notifications centre

    unreadCount: bell.centre.notificationsModel.unreadCount
    checked: bell.centre.centreOpen
    hovered: mouse.containsMouse

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        onClicked: bell.centre.toggleCentre()
    }

    ToolTip.visible: mouse.containsMouse
    ToolTip.delay: 600
    ToolTip.text: Strings.text("UI_NOTIFICATIONS_BUTTON_TOOLTIP")
}
