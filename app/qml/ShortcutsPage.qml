import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Utilities
import Orvo.QtExtensions

// Keyboard shortcuts at work: the application's commands with their shortcuts (change one
// and it answers at once), what the hotkey handler has bound, the commands the keys ran, and
// a message box during which no shortcut runs anything.
Item {
    id: page

    CommandListModel {
        id: commands
    }

    CommandExecutionMonitor {
        id: monitor
        onCommandExecuted: (commandUuid, parameterString, origin) => {
            runLog.insert(0, { name: commands.commandName(commandUuid),
                               parameters: parameterString,
                               origin: origin,
                               time: Qt.formatTime(new Date(), "hh:mm:ss") })
            if (runLog.count > 50)
                runLog.remove(50, runLog.count - 50)
        }
    }

    ListModel {
        id: runLog
    }

    BasicMessageBox {
        id: messageBox
        objectName: "shortcutsMessageBox"
        title: Strings.text("UI_APP_SHORTCUTS_BOX_TITLE")
        text: Strings.text("UI_APP_SHORTCUTS_BOX_TEXT")
        acceptText: Strings.text("UI_APP_SHORTCUTS_BOX_CLOSE")
    }

    RowLayout {
        anchors { fill: parent; margins: 24 }
        spacing: 16

        BasicPanel {
            Layout.fillWidth: true
            Layout.fillHeight: true
            title: Strings.text("UI_APP_SHORTCUTS_LIST_TITLE")

            ColumnLayout {
                anchors { fill: parent; margins: 8 }
                spacing: 8

                ListView {
                    id: commandList
                    objectName: "shortcutCommandList"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    clip: true
                    model: commands
                    currentIndex: 0
                    delegate: Rectangle {
                        required property int index
                        required property string name
                        required property string shortcut
                        required property string icon
                        required property bool commandEnabled
                        width: ListView.view.width
                        height: BasicConstants.sizes.rowHeight + 4
                        color: ListView.isCurrentItem ? BasicConstants.colors.selection
                                                      : rowMouse.containsMouse ? BasicConstants.colors.hover
                                                                               : "transparent"
                        RowLayout {
                            anchors { fill: parent; leftMargin: 8; rightMargin: 10 }
                            spacing: 8
                            Image {
                                Layout.preferredWidth: BasicConstants.sizes.iconSize
                                Layout.preferredHeight: BasicConstants.sizes.iconSize
                                sourceSize.width: BasicConstants.sizes.iconSize
                                sourceSize.height: BasicConstants.sizes.iconSize
                                source: icon
                            }
                            BasicLabel {
                                Layout.fillWidth: true
                                text: name
                                enabled: commandEnabled
                            }
                            Rectangle {
                                visible: shortcut !== ""
                                Layout.preferredWidth: shortcutText.implicitWidth + 12
                                Layout.preferredHeight: 18
                                radius: BasicConstants.sizes.radius
                                color: BasicConstants.colors.panelHeader
                                border.color: BasicConstants.colors.border
                                KeyboardShortcutText {
                                    id: shortcutText
                                    anchors.centerIn: parent
                                    sequence: shortcut
                                    color: BasicConstants.colors.text
                                }
                            }
                        }
                        MouseArea {
                            id: rowMouse
                            anchors.fill: parent
                            hoverEnabled: true
                            onClicked: commandList.currentIndex = index
                        }
                    }
                }

                Rectangle {
                    Layout.fillWidth: true
                    Layout.preferredHeight: 1
                    color: BasicConstants.colors.border
                }

                // Rebinds the selected command; the repository announces the change and
                // the hotkey handler follows it.
                RowLayout {
                    id: editor
                    readonly property var current: commandList.currentItem
                    readonly property string currentUuid: commandList.currentIndex >= 0
                        ? commands.data(commands.index(commandList.currentIndex, 0), CommandListModel.UuidRole) : ""
                    property bool refused: false
                    Layout.fillWidth: true
                    spacing: 8

                    function apply(sequence) {
                        refused = !commands.setShortcut(currentUuid, sequence)
                    }

                    BasicLabel {
                        Layout.preferredWidth: 230
                        text: Strings.text("UI_APP_SHORTCUTS_EDIT_LABEL").arg(editor.current ? editor.current.name : "")
                    }
                    BasicTextField {
                        id: sequenceField
                        objectName: "shortcutField"
                        Layout.fillWidth: true
                        placeholderText: Strings.text("UI_APP_SHORTCUTS_EDIT_PLACEHOLDER")
                        text: editor.current ? editor.current.shortcut : ""
                        invalid: editor.refused
                        onTextEdited: editor.refused = false
                        onAccepted: editor.apply(text)
                    }
                    BasicButton {
                        objectName: "applyShortcut"
                        text: Strings.text("UI_APP_SHORTCUTS_APPLY")
                        enabled: editor.currentUuid !== ""
                        onClicked: editor.apply(sequenceField.text)
                    }
                    BasicButton {
                        text: Strings.text("UI_APP_SHORTCUTS_REMOVE")
                        enabled: editor.current !== null && editor.current.shortcut !== ""
                        onClicked: editor.apply("")
                    }
                }

                BasicLabel {
                    Layout.fillWidth: true
                    visible: editor.refused
                    text: Strings.text("UI_APP_SHORTCUTS_INVALID").arg(sequenceField.text)
                    color: BasicConstants.colors.error
                }
            }
        }

        ColumnLayout {
            Layout.preferredWidth: 340
            Layout.maximumWidth: 340
            Layout.fillHeight: true
            spacing: 12

            BasicPanel {
                Layout.fillWidth: true
                Layout.preferredHeight: 130
                title: Strings.text("UI_APP_SHORTCUTS_STATE_TITLE")

                ColumnLayout {
                    anchors { fill: parent; margins: 10 }
                    spacing: 8

                    RowLayout {
                        spacing: 8
                        Rectangle {
                            Layout.preferredWidth: 12
                            Layout.preferredHeight: 12
                            radius: 6
                            color: hotkeyHandlerModel.shortcutsEnabled ? BasicConstants.colors.success
                                                                       : BasicConstants.colors.error
                        }
                        BasicLabel {
                            objectName: "shortcutsState"
                            Layout.fillWidth: true
                            wrapMode: Text.WordWrap
                            text: hotkeyHandlerModel.shortcutsEnabled ? Strings.text("UI_APP_SHORTCUTS_ON")
                                                                      : Strings.text("UI_APP_SHORTCUTS_OFF")
                        }
                    }
                    BasicButton {
                        objectName: "openMessageBox"
                        text: Strings.text("UI_APP_SHORTCUTS_OPEN_BOX")
                        onClicked: messageBox.open()
                    }
                }
            }

            BasicPanel {
                Layout.fillWidth: true
                Layout.preferredHeight: 300
                title: Strings.text("UI_APP_SHORTCUTS_BINDINGS_TITLE")

                ListView {
                    anchors { fill: parent; margins: 8 }
                    clip: true
                    model: hotkeyHandlerModel
                    delegate: RowLayout {
                        required property int index
                        required property string cmdUuid
                        required property string cmdShortcut
                        width: ListView.view.width
                        height: 20
                        spacing: 8
                        KeyboardShortcutText {
                            Layout.preferredWidth: 100
                            sequence: cmdShortcut
                            color: BasicConstants.colors.text
                        }
                        BasicLabel {
                            Layout.fillWidth: true
                            text: commands.commandName(cmdUuid)
                            font.pixelSize: BasicConstants.fonts.small
                        }
                    }
                }
            }

            BasicPanel {
                Layout.fillWidth: true
                Layout.fillHeight: true
                title: Strings.text("UI_APP_SHORTCUTS_LOG_TITLE")

                BasicLabel {
                    anchors { fill: parent; margins: 10 }
                    visible: runLog.count === 0
                    verticalAlignment: Text.AlignTop
                    wrapMode: Text.WordWrap
                    text: Strings.text("UI_APP_SHORTCUTS_LOG_EMPTY")
                    color: BasicConstants.colors.textSecondary
                }

                ListView {
                    objectName: "commandRunLog"
                    anchors { fill: parent; margins: 8 }
                    clip: true
                    model: runLog
                    delegate: RowLayout {
                        required property string name
                        required property string origin
                        required property string time
                        width: ListView.view.width
                        height: 20
                        spacing: 8
                        BasicLabel {
                            text: time
                            font.pixelSize: BasicConstants.fonts.small
                            color: BasicConstants.colors.textSecondary
                        }
                        BasicLabel {
                            Layout.fillWidth: true
                            text: Strings.text("UI_APP_SHORTCUTS_LOG_ENTRY").arg(name).arg(origin)
                        }
                    }
                }
            }
        }
    }
}
