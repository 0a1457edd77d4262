import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Common

TestCase {
    id: testCase
    name: "CoordinatesInput"
    width: 500
    height: 200
    when: windowShown
    visible: true

    Component {
        id: inputComponent
        CoordinatesInput { width: 400 }
    }

    function test_typing_data() {
        return [
            { tag: "three plain values", typed: "1 2 3", stored: [1, 2, 3] },
            { tag: "semicolons and units", typed: "1;2;500mm", stored: [1, 2, 0.5] },
            { tag: "expressions after an equals sign", typed: "=1+1 2*3 4", stored: [2, 6, 4] },
            { tag: "one value too many", typed: "=1 2 3 4", message: "This field takes 3 values (x, y, z); there are 4" },
            { tag: "one value too few", typed: "1 2", message: "This field takes 3 values (x, y, z); there are 2" },
            { tag: "a value that is no expression", typed: "1 a 3", message: "The value of y is no valid expression" }
        ]
    }

    function test_typing(data) {
        const input = createTemporaryObject(inputComponent, testCase)
        const field = findChild(input, "coordinatesField")
        field.forceActiveFocus()
        field.text = data.typed
        keyClick(Qt.Key_Return)
        const accepted = data.stored !== undefined
        compare(input.acceptable, accepted)
        compare(input.message, accepted ? "" : data.message)
        compare(field.invalid, !accepted)
        if (accepted) {
            compare(input.values.length, 3)
            for (let i = 0; i < 3; ++i)
                fuzzyCompare(input.values[i], data.stored[i], 1e-12)
        } else {
            compare(input.values.length, 0, "nothing is stored")
        }
    }
}
