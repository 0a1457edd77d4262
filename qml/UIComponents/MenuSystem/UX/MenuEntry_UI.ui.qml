import QtQuick
import BasicComponents.Constants
import UIComponents.Utilities

// One entry of a menu: a check mark for a command that is on, its icon, its name, and on the
// right its shortcut or the arrow of a sub-menu.
Item {
    id: entry
    property alias labelText: label.text
    property alias iconSource: icon.source
    property alias shortcutSequence: shortcutText.sequence
    property bool checked: false
    property bool dimmed: false
    property bool opensSubmenu: false

    implicitHeight: 26
    implicitWidth: 24 + 22 + label.implicitWidth + 24 + rightSide.implicitWidth + 8

    Text {
        id: checkMark
        anchors.left: parent.left
        anchors.leftMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        visible: entry.checked
        text: "\u2713"
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        color: entry.dimmed ? BasicConstants.colors.textDisabled : BasicConstants.colors.accent
    }

    SvgIcon {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: 24
        anchors.verticalCenter: parent.verticalCenter
        opacity: entry.dimmed ? 0.4 : 1
        visible: icon.source != ""
    }

    Text {
        id: label
        anchors.left: parent.left
        anchors.leftMargin: 46
        anchors.right: rightSide.left
        anchors.rightMargin: 24
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        color: entry.dimmed ? BasicConstants.colors.textDisabled : BasicConstants.colors.text
    }

    Row {
        id: rightSide
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter

        KeyboardShortcutText {
            id: shortcutText
            opacity: entry.dimmed ? 0.5 : 1
        }

        Text {
            visible: entry.opensSubmenu
            text: "\u203a"
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.large
            color: BasicConstants.colors.textSecondary
        }
    }
}
