import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import Orvo.QtExtensions

// A field for a fixed number of values typed on one line, such as a point's coordinates:
// "1 2 500mm" or "=1+1; 2*3; 4". Each value is an expression of its own; values without units
// are in metres, values with units are converted to metres as the calculator reads them. Enter stores the values when every
// one is valid and there are exactly as many as the field takes; otherwise the field says why.
FocusScope {
    id: root

    // Names of the values, one per value the field takes ("x", "y", "z").
    property var labels: ["x", "y", "z"]
    readonly property int valueCount: labels.length
    // The stored values; empty while there are none.
    property var values: []
    property string placeholderText: ""

    readonly property alias editText: field.text
    readonly property bool acceptable: d.problem.length === 0 && calculator.multipleResults.length === valueCount
    // Why the text cannot be stored, or empty.
    readonly property string message: d.problem

    signal valuesAccepted(var values)

    // The edit text of a number; reading the decimal mark makes the bindings that show such text
    // follow a change of the number format.
    function formatted(number) {
        return NumberFormat.decimalMark.length > 0 ? NumberFormat.toEditValue(number) : ""
    }

    function accept() {
        if (!acceptable)
            return false
        values = calculator.multipleResults.slice()
        valuesAccepted(values)
        return true
    }

    implicitWidth: 360
    implicitHeight: column.implicitHeight

    QtObject {
        id: d
        readonly property bool hasText: field.text.trim().length > 0
        readonly property string problem: {
            if (!hasText)
                return ""
            const count = calculator.multipleResults.length
            if (count !== root.valueCount)
                return Strings.text("UI_COORDINATES_COUNT").arg(root.valueCount).arg(root.labels.join(", ")).arg(count)
            const invalid = calculator.multipleValids.indexOf(false)
            if (invalid >= 0)
                return Strings.text("UI_COORDINATES_INVALID_VALUE").arg(root.labels[invalid])
            return ""
        }
    }

    // The spotlight's convention: values separated by blanks or ";", an optional leading "=".
    InlineCalculator {
        id: calculator
        multipleEnabled: true
        separators: [";", " "]
        expression: field.text.startsWith("=") ? field.text.substring(1) : field.text
    }

    Column {
        id: column
        width: parent.width
        spacing: 4

        BasicTextField {
            id: field
            objectName: "coordinatesField"
            width: parent.width
            focus: true
            placeholderText: root.placeholderText
            invalid: d.problem.length > 0
            onAccepted: root.accept()
        }

        Row {
            spacing: 18
            visible: d.hasText
            Repeater {
                // One entry per coordinate the expression gave, with everything its text shows.
                model: {
                    const parts = []
                    const count = Math.min(calculator.multipleResults.length, root.valueCount)
                    for (let i = 0; i < count; ++i) {
                        const valid = calculator.multipleValids[i]
                        parts.push({ valid: valid,
                                     text: root.labels[i] + " = " + (valid ? root.formatted(calculator.multipleResults[i]) + " m"
                                                                           : Strings.text("UI_INLINE_CALC_ERROR")) })
                    }
                    return parts
                }
                Text {
                    required property var modelData
                    text: modelData.text
                    color: modelData.valid ? BasicConstants.colors.text : BasicConstants.colors.error
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                }
            }
        }

        Text {
            objectName: "coordinatesMessage"
            width: parent.width
            visible: d.problem.length > 0
            text: d.problem
            wrapMode: Text.WordWrap
            color: BasicConstants.colors.error
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
        }
    }
}
