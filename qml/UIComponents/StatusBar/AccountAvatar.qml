import QtQuick
import BasicComponents.Constants

// The user's avatar: a circle with the initials, or the outline of a person while the user has
// no name.
Rectangle {
    id: avatar

    property string initials

    implicitWidth: 28
    implicitHeight: 28
    radius: width / 2
    color: BasicConstants.colors.accent
    border.color: "white"
    border.width: BasicConstants.sizes.borderWidth

    Text {
        anchors.centerIn: parent
        visible: avatar.initials.length > 0
        text: avatar.initials
        color: "white"
        font.family: BasicConstants.fonts.family
        font.pixelSize: Math.round(avatar.height * 0.4)
        font.bold: true
    }

    // Head and shoulders, in proportion to the circle.
    Item {
        anchors.fill: parent
        visible: avatar.initials.length === 0
        clip: true
        Rectangle {
            x: parent.width * 0.35
            y: parent.height * 0.2
            width: parent.width * 0.3
            height: width
            radius: width / 2
            color: "white"
        }
        Rectangle {
            x: parent.width * 0.2
            y: parent.height * 0.58
            width: parent.width * 0.6
            height: parent.height * 0.5
            radius: width / 2
            color: "white"
        }
    }
}
