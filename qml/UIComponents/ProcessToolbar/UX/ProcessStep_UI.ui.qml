import QtQuick
import BasicComponents.Constants

// One step of the process toolbar: its title over a mark of its state. The current step is
// underlined; done is green, needs an update amber, error red, running blue.
Rectangle {
    id: step
    property alias text: label.text
    // Only the state's mark, where the toolbar is narrow.
    property bool compact: false
    property color stateColor: BasicConstants.colors.border
    property bool current: false
    property bool hovered: false

    implicitWidth: step.compact ? 30 : Math.max(90, label.implicitWidth + 2 * BasicConstants.sizes.margin + 16)
    implicitHeight: 34
    color: step.hovered ? BasicConstants.colors.hover : "transparent"
    radius: BasicConstants.sizes.radius

    Rectangle {
        id: mark
        width: 10
        height: 10
        radius: 5
        color: step.stateColor
        anchors { left: parent.left; leftMargin: BasicConstants.sizes.margin; verticalCenter: parent.verticalCenter }
    }
    Text {
        id: label
        anchors { left: mark.right; leftMargin: BasicConstants.sizes.spacing; verticalCenter: parent.verticalCenter }
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        font.bold: step.current
        visible: !step.compact
        color: BasicConstants.colors.text
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 2
        visible: step.current
        color: BasicConstants.colors.accent
    }
}
