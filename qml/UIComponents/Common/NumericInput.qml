import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants
import UIComponents.Utilities

// A number field that also takes an expression. Text starting with "=" is evaluated at once by the
// host calculator and its result shown under the field; accepting (Enter, or leaving the field)
// stores the number, and an invalid or out-of-range result is marked and never stored.
FocusScope {
    id: root

    // The stored number; NaN while there is none.
    property real value: NaN
    property bool integer: false
    // Bounds of the value, both included.
    property real minimum: -Infinity
    property real maximum: Infinity
    // Decimals a typed number may have and the stored number is shown with.
    property int decimals: UIComponentsConstants.calculatorDecimals
    property bool expressionAllowed: true
    // Shown after the field, e.g. "mm"; the unit the value is in.
    property string unit: ""
    // How many SI base units one unit of the field is (0.001 for millimetres, pi/180 for degrees).
    // An expression that names units is worked out in SI base units and converted to the field's
    // unit; one without units is read in the field's unit, so "=2*150" in a mm field is 300 mm and
    // so is "=30cm".
    property real unitFactor: Common.unitFactor(unit)
    // Reserve this width for the unit, so that fields of a form line up whatever their units.
    property real unitMinimumWidth: 0
    property string placeholderText: ""

    readonly property alias editText: field.text
    readonly property bool expressionMode: expressionAllowed && field.text.startsWith("=")
    readonly property real expressionResult: Common.namesUnits(calculator.expression)
                                             ? calculator.result / unitFactor : calculator.result
    readonly property bool resultAcceptable: expressionMode && calculator.valid && fits(expressionResult)
    readonly property alias calculator: calculator

    // The user stored a new number.
    signal valueAccepted(real value)

    // Stores what the field holds, when it is acceptable. Returns whether a number was stored.
    function accept() {
        if (!d.edited)
            return false
        const number = d.entryValue()
        if (isNaN(number))
            return false
        d.edited = false
        value = number
        d.showValue()
        valueAccepted(number)
        return true
    }

    // Starts editing with text as if the user had typed it (a table cell passes the first key).
    function startEdit(text) {
        field.forceActiveFocus()
        field.text = text
        d.edited = true
    }

    // Drops the edit and shows the stored number again.
    function revert() {
        d.edited = false
        d.showValue()
    }

    function fits(number) {
        return isFinite(number) && number >= minimum && number <= maximum && (!integer || Number.isInteger(number))
    }

    implicitWidth: 160
    implicitHeight: field.implicitHeight
    // Above its siblings while the result shows, so the result is not hidden by the next row.
    z: resultBox.visible ? 1 : 0
    activeFocusOnTab: true

    onValueChanged: if (!d.edited) d.showValue()
    onDecimalsChanged: if (!d.edited) d.showValue()
    Component.onCompleted: if (!d.edited) d.showValue()

    QtObject {
        id: d
        property bool edited: false
        readonly property bool showsResult: root.expressionMode && calculator.expression.length > 0

        function format(number) {
            if (!isFinite(number))
                return ""
            return Common.formatNumber(number, root.integer ? 0 : root.decimals).replace(".", Qt.locale().decimalPoint)
        }

        function showValue() {
            field.text = format(root.value)
        }

        // The number the field's text stands for, NaN when it stands for none that may be stored.
        function entryValue() {
            if (root.expressionMode)
                return root.resultAcceptable ? root.expressionResult : NaN
            if (!field.acceptableInput)
                return NaN
            const number = parseNumber(field.text)
            return root.fits(number) ? number : NaN
        }

        // The validators accept the locale's form and the C locale's; read both the same way.
        function parseNumber(text) {
            for (const locale of [Qt.locale(), Qt.locale("C")]) {
                try {
                    return Number.fromLocaleString(locale, text)
                } catch (error) {
                    // not in this locale's form
                }
            }
            return NaN
        }

        function resultText() {
            if (!calculator.valid)
                return Strings.text("UI_INLINE_CALC_ERROR")
            const result = root.expressionResult
            if (root.integer && !Number.isInteger(result))
                return Strings.text("UI_NUMERIC_INPUT_NOT_WHOLE").arg(calculator.formatValue(result))
            if (!root.fits(result))
                return Strings.text("UI_NUMERIC_INPUT_OUT_OF_RANGE").arg(calculator.formatValue(result))
                    .arg(format(root.minimum) || "-\u221E").arg(format(root.maximum) || "\u221E")
            return "= " + calculator.formatValue(result) + (root.unit.length > 0 ? " " + root.unit : "")
        }
    }

    InlineCalculator {
        id: calculator
        expression: root.expressionMode ? field.text.substring(1) : ""
    }

    RealValidator {
        id: realValidator
        expressionAllowed: root.expressionAllowed
        bottom: root.minimum
        top: root.maximum
        decimals: root.decimals
    }

    IntegerValidator {
        id: integerValidator
        expressionAllowed: root.expressionAllowed
        bottom: Math.max(Math.ceil(root.minimum), -2147483648)
        top: Math.min(Math.floor(root.maximum), 2147483647)
    }

    BasicTextField {
        id: field
        objectName: "numericInputField"
        anchors { left: parent.left; right: unitLabel.left; verticalCenter: parent.verticalCenter }
        anchors.rightMargin: unitLabel.width > 0 ? BasicConstants.sizes.spacing : 0
        focus: true
        placeholderText: root.placeholderText
        horizontalAlignment: root.expressionMode ? TextInput.AlignLeft : TextInput.AlignRight
        validator: root.integer ? integerValidator : realValidator
        invalid: root.expressionMode ? d.showsResult && !root.resultAcceptable
                                     : d.edited && text.length > 0 && !acceptableInput

        onTextEdited: d.edited = true
        onAccepted: root.accept()
        onActiveFocusChanged: {
            if (!activeFocus && !root.accept())
                root.revert()
        }
        Keys.onEscapePressed: root.revert()
    }

    BasicLabel {
        id: unitLabel
        anchors { right: parent.right; verticalCenter: field.verticalCenter }
        width: root.unit.length > 0 ? Math.max(implicitWidth, root.unitMinimumWidth) : 0
        text: root.unit
        color: BasicConstants.colors.textSecondary
    }

    // The live result floats under the field, like a tooltip, so that layouts do not jump.
    Rectangle {
        id: resultBox
        objectName: "numericInputResult"
        anchors { top: field.bottom; topMargin: 2; left: field.left }
        z: 10
        visible: d.showsResult && field.activeFocus
        width: Math.max(resultText.implicitWidth + 2 * BasicConstants.sizes.spacing, field.width)
        height: resultText.implicitHeight + BasicConstants.sizes.spacing
        radius: BasicConstants.sizes.radius
        color: root.resultAcceptable ? BasicConstants.colors.accentLight : BasicConstants.colors.errorLight
        border.color: root.resultAcceptable ? BasicConstants.colors.accent : BasicConstants.colors.error

        Text {
            id: resultText
            objectName: "numericInputResultText"
            anchors { left: parent.left; leftMargin: BasicConstants.sizes.spacing; verticalCenter: parent.verticalCenter }
            text: resultBox.visible ? d.resultText() : ""
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            color: root.resultAcceptable ? BasicConstants.colors.text : BasicConstants.colors.error
        }
    }
}
