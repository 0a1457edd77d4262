import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The units of the status bar: one row per quantity with the units the host offers for it.
Popup {
    id: unitsPopup

    required property UnitsSubDataModel units

    padding: BasicConstants.sizes.margin
    background: Rectangle {
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.border
        radius: BasicConstants.sizes.radius
    }

    GridLayout {
        columns: 2
        rowSpacing: BasicConstants.sizes.spacing
        columnSpacing: BasicConstants.sizes.margin

        Repeater {
            model: unitsPopup.units.quantities
            delegate: Text {
                required property var modelData
                Layout.row: modelData.quantity
                Layout.column: 0
                text: modelData.name
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: BasicConstants.colors.text
            }
        }
        Repeater {
            model: unitsPopup.units.quantities
            delegate: BasicComboBox {
                id: unitChoice
                required property var modelData
                objectName: "unitChoice" + modelData.quantity
                Layout.row: modelData.quantity
                Layout.column: 1
                Layout.preferredWidth: 90
                model: modelData.choices
                currentIndex: modelData.choices.indexOf(modelData.unit)
                onActivated: index => unitsPopup.units.setUnit(unitChoice.modelData.quantity,
                                                          unitChoice.modelData.choices[index])
            }
        }
    }
}
