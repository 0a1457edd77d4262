import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.PropertiesPanel

// Values offered in an editor's pop-up reach the panel as the value of the row's property.
TestCase {
    id: testCase
    name: "PropertyEditors"
    width: 400
    height: 300
    when: windowShown
    visible: true

    QtObject {
        id: recorder
        property var calls: []
        function setValue(value, uuid, action) { calls = calls.concat([{ value: value, uuid: uuid, action: action }]); return true }
        function showIllustration(uuid) { }
    }

    Component { id: numberEditor; NumberPropertyEditor { width: 300; height: 28; panel: recorder } }
    Component { id: colorEditor; ColorPropertyEditor { width: 300; height: 28; panel: recorder } }
    Component { id: mixedButton; MixedValuesButton { width: 28; height: 28; panel: recorder } }

    function init() {
        recorder.calls = []
    }

    function row(fields) {
        return Object.assign({
            uuidRole: "row", typeRole: 3, mixedRole: false, valueRole: 1, minRole: 0, maxRole: 100,
            decimalsRole: 2, unitsRole: "", isEditableRole: true, parametersNamesRole: [],
            parametersValuesRole: [], selectedParametersIndicesRole: [], mixedValuesRole: []
        }, fields)
    }

    // opener: the object name of what opens the pop-up; popup: the pop-up's object name.
    function test_choiceSetsTheValue_data() {
        return [
            { tag: "named parameter", component: numberEditor, opener: "parameterButton", popup: "parameterMenu",
              row: { parametersNamesRole: ["S235", "S355", "S460"], parametersValuesRole: [235, 355, 460] },
              entry: "parameter_1", value: 355, action: undefined },
            { tag: "palette colour", component: colorEditor, opener: "colorEditor", popup: "colorPopup",
              row: { typeRole: 6, mixedValuesRole: ["#1f6feb"] },
              entry: "paletteColor_#d1242f", value: "#d1242f", action: undefined },
            { tag: "one of mixed values", component: mixedButton, opener: "", popup: "mixedValuesPopup",
              row: { mixedRole: true, mixedValuesRole: [2.5, 4, { action: PropertiesModel.ResetToDefaultAction }] },
              entry: "mixedValue_1", value: 4, action: undefined },
            { tag: "action after mixed values", component: mixedButton, opener: "", popup: "mixedValuesPopup",
              row: { mixedRole: true, mixedValuesRole: [2.5, 4, { action: PropertiesModel.ResetToDefaultAction }] },
              entry: "mixedValue_2", value: undefined, action: PropertiesModel.ResetToDefaultAction }
        ]
    }

    function test_choiceSetsTheValue(data) {
        const editor = createTemporaryObject(data.component, testCase, { rowModel: row(data.row) })
        verify(editor)
        mouseClick(data.opener.length > 0 ? findChild(editor, data.opener) : editor)
        const popup = findChild(editor, data.popup)
        tryVerify(() => popup.opened)
        let entry = null
        tryVerify(() => (entry = findChild(popup.contentItem, data.entry)) !== null)
        waitForRendering(entry)
        mouseClick(entry)
        compare(recorder.calls.length, 1)
        compare(recorder.calls[0].uuid, "row")
        compare(recorder.calls[0].value, data.value)
        compare(recorder.calls[0].action, data.action)
    }
}
