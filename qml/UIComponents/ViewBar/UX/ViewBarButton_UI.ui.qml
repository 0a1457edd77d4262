import QtQuick
import BasicComponents.Constants

// A button of the view bar: flat, marked while its display option is on, with a pin mark when
// the user pinned it.
Rectangle {
    id: button
    property alias text: label.text
    property bool checked: false
    property bool hovered: false
    property bool pinned: false
    property bool active: true

    implicitHeight: BasicConstants.sizes.controlHeight
    radius: BasicConstants.sizes.radius
    color: button.checked ? BasicConstants.colors.accentLight
                          : button.hovered && button.active ? BasicConstants.colors.hover : "transparent"
    border.color: button.checked ? BasicConstants.colors.accent : BasicConstants.colors.border

    Text {
        id: label
        anchors.centerIn: parent
        width: parent.width - 8
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        color: button.active ? BasicConstants.colors.text : BasicConstants.colors.textDisabled
    }
    Rectangle {
        width: 5
        height: 5
        radius: 2.5
        visible: button.pinned
        color: BasicConstants.colors.accent
        anchors { right: parent.right; top: parent.top; margins: 3 }
    }
}
