import QtQuick
import QtQuick.Layouts
import BasicComponents.Constants

// A titled panel frame: header bar above whatever the panel puts in it.
Rectangle {
    id: panel
    property alias title: titleText.text
    default property alias content: body.data

    color: BasicConstants.colors.panel
    border.color: BasicConstants.colors.border
    radius: BasicConstants.sizes.radius

    Rectangle {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 1 }
        height: titleText.text.length > 0 ? BasicConstants.sizes.controlHeight : 0
        visible: height > 0
        color: BasicConstants.colors.panelHeader
        Text {
            id: titleText
            anchors { fill: parent; leftMargin: BasicConstants.sizes.margin }
            verticalAlignment: Text.AlignVCenter
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            font.bold: true
            color: BasicConstants.colors.text
            elide: Text.ElideRight
        }
    }
    Item {
        id: body
        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: parent.bottom; margins: 1 }
    }
}
