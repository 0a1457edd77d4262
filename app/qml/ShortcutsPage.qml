import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import QtQuick.Controls.Basic as Controls
import UIComponents.Common
import UIComponents.Utilities
import Orvo.QtExtensions
import Demo

// Keyboard shortcuts at work: the application's commands with their shortcuts (record a new
// one by pressing it; a shortcut another command has is moved only when the user agrees), what
// the hotkey handler has bound, every command run since the application started, and a message
// box during which no shortcut runs anything.
Item {
    id: page

    CommandListModel {
        id: commands
    }

    readonly property bool shortcutsEnabled: DemoShell.hotkeyHandlerModel !== null
                                             && DemoShell.hotkeyHandlerModel.shortcutsEnabled

    CommandHistoryModel {
        id: runLog
    }

    // Asks before a shortcut is taken from the command that has it.
    BasicMessageBox {
        id: conflictBox
        objectName: "shortcutConflict"
        property string uuid: ""
        property string sequence: ""
        property string owner: ""
        title: Strings.text("UI_APP_SHORTCUTS_CONFLICT_TITLE")
        text: Strings.text("UI_APP_SHORTCUTS_CONFLICT_TEXT").arg(sequence).arg(commands.commandName(owner))
              .arg(commands.commandName(uuid))
        acceptText: Strings.text("UI_APP_SHORTCUTS_CONFLICT_MOVE")
        rejectText: Strings.text("UI_APP_SHORTCUTS_CONFLICT_KEEP")
        onAccepted: commands.moveShortcut(uuid, sequence)
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
                    Controls.ScrollBar.vertical: Controls.ScrollBar {
                        policy: commandList.contentHeight > commandList.height ? Controls.ScrollBar.AlwaysOn : Controls.ScrollBar.AlwaysOff
                    }
                    model: commands
                    currentIndex: 0
                    delegate: Rectangle {
                        id: commandRow
                        required property int index
                        required property string name
                        required property string shortcut
                        required property string icon
                        required property bool commandEnabled
                        width: ListView.view.width - 12
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
                                source: commandRow.icon
                            }
                            BasicLabel {
                                Layout.fillWidth: true
                                text: commandRow.name
                                enabled: commandRow.commandEnabled
                            }
                            Rectangle {
                                visible: commandRow.shortcut !== ""
                                Layout.preferredWidth: shortcutText.implicitWidth + 12
                                Layout.preferredHeight: 18
                                radius: BasicConstants.sizes.radius
                                color: BasicConstants.colors.panelHeader
                                border.color: BasicConstants.colors.border
                                KeyboardShortcutText {
                                    id: shortcutText
                                    anchors.centerIn: parent
                                    sequence: commandRow.shortcut
                                    color: BasicConstants.colors.text
                                }
                            }
                        }
                        MouseArea {
                            id: rowMouse
                            anchors.fill: parent
                            hoverEnabled: true
                            onClicked: commandRow.ListView.view.currentIndex = commandRow.index
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
                        const owner = sequence.trim().length > 0 ? commands.shortcutOwner(sequence, currentUuid) : ""
                        if (owner !== "") {
                            refused = false
                            conflictBox.uuid = currentUuid
                            conflictBox.sequence = sequence.trim()
                            conflictBox.owner = owner
                            conflictBox.open()
                            return
                        }
                        refused = !commands.setShortcut(currentUuid, sequence)
                    }

                    BasicLabel {
                        Layout.preferredWidth: 230
                        text: Strings.text("UI_APP_SHORTCUTS_EDIT_LABEL").arg(editor.current ? editor.current.name : "")
                    }
                    ShortcutField {
                        id: sequenceField
                        objectName: "shortcutField"
                        Layout.fillWidth: true
                        placeholderText: Strings.text("UI_APP_SHORTCUTS_EDIT_PLACEHOLDER")
                        text: editor.current ? editor.current.shortcut : ""
                        invalid: editor.refused
                        onTextEdited: editor.refused = false
                        onRecorded: editor.refused = false
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
                            color: page.shortcutsEnabled ? BasicConstants.colors.success
                                                                       : BasicConstants.colors.error
                        }
                        BasicLabel {
                            objectName: "shortcutsState"
                            Layout.fillWidth: true
                            wrapMode: Text.WordWrap
                            text: page.shortcutsEnabled ? Strings.text("UI_APP_SHORTCUTS_ON")
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
                Layout.fillHeight: true
                // As tall as its rows when there is room; the log below keeps room for some rows.
                Layout.preferredHeight: bindingsList.contentHeight + BasicConstants.sizes.controlHeight + 20
                Layout.maximumHeight: Layout.preferredHeight
                title: Strings.text("UI_APP_SHORTCUTS_BINDINGS_TITLE")

                ShortcutBindingsList {
                    id: bindingsList
                    objectName: "hotkeyBindings"
                    anchors { fill: parent; margins: 8 }
                    clip: true
                    Controls.ScrollBar.vertical: Controls.ScrollBar {
                        policy: bindingsList.contentHeight > bindingsList.height ? Controls.ScrollBar.AlwaysOn : Controls.ScrollBar.AlwaysOff
                    }
                    model: DemoShell.hotkeyHandlerModel
                    commandList: commands
                    delegate: RowLayout {
                        id: bindingRow
                        // The list attaches itself only after the row's first bindings.
                        readonly property ShortcutBindingsList list: ListView.view as ShortcutBindingsList
                        required property int index
                        required property string cmdUuid
                        required property string cmdShortcut
                        width: ListView.view.width - 12
                        height: 20
                        spacing: 8
                        KeyboardShortcutText {
                            Layout.preferredWidth: 100
                            sequence: bindingRow.cmdShortcut
                            color: BasicConstants.colors.text
                        }
                        BasicLabel {
                            Layout.fillWidth: true
                            text: bindingRow.list ? bindingRow.list.commandList.commandName(bindingRow.cmdUuid) : ""
                            font.pixelSize: BasicConstants.fonts.small
                        }
                    }
                }
            }

            BasicPanel {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.minimumHeight: 160
                Layout.preferredHeight: 160
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
                    id: runLogList
                    objectName: "commandRunLog"
                    anchors { fill: parent; margins: 8 }
                    clip: true
                    Controls.ScrollBar.vertical: Controls.ScrollBar {
                        policy: runLogList.contentHeight > runLogList.height ? Controls.ScrollBar.AlwaysOn : Controls.ScrollBar.AlwaysOff
                    }
                    model: runLog
                    delegate: RowLayout {
                        id: logEntry
                        required property string name
                        required property string origin
                        required property date time
                        width: ListView.view.width - 12
                        height: 20
                        spacing: 8
                        BasicLabel {
                            text: Qt.formatTime(logEntry.time, "hh:mm:ss")
                            font.pixelSize: BasicConstants.fonts.small
                            color: BasicConstants.colors.textSecondary
                        }
                        BasicLabel {
                            Layout.fillWidth: true
                            text: Strings.text("UI_APP_SHORTCUTS_LOG_ENTRY").arg(logEntry.name).arg(logEntry.origin)
                        }
                    }
                }
            }
        }
    }
}
