import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Common

TestCase {
    id: testCase
    name: "NumericInput"
    width: 400
    height: 200
    when: windowShown
    visible: true

    Component {
        id: inputComponent
        NumericInput { width: 200; unit: "m"; minimum: 0; maximum: 50 }
    }

    Component {
        id: spyComponent
        SignalSpy { signalName: "valueAccepted" }
    }

    function createInput(properties) {
        const input = createTemporaryObject(inputComponent, testCase, properties)
        input.forceActiveFocus()
        tryVerify(() => input.activeFocus)
        findChild(input, "numericInputField").selectAll()
        return input
    }

    function type(text) {
        for (let i = 0; i < text.length; ++i)
            keyClick(text[i])
    }

    function localised(number) {
        return String(number).replace(".", Qt.locale().decimalPoint)
    }

    function test_typing_data() {
        return [
            { tag: "plain number", typed: "12.5", stored: 12.5 },
            { tag: "expression", typed: "=2*(3+4)", stored: 14 },
            { tag: "expression with units", typed: "=2*500mm", stored: 1 },
            { tag: "expression with function", typed: "=sin(30deg)+1", stored: 1.5 },
            { tag: "integer as number", typed: "7", integer: true, stored: 7 },
            { tag: "integer as expression", typed: "=3*4", integer: true, stored: 12 },
            { tag: "letters are not typed", typed: "a1b", stored: 1 },
            { tag: "invalid expression", typed: "=2+", result: "Invalid expression" },
            { tag: "not finite", typed: "=1/0", result: "Invalid expression" },
            { tag: "above the maximum", typed: "=60", result: "60 is outside 0 … 50" },
            { tag: "fraction in an integer field", typed: "=7/2", integer: true, result: "3.5 is not a whole number" },
            { tag: "equals sign alone", typed: "=", result: "" },
            { tag: "units converted to a mm field", unit: "mm", typed: "=3cm", stored: 30 },
            { tag: "no units: read in the field's unit", unit: "mm", typed: "=2*15", stored: 30 },
            { tag: "units after a parenthesis", unit: "mm", typed: "=(1+2) cm", stored: 30 },
            { tag: "degrees stay degrees", unit: "\u00B0", typed: "=45deg", stored: 45 },
            { tag: "radians into a degree field", unit: "\u00B0", typed: "=pi/4 rad", stored: 45 },
            { tag: "a converted result is range-checked", unit: "mm", typed: "=1m", result: "1000 is outside 0 … 50" }
        ]
    }

    function test_typing(data) {
        const input = createInput({ value: 5, integer: data.integer === true, unit: data.unit || "m" })
        const field = findChild(input, "numericInputField")
        const spy = createTemporaryObject(spyComponent, testCase, { target: input })
        type(data.typed)
        if (data.result !== undefined)
            compare(findChild(input, "numericInputResultText").text, data.result)
        keyClick(Qt.Key_Return)

        const accepted = data.stored !== undefined
        compare(spy.count, accepted ? 1 : 0)
        fuzzyCompare(input.value, accepted ? data.stored : 5, 1e-12)
        compare(field.text, accepted ? localised(data.stored) : data.typed, "an accepted value is shown as a number")
        compare(field.invalid, !accepted && data.result.length > 0)
    }

    function test_showsTheLiveResultWithoutStoring() {
        const input = createInput({})
        type("=40")
        compare(findChild(input, "numericInputResultText").text, "= 40 m")
        type("0mm")
        compare(findChild(input, "numericInputResultText").text, "= 0.4 m")
        compare(input.value, NaN)
    }

    function test_refusesExpressionsWhenNotAllowed() {
        const input = createInput({ expressionAllowed: false })
        type("=2")
        compare(findChild(input, "numericInputField").text, "2")
    }

    function test_escapeAndLeavingTheField() {
        const input = createInput({ value: 3.25 })
        type("=9")
        keyClick(Qt.Key_Escape)
        compare(findChild(input, "numericInputField").text, localised(3.25))

        findChild(input, "numericInputField").selectAll()
        type("=2+2")
        testCase.forceActiveFocus()
        compare(input.value, 4, "leaving accepts")

        input.forceActiveFocus()
        findChild(input, "numericInputField").selectAll()
        type("=2+")
        testCase.forceActiveFocus()
        compare(input.value, 4)
        compare(findChild(input, "numericInputField").text, "4", "leaving drops what cannot be accepted")
    }

    function test_showsTheStoredValueRoundedButKeepsIt() {
        const input = createInput({ decimals: 2 })
        input.value = 1 / 3
        compare(findChild(input, "numericInputField").text, localised(0.33))
        compare(input.value, 1 / 3)
    }
}
