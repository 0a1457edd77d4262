import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents

// Text properties: stored when the user finishes typing. A mixed value shows "Mixed" as a
// placeholder and is only overwritten when the user actually typed something.
BasicTextField {
    id: root

    required property var rowModel
    required property var panel
    readonly property bool mixed: rowModel.mixedRole
    property bool edited: false

    objectName: "textEditor"
    anchors.fill: parent
    readOnly: !rowModel.isEditableRole
    placeholderText: mixed ? Strings.text("UI_PROPERTIES_MIXED") : ""

    onTextEdited: edited = true
    onEditingFinished: {
        if (edited)
            panel.setValue(text, rowModel.uuidRole)
        edited = false
    }
    // Giving up the edit hands the text back to the model's value.
    Keys.onEscapePressed: edited = false

    Binding {
        target: root
        property: "text"
        value: root.mixed ? "" : root.rowModel.valueRole
        when: !root.edited
    }
}
