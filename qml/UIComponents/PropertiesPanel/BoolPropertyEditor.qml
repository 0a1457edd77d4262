import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents

// Yes/no properties. Mixed values show the partly checked state; a click sets every object.
Item {
    id: root

    required property var rowModel
    required property var panel
    readonly property bool mixed: rowModel.mixedRole

    // Left-aligned with the other editors: a check box without text centres its box otherwise.
    BasicCheckBox {
        id: checkBox
        objectName: "boolEditor"
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        leftPadding: 0
        enabled: root.rowModel.isEditableRole
        text: root.mixed ? Strings.text("UI_PROPERTIES_MIXED") : ""
        nextCheckState: () => checkState === Qt.Checked ? Qt.Unchecked : Qt.Checked
        onToggled: root.panel.setValue(checkState === Qt.Checked, root.rowModel.uuidRole)

        Binding {
            target: checkBox
            property: "checkState"
            value: root.mixed ? Qt.PartiallyChecked : (root.rowModel.valueRole ? Qt.Checked : Qt.Unchecked)
        }
    }
}
