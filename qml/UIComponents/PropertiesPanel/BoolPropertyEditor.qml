import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// Yes/no properties. Mixed values show the partly checked state; a click sets every object.
BasicCheckBox {
    id: root

    required property var rowModel
    required property var panel
    readonly property bool mixed: rowModel.mixedRole

    objectName: "boolEditor"
    anchors.verticalCenter: parent ? parent.verticalCenter : undefined
    enabled: rowModel.isEditableRole
    text: mixed ? Strings.text("UI_PROPERTIES_MIXED") : ""
    nextCheckState: () => checkState === Qt.Checked ? Qt.Unchecked : Qt.Checked
    onToggled: panel.setValue(checkState === Qt.Checked, rowModel.uuidRole)

    Binding {
        target: root
        property: "checkState"
        value: root.mixed ? Qt.PartiallyChecked : (root.rowModel.valueRole ? Qt.Checked : Qt.Unchecked)
    }
}
