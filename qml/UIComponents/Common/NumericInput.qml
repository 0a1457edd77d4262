import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants
import Orvo.QtExtensions

// A number field that also takes an expression. Text starting with "=" is evaluated at once by the
// host calculator, in the field's unit, and its result shown with the field; accepting (Enter, or
// leaving the field) stores the number. The field never changes what was typed: text that stands
// for no number it may store stays as typed, marked, with the reason, and the stored value is kept.
FocusScope {
    id: root

    // The stored number; NaN while there is none.
    property real value: NaN
    property bool integer: false
    // Bounds of the value, both included.
    property real minimum: -Infinity
    property real maximum: Infinity
    // Decimals the stored number is shown with; a typed number keeps all of its own.
    property int decimals: UIComponentsConstants.calculatorDecimals
    property bool expressionAllowed: true
    // The unit the value is in, shown after the field ("mm", "kN/m²"). An expression that names
    // units is converted into it ("=30cm" in a mm field is 300); one without units is read in it.
    property string unit: ""
    // Reserve this width for the unit, so that fields of a form line up whatever their units.
    property real unitMinimumWidth: 0
    property string placeholderText: ""
    // Where the live result and the reasons for refusing a text show: by default on a line of
    // their own under the field, so that they take room in the layout and cover nothing; inside
    // the field's right end (elided) for rows that cannot grow.
    property bool messageInside: false

    readonly property alias editText: field.text
    readonly property bool expressionMode: expressionAllowed && field.text.startsWith("=")
    // Whether the text stands for a number the field may store, that number, and what the field
    // says about it: the live result of an expression or why the text cannot be stored.
    readonly property bool acceptable: d.entry.acceptable
    readonly property real entryValue: d.entry.value
    readonly property string message: d.entry.message

    // The user stored a new number.
    signal valueAccepted(real value)

    // Stores what the field holds, when it is acceptable. Returns whether a number was stored.
    function accept() {
        if (!d.edited || !d.entry.acceptable)
            return false
        const number = d.entry.value
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
    implicitHeight: field.implicitHeight + (messageLine.visible ? messageLine.implicitHeight + messageLine.anchors.topMargin : 0)
    activeFocusOnTab: true

    onValueChanged: if (!d.edited) d.showValue()
    onDecimalsChanged: if (!d.edited) d.showValue()
    onIntegerChanged: if (!d.edited) d.showValue()
    Component.onCompleted: if (!d.edited) d.showValue()

    Connections {
        target: NumberFormat
        function onChanged() {
            if (!d.edited)
                d.showValue()
        }
    }

    QtObject {
        id: d
        property bool edited: false
        readonly property bool hasText: field.text.trim().length > 0
        // Shown while the user edits, and afterwards as long as the text stays refused.
        readonly property bool showsMessage: entry.message.length > 0 && (field.activeFocus || (edited && !entry.acceptable))

        readonly property var entry: {
            if (!edited || !hasText)
                return { acceptable: false, value: NaN, message: "" }
            if (root.expressionMode) {
                if (expression.expression.trim().length === 0)
                    return { acceptable: false, value: NaN, message: "" }
                if (!expression.valid)
                    return refused(expression.message)
                return checked(expression.value, "= ")
            }
            if (field.text.startsWith("="))
                return refused(Strings.text("UI_NUMERIC_INPUT_NO_EXPRESSIONS"))
            const number = NumberFormat.fromEditValue(field.text)
            if (isNaN(number))
                return refused(Strings.text("UI_NUMERIC_INPUT_NOT_A_NUMBER").arg(field.text.trim()))
            return checked(number, "")
        }

        function refused(message) {
            return { acceptable: false, value: NaN, message: message }
        }

        // The same verdict for a typed number and for an expression's result.
        function checked(number, resultPrefix) {
            if (root.integer && !Number.isInteger(number))
                return refused(Strings.text("UI_NUMERIC_INPUT_NOT_WHOLE").arg(format(number)))
            if (!(number >= root.minimum && number <= root.maximum))
                return refused(Strings.text("UI_NUMERIC_INPUT_OUT_OF_RANGE").arg(format(number))
                               .arg(bound(root.minimum)).arg(bound(root.maximum)))
            const result = resultPrefix.length > 0
                         ? resultPrefix + format(number) + (root.unit.length > 0 ? " " + root.unit : "") : ""
            return { acceptable: true, value: number, message: result }
        }

        // The edit text of number; reading the decimal mark makes the bindings that show such text
        // follow a change of the number format.
        function format(number, decimals) {
            return NumberFormat.decimalMark.length > 0 ? NumberFormat.toEditValue(number, decimals === undefined ? -1 : decimals) : ""
        }

        function bound(number) {
            return isFinite(number) ? format(number) : (number < 0 ? "-\u221E" : "\u221E")
        }

        function showValue() {
            field.text = format(root.value, root.integer ? 0 : root.decimals)
        }
    }

    FieldExpression {
        id: expression
        expression: root.expressionMode ? field.text.substring(1) : ""
        unit: root.unit
    }

    BasicTextField {
        id: field
        objectName: "numericInputField"
        anchors { left: parent.left; right: unitLabel.left; top: parent.top }
        anchors.rightMargin: unitLabel.width > 0 ? BasicConstants.sizes.spacing : 0
        focus: true
        placeholderText: root.placeholderText
        horizontalAlignment: root.expressionMode ? TextInput.AlignLeft : TextInput.AlignRight
        rightPadding: 6 + (insideMessage.visible ? insideMessage.width + BasicConstants.sizes.spacing : 0)
        invalid: d.edited && d.hasText && !d.entry.acceptable && d.entry.message.length > 0

        onTextEdited: d.edited = true
        onAccepted: root.accept()
        onActiveFocusChanged: {
            // Leaving stores what can be stored and forgets an empty edit; refused text stays, marked.
            if (!activeFocus && !root.accept() && !d.hasText)
                root.revert()
        }
        // Escape first drops an edit; with nothing to drop it is left to what holds the field
        // (a command's panel cancels the command).
        Keys.onEscapePressed: event => {
            if (d.edited)
                root.revert()
            else
                event.accepted = false
        }

        BasicLabel {
            id: insideMessage
            objectName: "numericInputInsideMessage"
            anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
            visible: root.messageInside && d.showsMessage
            width: Math.min(implicitWidth, parent.width * 0.6)
            text: visible ? d.entry.message : ""
            color: d.entry.acceptable ? BasicConstants.colors.textSecondary : BasicConstants.colors.error
        }
    }

    BasicLabel {
        id: unitLabel
        anchors { right: parent.right; verticalCenter: field.verticalCenter }
        // Measured apart from the label: a label whose text just changed lays itself out when
        // asked for its size, which would change the size while this binding reads it.
        width: root.unit.length > 0 ? Math.max(Math.ceil(unitMetrics.advanceWidth) + leftPadding + rightPadding,
                                               root.unitMinimumWidth) : 0
        text: root.unit
        color: BasicConstants.colors.textSecondary

        TextMetrics {
            id: unitMetrics
            font: unitLabel.font
            text: root.unit
        }
    }

    // The live result or the reason, on a line of its own under the field.
    Text {
        id: messageLine
        objectName: "numericInputResultText"
        anchors { top: field.bottom; topMargin: 2; left: field.left; right: parent.right }
        visible: !root.messageInside && d.showsMessage
        text: d.showsMessage ? d.entry.message : ""
        wrapMode: Text.WordWrap
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.small
        color: d.entry.acceptable ? BasicConstants.colors.textSecondary : BasicConstants.colors.error
    }
}
