import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents

// The choice of the workstation whose tables a panel shows (the model, its loads, the results).
BasicComboBox {
    id: control
    required property TableWorkstationsModel workstationsModel

    objectName: "workstationSwitch"
    model: control.workstationsModel
    textRole: "label"
    valueRole: "id"
    currentIndex: control.workstationsModel ? control.workstationsModel.selectedIndex : -1
    onActivated: index => control.workstationsModel.selectedIndex = index
}
