import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The search field of the component library's lists: a magnifier, a hint while empty, a button
// that clears it, and Escape that clears it too; Escape in the empty field is left to whatever
// holds the field (it closes the list) through escapedEmpty.
BasicTextField {
    id: field

    // Escape was pressed while the field was empty.
    signal escapedEmpty()

    placeholderText: Strings.text("UI_COMMON_SEARCH")
    leftPadding: 24
    rightPadding: clearButton.visible ? 24 : 6

    Keys.onEscapePressed: event => {
        if (field.text.length > 0) {
            field.clear()
            event.accepted = true
        } else {
            event.accepted = false
            field.escapedEmpty()
        }
    }

    Text {
        anchors.left: parent.left
        anchors.leftMargin: 7
        anchors.verticalCenter: parent.verticalCenter
        text: "\u2315"
        color: BasicConstants.colors.textSecondary
        font.pixelSize: BasicConstants.fonts.large
    }

    Text {
        id: clearButton
        objectName: "clearSearch"
        anchors.right: parent.right
        anchors.rightMargin: 7
        anchors.verticalCenter: parent.verticalCenter
        visible: field.text.length > 0
        text: "\u00d7"
        color: clearArea.containsMouse ? BasicConstants.colors.text : BasicConstants.colors.textSecondary
        font.pixelSize: BasicConstants.fonts.large

        MouseArea {
            id: clearArea
            anchors.fill: parent
            anchors.margins: -4
            hoverEnabled: true
            cursorShape: Qt.ArrowCursor
            onClicked: {
                field.clear()
                field.forceActiveFocus()
            }
        }
    }
}
