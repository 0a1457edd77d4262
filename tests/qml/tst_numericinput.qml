import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Common
import Orvo.QtExtensions

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
        return String(number).replace(".", NumberFormat.decimalMark)
    }

    function test_typing_data() {
        return [
            { tag: "plain number", typed: "12.5", stored: 12.5 },
            { tag: "decimal comma read in the point format", typed: "12,5", stored: 12.5 },
            { tag: "expression", typed: "=2*(3+4)", stored: 14 },
            { tag: "expression with units", typed: "=2*500mm", stored: 1 },
            { tag: "a sine is a plain number", typed: "=sin(30deg)+1", stored: 1.5 },
            { tag: "integer as number", typed: "7", integer: true, stored: 7 },
            { tag: "integer as expression", typed: "=3*4", integer: true, stored: 12 },
            { tag: "letters stay as typed, refused", typed: "a1b", result: "a1b is not a number" },
            { tag: "invalid expression", typed: "=2+", result: "Invalid expression" },
            { tag: "not finite", typed: "=1/0", result: "Invalid expression" },
            { tag: "expression above the maximum", typed: "=60", result: "60 is outside 0 … 50" },
            { tag: "plain number above the maximum", typed: "60", result: "60 is outside 0 … 50" },
            { tag: "fraction in an integer field", typed: "=7/2", integer: true, result: "3.5 is not a whole number" },
            { tag: "typed fraction in an integer field", typed: "2.5", integer: true, minimum: 1,
              result: "2.5 is not a whole number" },
            { tag: "typed negative in an integer field", typed: "-3", integer: true, minimum: 1,
              result: "-3 is outside 1 … 50" },
            { tag: "equals sign alone", typed: "=", result: "" },
            { tag: "a force in a length field", typed: "=5kN", result: "kN is a force; this field takes a length" },
            { tag: "units converted to a mm field", unit: "mm", typed: "=3cm", stored: 30 },
            { tag: "no units: read in the field's unit", unit: "mm", typed: "=2*15", stored: 30 },
            { tag: "units after a parenthesis", unit: "mm", typed: "=(1+2) cm", stored: 30 },
            { tag: "degrees stay degrees", unit: "\u00B0", typed: "=45deg", stored: 45 },
            { tag: "radians into a degree field", unit: "\u00B0", typed: "=(pi/4) rad", stored: 45 },
            { tag: "a converted result is range-checked", unit: "mm", typed: "=1m", result: "1000 is outside 0 … 50" }
        ]
    }

    function test_typing(data) {
        const input = createInput({ value: 5, integer: data.integer === true, unit: data.unit || "m",
                                    minimum: data.minimum === undefined ? 0 : data.minimum })
        const field = findChild(input, "numericInputField")
        const spy = createTemporaryObject(spyComponent, testCase, { target: input })
        type(data.typed)
        if (data.result !== undefined)
            compare(input.message, data.result)
        keyClick(Qt.Key_Return)

        const accepted = data.stored !== undefined
        compare(spy.count, accepted ? 1 : 0)
        fuzzyCompare(input.value, accepted ? data.stored : 5, 1e-12)
        compare(field.text, accepted ? localised(data.stored) : data.typed,
                "an accepted value is shown as a number, anything else as typed")
        compare(field.invalid, !accepted && data.result.length > 0)
        if (!accepted && data.result.length > 0)
            compare(findChild(input, "numericInputResultText").text, data.result, "the reason stays in view")
    }

    // The result and the reasons take room of their own, so they never cover the field below.
    function test_theMessageIsPartOfTheInputsHeight() {
        const input = createInput({})
        const heightWithoutMessage = input.height
        type("=5kN")
        const message = findChild(input, "numericInputResultText")
        verify(message.visible)
        verify(input.height > heightWithoutMessage)
        verify(message.y + message.height <= input.height, "the message lies within the input")
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
        const input = createInput({ expressionAllowed: false, value: 3 })
        type("=2")
        keyClick(Qt.Key_Return)
        compare(findChild(input, "numericInputField").text, "=2")
        compare(input.message, "This field takes numbers only, no expressions")
        compare(input.value, 3)
    }

    function test_escapeAndLeavingTheField() {
        const input = createInput({ value: 3.25 })
        const field = findChild(input, "numericInputField")
        type("=9")
        keyClick(Qt.Key_Escape)
        compare(field.text, localised(3.25))

        field.selectAll()
        type("=2+2")
        testCase.forceActiveFocus()
        compare(input.value, 4, "leaving accepts")

        input.forceActiveFocus()
        field.selectAll()
        type("=2+")
        testCase.forceActiveFocus()
        compare(input.value, 4)
        compare(field.text, "=2+", "leaving keeps what cannot be accepted, marked")
        verify(field.invalid)

        input.forceActiveFocus()
        field.selectAll()
        keyClick(Qt.Key_Delete)
        testCase.forceActiveFocus()
        compare(field.text, "4", "leaving an emptied field shows the stored value again")
    }

    function test_followsTheHostNumberFormat() {
        const input = createInput({ value: 2.5 })
        const field = findChild(input, "numericInputField")
        NumberFormat.decimalComma = true
        try {
            compare(field.text, "2,5")
            field.selectAll()
            type("1.25")
            keyClick(Qt.Key_Return)
            compare(input.value, 1.25)
            compare(field.text, "1,25")
        } finally {
            NumberFormat.decimalComma = false
        }
        compare(field.text, "1.25")
    }

    function test_showsTheStoredValueRoundedButKeepsIt() {
        const input = createInput({ decimals: 2 })
        input.value = 1 / 3
        compare(findChild(input, "numericInputField").text, localised(0.33))
        compare(input.value, 1 / 3)
    }
}
