import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.PropertiesPanel

TestCase {
    id: testCase
    name: "NumberPropertyEditor"
    width: 400
    height: 100
    when: windowShown
    visible: true

    Component {
        id: editorComponent
        NumberPropertyEditor {
            // The width an editor gets in a properties panel of 380 pixels.
            width: 183
            height: 28
            panel: QtObject {
                function setValue(value, uuid) { return true }
                function showIllustration(uuid) { }
            }
        }
    }

    function rowModel(names, unit) {
        const values = names.map((name, index) => 1 + index / 4)
        return {
            uuidRole: "factor", typeRole: 3, mixedRole: false, valueRole: values[0],
            minRole: 0, maxRole: 10, decimalsRole: 2, unitsRole: unit, isEditableRole: true,
            parametersNamesRole: names, parametersValuesRole: values, selectedParametersIndicesRole: [0]
        }
    }

    // The button names the value's parameter: it shows the name whole, taking room from the
    // number field, which keeps enough to show a number with its unit.
    function test_parameterNameShownWhole_data() {
        return [
            { tag: "short grade name", names: ["S235", "S355"], unit: "MPa", whole: true },
            { tag: "word of nine letters", names: ["Permanent", "Variable"], unit: "", whole: true },
            { tag: "word with a unit beside the number", names: ["Permanent", "Variable"], unit: "kN", whole: true },
            { tag: "name longer than the row", names: ["Permanent and accidental situations", "Other"], unit: "", whole: false }
        ]
    }

    function test_parameterNameShownWhole(data) {
        const editor = createTemporaryObject(editorComponent, testCase, { rowModel: rowModel(data.names, data.unit) })
        const button = findChild(editor, "parameterButton")
        const field = findChild(editor, "numberEditor")
        verify(button.visible)
        compare(button.text, data.names[0])
        waitForRendering(editor)
        compare(button.contentItem.truncated, !data.whole)
        verify(field.width >= 96, "number field " + field.width + " px wide")
        verify(button.x >= field.x + field.width)
    }
}
