import QtQuick
import BasicComponents.Constants

// One message: a bar in the colour of its severity, title and time, the text, and a row for
// the action buttons (actionsRow) that the dev component fills.
Rectangle {
    id: item
    property alias titleText: titleLabel.text
    property alias messageText: messageLabel.text
    property alias timeText: timeLabel.text
    property alias closeText: closeLabel.text
    property color severityColor: BasicConstants.colors.accent
    property bool unread: false
    property alias actionsRow: actions
    property alias closeArea: closeMouse

    implicitHeight: column.implicitHeight + 2 * BasicConstants.sizes.margin
    radius: BasicConstants.sizes.radius
    color: item.unread ? BasicConstants.colors.hover : BasicConstants.colors.panel
    border.color: BasicConstants.colors.border

    Rectangle {
        width: 4
        height: parent.height
        radius: 2
        color: item.severityColor
    }

    Column {
        id: column
        x: 14
        y: BasicConstants.sizes.margin
        width: parent.width - 14 - BasicConstants.sizes.margin
        spacing: 4

        Item {
            width: parent.width
            height: titleLabel.implicitHeight

            Text {
                id: titleLabel
                anchors.left: parent.left
                anchors.right: timeLabel.left
                anchors.rightMargin: 8
                elide: Text.ElideRight
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                font.bold: item.unread
                color: BasicConstants.colors.text
            }

            Text {
                id: timeLabel
                anchors.right: closeLabel.left
                anchors.rightMargin: 8
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.small
                color: BasicConstants.colors.textSecondary
            }

            Text {
                id: closeLabel
                anchors.right: parent.right
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.small
                color: closeMouse.containsMouse ? BasicConstants.colors.accent : BasicConstants.colors.textSecondary

                MouseArea {
                    id: closeMouse
                    anchors.fill: parent
                    hoverEnabled: true
                }
            }
        }

        Text {
            id: messageLabel
            width: parent.width
            visible: text.length > 0
            wrapMode: Text.Wrap
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            color: BasicConstants.colors.textSecondary
        }

        Row {
            id: actions
            spacing: BasicConstants.sizes.spacing
        }
    }
}
