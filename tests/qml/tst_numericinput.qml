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
        NumericInput {
            width: 200
            unit: "m"
        }
    }

    Component {
        id: spyComponent
        SignalSpy {
            signalName: "valueAccepted"
        }
    }

    function createInput(properties) {
        const input = createTemporaryObject(inputComponent, testCase, properties || {})
        verify(input)
        input.forceActiveFocus()
        tryVerify(() => input.activeFocus)
        return input
    }

    function field(input) {
        return findChild(input, "numericInputField")
    }

    function resultText(input) {
        return findChild(input, "numericInputResultText").text
    }

    function type(text) {
        for (let i = 0; i < text.length; ++i)
            keyClick(text[i])
    }

    function selectAll(input) {
        field(input).selectAll()
    }

    function test_accepts_data() {
        return [
            { tag: "plain number", typed: "12.5", expected: 12.5 },
            { tag: "expression", typed: "=2*(3+4)", expected: 14 },
            { tag: "expression with units", typed: "=2*500mm", expected: 1 },
            { tag: "expression with function", typed: "=sin(30deg)+1", expected: 1.5 },
            { tag: "integer as number", typed: "7", integer: true, expected: 7 },
            { tag: "integer as expression", typed: "=3*4", integer: true, expected: 12 }
        ]
    }

    function test_accepts(data) {
        const input = createInput({ integer: data.integer === true, minimum: 0, maximum: 50 })
        const spy = createTemporaryObject(spyComponent, testCase, { target: input })
        type(data.typed)
        keyClick(Qt.Key_Return)

        fuzzyCompare(input.value, data.expected, 1e-12)
        compare(spy.count, 1)
        compare(field(input).text, String(data.expected).replace(".", Qt.locale().decimalPoint))
        verify(!field(input).invalid)
    }

    function test_refuses_data() {
        return [
            { tag: "invalid expression", typed: "=2+", result: "Invalid expression" },
            { tag: "expression that is not finite", typed: "=1/0", result: "Invalid expression" },
            { tag: "expression above the maximum", typed: "=60", result: "60 is outside 0 … 50" },
            { tag: "integer field, fraction", typed: "=7/2", integer: true, result: "3.5 is not a whole number" },
            { tag: "equals sign alone", typed: "=", result: "" }
        ]
    }

    function test_refuses(data) {
        const input = createInput({ value: 5, integer: data.integer === true, minimum: 0, maximum: 50 })
        const spy = createTemporaryObject(spyComponent, testCase, { target: input })
        selectAll(input)
        type(data.typed)
        compare(resultText(input), data.result)
        keyClick(Qt.Key_Return)

        compare(input.value, 5)
        compare(spy.count, 0)
        compare(field(input).text, data.typed)
        compare(field(input).invalid, data.result.length > 0)
    }

    function test_showsTheLiveResult() {
        const input = createInput()
        type("=500")
        compare(resultText(input), "= 500 m")
        type("mm")
        compare(resultText(input), "= 0.5 m")
        verify(input.resultAcceptable)
        compare(input.value, NaN, "nothing stored while typing")
    }

    function test_refusesCharactersOfNoNumber() {
        const input = createInput()
        type("a1b")
        compare(field(input).text, "1")
    }

    function test_refusesExpressionsWhenNotAllowed() {
        const input = createInput({ expressionAllowed: false })
        type("=2")
        compare(field(input).text, "2")
        verify(!input.expressionMode)
    }

    function test_escapeRevertsToTheStoredValue() {
        const input = createInput({ value: 3.25 })
        selectAll(input)
        type("=9")
        keyClick(Qt.Key_Escape)
        compare(field(input).text, "3.25".replace(".", Qt.locale().decimalPoint))
        compare(input.value, 3.25)
    }

    function test_leavingTheFieldAcceptsOrReverts() {
        const input = createInput({ value: 1 })
        selectAll(input)
        type("=2+2")
        input.focus = false
        testCase.forceActiveFocus()
        compare(input.value, 4)

        input.forceActiveFocus()
        selectAll(input)
        type("=2+")
        testCase.forceActiveFocus()
        compare(input.value, 4)
        compare(field(input).text, "4")
    }

    function test_showsStoredValuesWithItsDecimals() {
        const input = createInput({ decimals: 2 })
        input.value = 1 / 3
        compare(field(input).text, "0.33".replace(".", Qt.locale().decimalPoint))
        compare(input.value, 1 / 3, "the value itself is not rounded")
    }
}
