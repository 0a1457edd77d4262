import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.StatusBar

// The status bar's units, chosen in its pop-up the way a user does: open a unit list and pick.
TestCase {
    id: testCase
    name: "UnitsPopup"
    width: 400
    height: 400
    when: windowShown
    visible: true

    UnitsSubDataModel { id: unitsModel }

    Component {
        id: popupComponent
        UnitsPopup { units: unitsModel; x: 20; y: 20 }
    }

    function findNamed(item, name) {
        if (!item)
            return null
        if (item.objectName === name)
            return item
        for (let i = 0; i < item.children.length; ++i) {
            const found = findNamed(item.children[i], name)
            if (found)
                return found
        }
        return null
    }

    function test_pickedUnitIsShown() {
        const popup = createTemporaryObject(popupComponent, testCase)
        popup.open()
        tryCompare(popup, "opened", true)
        const before = unitsModel.lengthUnit
        const choice = findNamed(popup.contentItem, "unitChoice" + UnitsSubDataModel.Length)
        verify(choice)
        const other = choice.model.find(unit => unit !== before)
        verify(other)

        mouseClick(choice)
        tryCompare(choice.popup, "opened", true)
        const row = choice.model.indexOf(other)
        choice.popup.contentItem.positionViewAtIndex(row, ListView.Contain)
        const item = choice.popup.contentItem.itemAtIndex(row)
        verify(item)
        mouseClick(item)

        tryCompare(unitsModel, "lengthUnit", other)
        compare(choice.currentText, other)
        unitsModel.setUnit(UnitsSubDataModel.Length, before)
    }
}
