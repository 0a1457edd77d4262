import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents

// Properties with a fixed list of choices. Mixed values show "Mixed" until one is chosen.
BasicComboBox {
    id: root

    required property var rowModel
    required property var panel
    readonly property bool mixed: rowModel.mixedRole

    objectName: "listEditor"
    anchors.fill: parent
    model: rowModel.allValuesRole
    enabled: rowModel.isEditableRole
    displayText: mixed ? Strings.text("UI_PROPERTIES_MIXED") : currentText
    onActivated: (index) => panel.setValue(index, rowModel.uuidRole)

    Binding {
        target: root
        property: "currentIndex"
        value: root.rowModel.listIndexRole
    }
}
