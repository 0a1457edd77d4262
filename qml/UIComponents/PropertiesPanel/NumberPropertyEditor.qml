import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Common

// Integer and real properties: a numeric input that also takes "=" expressions, with the
// property's units, decimals and bounds. Named values (a steel grade's yield strength) are
// offered from a small menu; the one the value matches names the menu button.
Item {
    id: root

    required property var rowModel
    required property var panel
    readonly property bool mixed: rowModel.mixedRole
    readonly property var parameterNames: rowModel.parametersNamesRole
    readonly property var parameterValues: rowModel.parametersValuesRole
    // The number field keeps room for a few digits and the unit; the parameter button takes the
    // rest, so that a name such as "Permanent" shows whole.
    readonly property real minimumFieldWidth: 96
    readonly property int matchedParameter: {
        const indices = rowModel.selectedParametersIndicesRole
        return indices.length === 1 ? indices[0] : -1
    }

    function commit(number) {
        if (!panel.setValue(number, rowModel.uuidRole))
            input.value = Qt.binding(() => root.mixed ? NaN : root.rowModel.valueRole)
    }

    NumericInput {
        id: input
        objectName: "numberEditor"
        anchors { left: parent.left; right: parameterButton.visible ? parameterButton.left : parent.right; verticalCenter: parent.verticalCenter }
        anchors.rightMargin: parameterButton.visible ? 2 : 0
        integer: root.rowModel.typeRole === 2
        minimum: root.rowModel.minRole
        maximum: root.rowModel.maxRole
        decimals: root.rowModel.decimalsRole
        unit: root.rowModel.unitsRole
        unitMinimumWidth: 44
        enabled: root.rowModel.isEditableRole
        placeholderText: root.mixed ? Strings.text("UI_PROPERTIES_MIXED") : ""
        onValueAccepted: (number) => root.commit(number)
    }

    // The input writes its own value when the user accepts; the model's value has to win
    // whenever it changes afterwards.
    Binding {
        target: input
        property: "value"
        value: root.mixed ? NaN : root.rowModel.valueRole
    }

    BasicButton {
        id: parameterButton
        objectName: "parameterButton"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        visible: root.parameterNames.length > 0
        width: visible ? Math.max(0, Math.min(Math.max(implicitWidth, 28), root.width - root.minimumFieldWidth - 2)) : 0
        leftPadding: 4
        rightPadding: 4
        enabled: root.rowModel.isEditableRole
        text: root.matchedParameter >= 0 ? root.parameterNames[root.matchedParameter] : "\u2026"
        onClicked: parameterMenu.popup(parameterButton, 0, parameterButton.height)

        Controls.Menu {
            id: parameterMenu
            objectName: "parameterMenu"
            Repeater {
                // Each entry names the value with its number; choosing one is taken up here.
                model: root.parameterNames.map((name, index) => name + "  ("
                    + root.parameterValues[index].toLocaleString(Qt.locale(), 'f', root.rowModel.decimalsRole)
                    + (root.rowModel.unitsRole.length > 0 ? " " + root.rowModel.unitsRole : "") + ")")
                onItemAdded: (index, item) => item.triggered.connect(
                    () => root.panel.setValue(root.parameterValues[index], root.rowModel.uuidRole))

                Controls.MenuItem {
                    required property string modelData
                    required property int index
                    objectName: "parameter_" + index
                    text: modelData
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                }
            }
        }
    }
}
