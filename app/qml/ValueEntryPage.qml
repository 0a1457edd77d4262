import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Common
import UIComponents.Constants
import Orvo.QtExtensions

// Numeric inputs at work: numbers and expressions with units, converted into each field's unit
// or refused with the reason; several values in one field; the calculator's answers to typical
// expressions. Numbers follow the number format chosen in the window's header.
Item {
    id: page

    // The edit text of a number; reading the decimal mark makes the bindings that show such text
    // follow a change of the number format. The inline components below, which cannot reach this
    // page, carry it too.
    function formatted(number) {
        return NumberFormat.decimalMark.length > 0 ? NumberFormat.toEditValue(number) : ""
    }

    component Caption: Text {
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        color: BasicConstants.colors.text
    }

    // One field of the form: its caption, the input, and what it stored.
    component FormField: RowLayout {
        id: formField
        property alias caption: captionText.text
        property alias input: numericInput
        property alias unit: numericInput.unit
        property alias value: numericInput.value
        property alias integer: numericInput.integer
        property alias minimum: numericInput.minimum
        property alias maximum: numericInput.maximum
        spacing: 16

        function stored(value, unit) {
            return isNaN(value) ? Strings.text("UI_VALUE_ENTRY_NONE")
                                : (NumberFormat.decimalMark.length > 0 ? NumberFormat.toEditValue(value) : "")
                                  + (unit ? " " + unit : "")
        }

        Caption {
            id: captionText
            Layout.preferredWidth: 200
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 5
        }
        NumericInput {
            id: numericInput
            Layout.preferredWidth: 260
            Layout.alignment: Qt.AlignTop
            unitMinimumWidth: 40
        }
        Caption {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 5
            text: Strings.text("UI_VALUE_ENTRY_STORED") + ": " + formField.stored(numericInput.value, numericInput.unit)
            color: BasicConstants.colors.textSecondary
        }
    }

    Flickable {
        anchors.fill: parent
        contentHeight: content.implicitHeight + 48
        clip: true

        ColumnLayout {
            id: content
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 24 }
            spacing: 16

            BasicPanel {
                Layout.fillWidth: true
                Layout.preferredHeight: inputs.implicitHeight + BasicConstants.sizes.controlHeight + 24
                title: Strings.text("UI_VALUE_ENTRY_INPUTS")

                ColumnLayout {
                    id: inputs
                    anchors { left: parent.left; right: parent.right; top: parent.top; margins: 12 }
                    spacing: 12

                    Text {
                        Layout.fillWidth: true
                        wrapMode: Text.WordWrap
                        text: Strings.text("UI_VALUE_ENTRY_HINT")
                        font.family: BasicConstants.fonts.family
                        font.pixelSize: BasicConstants.fonts.normal
                        color: BasicConstants.colors.textSecondary
                    }

                    FormField {
                        id: lengthField
                        objectName: "lengthField"
                        caption: Strings.text("UI_VALUE_ENTRY_LENGTH")
                        unit: "m"
                        minimum: 0
                        value: 6
                    }
                    FormField {
                        caption: Strings.text("UI_VALUE_ENTRY_ANGLE")
                        unit: "\u00B0"
                        minimum: -360
                        maximum: 360
                        value: 30
                    }
                    FormField {
                        caption: Strings.text("UI_VALUE_ENTRY_FORCE")
                        unit: "kN"
                        value: 25
                    }
                    FormField {
                        caption: Strings.text("UI_VALUE_ENTRY_LINE_LOAD")
                        unit: "kN/m"
                        value: 4.5
                    }
                    FormField {
                        caption: Strings.text("UI_VALUE_ENTRY_COUNT")
                        unit: "pcs"
                        integer: true
                        minimum: 1
                        maximum: 50
                        value: 4
                    }
                }
            }

            BasicPanel {
                Layout.fillWidth: true
                Layout.preferredHeight: coordinates.implicitHeight + BasicConstants.sizes.controlHeight + 24
                title: Strings.text("UI_VALUE_ENTRY_COORDINATES")

                ColumnLayout {
                    id: coordinates
                    anchors { left: parent.left; right: parent.right; top: parent.top; margins: 12 }
                    spacing: 8

                    CoordinatesInput {
                        id: coordinatesInput
                        objectName: "coordinatesInput"
                        Layout.preferredWidth: 420
                        placeholderText: Strings.text("UI_VALUE_ENTRY_COORDINATES_HINT")
                    }
                    Caption {
                        text: Strings.text("UI_VALUE_ENTRY_STORED") + ": "
                              + (coordinatesInput.values.length > 0
                                 ? coordinatesInput.values.map(v => page.formatted(v)).join("; ") + " m"
                                 : Strings.text("UI_VALUE_ENTRY_NONE"))
                        color: BasicConstants.colors.textSecondary
                    }
                }
            }

            BasicPanel {
                Layout.fillWidth: true
                Layout.preferredHeight: examples.implicitHeight + BasicConstants.sizes.controlHeight + 24
                title: Strings.text("UI_VALUE_ENTRY_EXAMPLES")

                ColumnLayout {
                    id: examples
                    anchors { left: parent.left; right: parent.right; top: parent.top; margins: 12 }
                    spacing: 6

                    component ExampleRow: RowLayout {
                        id: exampleRow
                        property alias typed: typedText.text
                        property alias unit: unitText.text
                        property alias result: resultText.text
                        property alias resultColor: resultText.color
                        property bool heading: false
                        spacing: 24
                        function formatted(number) {
                            return NumberFormat.decimalMark.length > 0 ? NumberFormat.toEditValue(number) : ""
                        }
                        Caption { id: typedText; Layout.preferredWidth: 260; font.bold: exampleRow.heading; font.family: exampleRow.heading ? BasicConstants.fonts.family : "DejaVu Sans Mono" }
                        Caption { id: unitText; Layout.preferredWidth: 110; font.bold: exampleRow.heading; color: BasicConstants.colors.textSecondary }
                        Caption { id: resultText; Layout.fillWidth: true; font.bold: exampleRow.heading; font.family: exampleRow.heading ? BasicConstants.fonts.family : "DejaVu Sans Mono" }
                    }

                    ExampleRow {
                        heading: true
                        typed: Strings.text("UI_VALUE_ENTRY_EXAMPLE_TYPED")
                        unit: Strings.text("UI_VALUE_ENTRY_EXAMPLE_FIELD_UNIT")
                        result: Strings.text("UI_VALUE_ENTRY_EXAMPLE_RESULT")
                    }

                    Repeater {
                        model: [
                            { typed: "2*(3+4)/5", unit: "" },
                            { typed: "2*500mm + 1" + NumberFormat.decimalMark + "5m", unit: "m" },
                            { typed: "30cm", unit: "mm" },
                            { typed: "5kN*2m", unit: "kNm" },
                            { typed: "10kN/2m", unit: "kN/m" },
                            { typed: "12MPa", unit: "kN/m\u00B2" },
                            { typed: "3m*cos(60deg)", unit: "m" },
                            { typed: "(pi/4) rad", unit: "\u00B0" },
                            { typed: "max(1" + NumberFormat.decimalMark + "5; 2; 0" + NumberFormat.decimalMark + "5)", unit: "" },
                            { typed: "5kN", unit: "m" },
                            { typed: "1m + 1kN", unit: "m" },
                            { typed: "2*(3", unit: "" }
                        ]
                        delegate: ExampleRow {
                            id: example
                            required property var modelData
                            typed: "=" + example.modelData.typed
                            unit: example.modelData.unit.length > 0 ? example.modelData.unit : "\u2013"
                            result: exampleExpression.valid
                                    ? "= " + example.formatted(exampleExpression.value)
                                      + (example.modelData.unit.length > 0 ? " " + example.modelData.unit : "")
                                    : exampleExpression.message
                            resultColor: exampleExpression.valid ? BasicConstants.colors.text : BasicConstants.colors.error

                            FieldExpression {
                                id: exampleExpression
                                expression: example.modelData.typed
                                unit: example.modelData.unit
                            }
                        }
                    }
                }
            }
        }
    }

    // The page opens with an expression being typed, so its live result can be seen at once.
    Component.onCompleted: lengthField.input.startEdit("=2*500mm + 1" + NumberFormat.decimalMark + "5m")
}
