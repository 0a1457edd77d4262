import QtQuick
import BasicComponents.Constants
import UIComponents.Utilities

// One result of the spotlight: icon, title, what it is or where it lives, and its shortcut.
Rectangle {
    id: result
    property alias titleText: titleLabel.text
    property alias detailText: detailLabel.text
    property alias iconSource: icon.source
    property alias shortcutSequence: shortcutText.sequence
    property alias hint: hintLabel.text
    property bool current: false
    property bool dimmed: false

    height: 30
    color: result.current ? BasicConstants.colors.selection : "transparent"
    radius: BasicConstants.sizes.radius

    SvgIcon {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        opacity: result.dimmed ? 0.4 : 1
        visible: icon.source != ""
    }

    Text {
        id: titleLabel
        anchors.left: parent.left
        anchors.leftMargin: 32
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, parent.width * 0.5)
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        color: result.dimmed ? BasicConstants.colors.textDisabled : BasicConstants.colors.text
    }

    Text {
        id: detailLabel
        anchors.left: titleLabel.right
        anchors.leftMargin: 10
        anchors.right: rightSide.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.small
        color: BasicConstants.colors.textSecondary
    }

    Row {
        id: rightSide
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        Text {
            id: hintLabel
            visible: result.current && text.length > 0
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            color: BasicConstants.colors.accent
        }

        KeyboardShortcutText {
            id: shortcutText
        }
    }
}
