import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents
import BasicComponents.Constants

// Two segments: the basic properties only, or every property.
Rectangle {
    id: root

    property bool basic: true
    signal switched(bool basic)

    implicitWidth: row.implicitWidth + 2
    implicitHeight: BasicConstants.sizes.controlHeight
    radius: BasicConstants.sizes.radius
    color: BasicConstants.colors.panel
    border.color: BasicConstants.colors.border

    component Segment: Controls.AbstractButton {
        id: segment
        property bool selected: false
        implicitWidth: label.implicitWidth + 2 * BasicConstants.sizes.margin
        implicitHeight: BasicConstants.sizes.controlHeight - 2
        checkable: false
        background: Rectangle {
            radius: BasicConstants.sizes.radius
            color: segment.selected ? BasicConstants.colors.accent : segment.hovered ? BasicConstants.colors.hover : "transparent"
        }
        contentItem: Text {
            id: label
            text: segment.text
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            color: segment.selected ? "white" : BasicConstants.colors.text
        }
    }

    Row {
        id: row
        anchors.centerIn: parent
        Segment {
            objectName: "basicModeButton"
            text: Strings.text("UI_PROPERTIES_BASIC")
            selected: root.basic
            onClicked: root.switched(true)
        }
        Segment {
            objectName: "advancedModeButton"
            text: Strings.text("UI_PROPERTIES_ADVANCED")
            selected: !root.basic
            onClicked: root.switched(false)
        }
    }
}
