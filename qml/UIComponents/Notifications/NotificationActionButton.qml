import QtQuick
import Qml.QtBasicComponents

// One action of a message, from the message's list of actions (key and text).
BasicButton {
    id: button

    required property var modelData

    // The user chose the action.
    signal chosen(string key)

    objectName: "notificationAction_" + button.modelData.key
    text: button.modelData.text
    onClicked: button.chosen(button.modelData.key)
}
