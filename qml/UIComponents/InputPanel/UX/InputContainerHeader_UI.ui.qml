import QtQuick
import BasicComponents.Constants

// The header of one container of the input panel: a fold arrow and the group's name.
Rectangle {
    id: header
    property alias titleText: title.text
    property bool folded: false

    implicitHeight: 24
    color: BasicConstants.colors.panelHeader

    Text {
        id: arrow
        anchors.left: parent.left
        anchors.leftMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        text: header.folded ? "\u25b8" : "\u25be"
        font.pixelSize: BasicConstants.fonts.normal
        color: BasicConstants.colors.textSecondary
    }

    Text {
        id: title
        anchors.left: arrow.right
        anchors.leftMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        font.bold: true
        color: BasicConstants.colors.text
    }
}
