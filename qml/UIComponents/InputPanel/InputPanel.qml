import QtQuick
import QtQuick.Layouts
import QtQuick.Controls.Basic
import Qml.QtComponents
import BasicComponents.Constants

// The command input panel: while a command runs, its name and what it asks for, a filter bar
// of the kinds of its inputs, the inputs in foldable containers, and Apply / Cancel.
InputPanel_Cpp {
    id: panel

    visible: panel.commandRunning
    implicitWidth: 280
    implicitHeight: content.implicitHeight + 16

    Rectangle {
        anchors.fill: parent
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.border
        radius: BasicConstants.sizes.radius
    }

    ColumnLayout {
        id: content
        x: 8
        y: 8
        width: parent.width - 16
        spacing: 6

        Text {
            text: panel.commandName
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.large
            font.bold: true
            color: BasicConstants.colors.text
        }

        Text {
            visible: text.length > 0
            text: panel.prompt
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            color: BasicConstants.colors.textSecondary
        }

        Flow {
            Layout.fillWidth: true
            spacing: 4
            Repeater {
                model: panel.filterItems
                delegate: CheckBox {
                    required property int index
                    required property string title
                    required property bool shown
                    text: title
                    checked: shown
                }
                // Wired here: a delegate that takes its row's roles sees nothing of this document.
                onItemAdded: (index, item) => item.toggled.connect(() => panel.filterItems.setChecked(index, item.checked))
            }
        }

        Repeater {
            model: panel.containers
            delegate: InputContainer {
                Layout.fillWidth: true
                onFoldRequested: (row, folded) => panel.containers.setFolded(row, folded)
            }
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight
            Button {
                text: Strings.text("UI_INPUT_APPLY")
                onClicked: panel.apply()
            }
            Button {
                text: Strings.text("UI_INPUT_CANCEL")
                onClicked: panel.cancel()
            }
        }
    }
}
