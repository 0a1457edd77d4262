import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Common
import UIComponents.Constants

Item {
    id: page

    function stored(value, unit) {
        return isNaN(value) ? Strings.text("UI_VALUE_ENTRY_NONE") : value.toLocaleString(Qt.locale(), 'g', 12) + (unit ? " " + unit : "")
    }

    component Caption: Text {
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        color: BasicConstants.colors.text
    }

    ColumnLayout {
        anchors { fill: parent; margins: 24 }
        spacing: 16

        BasicPanel {
            Layout.fillWidth: true
            Layout.preferredHeight: 210
            title: Strings.text("UI_VALUE_ENTRY_INPUTS")

            ColumnLayout {
                anchors { fill: parent; margins: 12 }
                spacing: 10

                Text {
                    Layout.fillWidth: true
                    wrapMode: Text.WordWrap
                    text: Strings.text("UI_VALUE_ENTRY_HINT")
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                    color: BasicConstants.colors.textSecondary
                }

                GridLayout {
                    columns: 3
                    columnSpacing: 16
                    rowSpacing: 14

                    Caption { text: Strings.text("UI_VALUE_ENTRY_LENGTH") }
                    NumericInput {
                        id: lengthInput
                        Layout.preferredWidth: 220
                        unitMinimumWidth: 28
                        unit: "m"
                        minimum: 0
                        value: 6
                    }
                    Caption { text: Strings.text("UI_VALUE_ENTRY_STORED") + ": " + page.stored(lengthInput.value, "m") }

                    Caption { text: Strings.text("UI_VALUE_ENTRY_ANGLE") }
                    NumericInput {
                        id: angleInput
                        Layout.preferredWidth: 220
                        unitMinimumWidth: 28
                        unit: "\u00B0"
                        minimum: -360
                        maximum: 360
                        value: 30
                    }
                    Caption { text: Strings.text("UI_VALUE_ENTRY_STORED") + ": " + page.stored(angleInput.value, "\u00B0") }

                    Caption { text: Strings.text("UI_VALUE_ENTRY_COUNT") }
                    NumericInput {
                        id: countInput
                        Layout.preferredWidth: 220
                        unitMinimumWidth: 28
                        integer: true
                        unit: "pcs"
                        minimum: 1
                        maximum: 50
                        value: 4
                    }
                    Caption { text: Strings.text("UI_VALUE_ENTRY_STORED") + ": " + page.stored(countInput.value, "pcs") }
                }
            }
        }

        BasicPanel {
            Layout.fillWidth: true
            Layout.preferredHeight: 120
            title: Strings.text("UI_VALUE_ENTRY_COORDINATES")

            InlineCalculator {
                id: coordinatesCalculator
                multipleEnabled: true
                separators: [";", " "]
                expression: coordinatesField.text.startsWith("=") ? coordinatesField.text.substring(1) : coordinatesField.text
            }

            ColumnLayout {
                anchors { fill: parent; margins: 12 }
                spacing: 8

                BasicTextField {
                    id: coordinatesField
                    Layout.preferredWidth: 360
                    text: "=1,5 2*3 500mm"
                    placeholderText: Strings.text("UI_VALUE_ENTRY_COORDINATES_HINT")
                    invalid: text.length > 0 && !coordinatesCalculator.valid
                }

                Row {
                    spacing: 18
                    Repeater {
                        model: coordinatesCalculator.multipleResults.length
                        Caption {
                            required property int index
                            readonly property bool partValid: coordinatesCalculator.multipleValids[index]
                            text: ["x", "y", "z"][index % 3] + (index >= 3 ? Math.floor(index / 3) + 1 : "") + " = "
                                  + (partValid ? coordinatesCalculator.formatValue(coordinatesCalculator.multipleResults[index])
                                               : Strings.text("UI_INLINE_CALC_ERROR"))
                            color: partValid ? BasicConstants.colors.text : BasicConstants.colors.error
                        }
                    }
                }
            }
        }

        BasicPanel {
            Layout.fillWidth: true
            Layout.preferredHeight: 180
            title: Strings.text("UI_VALUE_ENTRY_EXAMPLES")

            Grid {
                anchors { fill: parent; margins: 12 }
                columns: 2
                columnSpacing: 48
                rowSpacing: 6

                Repeater {
                    model: ["2*(3+4)/5", "sin(30deg) + 500mm", "1,5kN + 20N", "max(1,5; 2; 0,5)", "-2^2", "(1+2)cm",
                            "round(pi*100)/100", "log(1000) + ln(e)", "1/0", "2*(3"]
                    delegate: Row {
                        required property string modelData
                        spacing: 8
                        InlineCalculator {
                            id: exampleCalculator
                            expression: modelData
                        }
                        Caption {
                            width: 170
                            text: modelData
                            font.family: "DejaVu Sans Mono"
                        }
                        Caption {
                            text: exampleCalculator.valid ? "= " + exampleCalculator.formatValue(exampleCalculator.result)
                                                          : Strings.text("UI_INLINE_CALC_ERROR")
                            color: exampleCalculator.valid ? BasicConstants.colors.text : BasicConstants.colors.error
                            font.family: "DejaVu Sans Mono"
                        }
                    }
                }
            }
        }

        Item { Layout.fillHeight: true }
    }

    // The page opens with an expression being typed, so its live result can be seen at once.
    Component.onCompleted: lengthInput.startEdit("=2*500mm + 1,5m")
}
