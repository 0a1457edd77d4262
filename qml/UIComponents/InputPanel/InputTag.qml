import QtQuick
import Qml.QtBasicComponents
import BasicComponents.Constants

// One picked object of a command's input ("Member 12") with a button that drops it.
Rectangle {
    id: tag

    required property int index
    required property string tagText

    // The user asked to drop the object of this row.
    signal removeRequested(int row)

    objectName: "inputTag"
    implicitWidth: content.implicitWidth + 2 * BasicConstants.sizes.spacing
    implicitHeight: BasicConstants.sizes.rowHeight
    radius: height / 2
    color: BasicConstants.colors.accentLight
    border.color: BasicConstants.colors.border

    Row {
        id: content
        anchors.centerIn: parent
        spacing: 4

        BasicLabel {
            anchors.verticalCenter: parent.verticalCenter
            text: tag.tagText
        }

        Text {
            id: removeButton
            objectName: "removeTag"
            anchors.verticalCenter: parent.verticalCenter
            text: "\u00d7"
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.large
            color: removeArea.containsMouse ? BasicConstants.colors.error : BasicConstants.colors.textSecondary

            MouseArea {
                id: removeArea
                anchors.fill: parent
                anchors.margins: -3
                hoverEnabled: true
                cursorShape: Qt.PointingHandCursor
                onClicked: tag.removeRequested(tag.index)
            }
        }
    }
}
