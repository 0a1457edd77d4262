import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The command input panel: while a command runs, its name and what it asks for, a filter bar
// of the kinds of its inputs, the inputs in foldable containers, and Apply / Cancel. The holder
// places it; dragging its title moves it within its parent, and the place is kept with the
// user's configuration (placed says whether the user has moved it).
InputPanel_Cpp {
    id: panel

    // Apply and Cancel were pressed (after the command was told).
    signal applied()
    signal cancelled()

    visible: panel.commandRunning
    // Escape from anywhere in the panel cancels the command, once a field has dropped its edit.
    Keys.onEscapePressed: {
        if (panel.cancel())
            panel.cancelled()
    }
    implicitWidth: 300
    implicitHeight: content.implicitHeight + 2 * BasicConstants.sizes.margin

    // Keeps the panel inside its parent however far it is dragged or the parent shrinks.
    function clampedPosition(point) {
        if (!panel.parent)
            return point
        return Qt.point(Math.max(0, Math.min(point.x, panel.parent.width - panel.width)),
                        Math.max(0, Math.min(point.y, panel.parent.height - panel.height)))
    }

    // Opens where the user last left it, inside the parent as it is now.
    onVisibleChanged: {
        if (visible && userConfiguration.placed) {
            const placed = clampedPosition(userConfiguration.position)
            x = placed.x
            y = placed.y
        }
    }

    Rectangle {
        anchors.fill: parent
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.border
        radius: BasicConstants.sizes.radius
    }

    ColumnLayout {
        id: content
        x: BasicConstants.sizes.margin
        y: BasicConstants.sizes.margin
        width: parent.width - 2 * BasicConstants.sizes.margin
        spacing: BasicConstants.sizes.spacing

        Item {
            Layout.fillWidth: true
            implicitHeight: titleColumn.implicitHeight

            ColumnLayout {
                id: titleColumn
                width: parent.width
                spacing: 2

                Text {
                    objectName: "commandName"
                    Layout.fillWidth: true
                    elide: Text.ElideRight
                    text: panel.commandName
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.large
                    font.bold: true
                    color: BasicConstants.colors.text
                }

                Text {
                    objectName: "commandPrompt"
                    visible: text.length > 0
                    text: panel.prompt
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.small
                    color: BasicConstants.colors.textSecondary
                }
            }

            // Dragging the title moves the panel; where it is let go is remembered.
            MouseArea {
                anchors.fill: parent
                cursorShape: Qt.SizeAllCursor
                property point pressedAt
                onPressed: mouse => pressedAt = Qt.point(mouse.x, mouse.y)
                onPositionChanged: mouse => {
                    const moved = panel.clampedPosition(Qt.point(panel.x + mouse.x - pressedAt.x,
                                                                 panel.y + mouse.y - pressedAt.y))
                    panel.x = moved.x
                    panel.y = moved.y
                }
                onReleased: panel.userConfiguration.position = Qt.point(panel.x, panel.y)
            }
        }

        // The kinds of inputs the command has; switching one off hides its containers.
        Flow {
            objectName: "filterBar"
            Layout.fillWidth: true
            visible: panel.filterItems.count > 1
            spacing: 4
            Repeater {
                model: panel.filterItems
                delegate: BasicCheckBox {
                    required property int index
                    required property string title
                    required property bool shown
                    objectName: "filterItem_" + index
                    text: title
                    checked: shown
                }
                // Wired here: a delegate that takes its row's roles sees nothing of this document.
                // The box follows the model again after the user's click has been passed on.
                onItemAdded: (index, item) => {
                    const box = item as BasicCheckBox
                    box.toggled.connect(() => {
                        panel.filterItems.setChecked(index, box.checked)
                        box.checked = Qt.binding(() => box.shown)
                    })
                }
            }
        }

        Repeater {
            model: panel.containers
            delegate: InputContainer {
                Layout.fillWidth: true
            }
            onItemAdded: (index, item) => {
                const container = item as InputContainer
                container.containerModel = panel.containerModel
                container.foldRequested.connect((row, folded) => panel.containers.setFolded(row, folded))
            }
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: BasicConstants.sizes.spacing
            BasicButton {
                objectName: "applyButton"
                text: Strings.text("UI_INPUT_APPLY")
                // A field being edited is stored first, as leaving it would.
                onClicked: {
                    forceActiveFocus()
                    if (panel.apply())
                        panel.applied()
                }
            }
            BasicButton {
                objectName: "cancelButton"
                text: Strings.text("UI_INPUT_CANCEL")
                onClicked: {
                    if (panel.cancel())
                        panel.cancelled()
                }
            }
        }
    }
}
