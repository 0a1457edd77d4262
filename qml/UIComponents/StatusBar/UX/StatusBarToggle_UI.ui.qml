import QtQuick
import BasicComponents.Constants

// A compact switch of the status bar: its text on a flat cell, marked while on.
Rectangle {
    id: toggle
    property alias text: label.text
    property bool checked: false
    property bool hovered: false

    implicitWidth: label.implicitWidth + 2 * BasicConstants.sizes.spacing
    implicitHeight: BasicConstants.sizes.rowHeight - 4
    radius: BasicConstants.sizes.radius
    color: toggle.checked ? BasicConstants.colors.accentLight
                          : toggle.hovered ? BasicConstants.colors.hover : "transparent"
    border.color: toggle.checked ? BasicConstants.colors.accent : "transparent"

    Text {
        id: label
        anchors.centerIn: parent
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.small
        color: toggle.checked ? BasicConstants.colors.accent : BasicConstants.colors.textSecondary
    }
}
