import QtQuick
import Qml.QtBasicComponents
import BasicComponents.Constants

// A toggle of the centre's severity filter, from the buttons' list (severity, text, checked).
BasicButton {
    id: button

    required property var modelData

    // The user pressed the button of this severity.
    signal toggledSeverity(int severity)

    objectName: "severityButton_" + button.modelData.severity
    text: button.modelData.text
    checkable: true
    checked: button.modelData.checked
    onClicked: button.toggledSeverity(button.modelData.severity)
    background: Rectangle {
        radius: height / 2
        color: button.checked ? BasicConstants.colors.accentLight
                              : button.hovered ? BasicConstants.colors.hover : BasicConstants.colors.panel
        border.color: button.checked ? BasicConstants.colors.accent : BasicConstants.colors.border
    }
}
