import QtQuick
import BasicComponents.Constants
import UIComponents.Utilities

// The bell that opens the notification centre, with the number of unread messages on it.
Item {
    id: button
    property int unreadCount: 0
    property bool hovered: false
    property bool checked: false

    implicitWidth: 32
    implicitHeight: 28

    Rectangle {
        anchors.fill: parent
        radius: BasicConstants.sizes.radius
        color: "white"
        opacity: button.checked ? 0.3 : button.hovered ? 0.15 : 0
    }

    SvgIcon {
        anchors.centerIn: parent
        source: "qrc:/UIComponents/Notifications/images/bell.svg"
    }

    Rectangle {
        objectName: "unreadBadge"
        visible: button.unreadCount > 0
        anchors.right: parent.right
        anchors.top: parent.top
        width: Math.max(height, badgeText.implicitWidth + 6)
        height: 14
        radius: height / 2
        color: BasicConstants.colors.error

        Text {
            id: badgeText
            anchors.centerIn: parent
            text: button.unreadCount > 99 ? "99+" : button.unreadCount
            color: "white"
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            font.bold: true
        }
    }
}
