import QtQuick
import BasicComponents.Constants
import UIComponents.Constants

// The caption of a first-level section: its icon and name on a pill.
Rectangle {
    id: caption
    property alias text: label.text
    property alias iconSource: icon.source
    property bool highlighted: false

    width: Math.min(row.implicitWidth + 16, 120)
    height: 26
    radius: height / 2
    color: caption.highlighted ? UIComponentsConstants.markingMenuSliceHover : UIComponentsConstants.markingMenuRing
    border.color: UIComponentsConstants.markingMenuSlice
    border.width: 1

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 5

        Image {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            sourceSize.width: 16
            sourceSize.height: 16
            visible: icon.source != ""
        }

        Text {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 120 - 16 - (icon.visible ? 21 : 0))
            elide: Text.ElideRight
            color: UIComponentsConstants.markingMenuText
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            font.bold: true
        }
    }
}
