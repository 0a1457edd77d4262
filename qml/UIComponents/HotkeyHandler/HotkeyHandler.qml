import QtQuick
import Qml.QtComponents

// The application's keyboard shortcuts: one application-wide Shortcut per binding of the
// host's command repository. The native half publishes the model in the shell's context
// when the host loads the panel.
HotkeyHandler_Cpp {
    id: hotkeyHandler

    Repeater {
        model: hotkeyHandlerModel

        delegate: Item {
            required property string cmdUuid
            required property string cmdShortcut
            required property string cmdParameterString

            Shortcut {
                context: Qt.ApplicationShortcut
                sequence: cmdShortcut
                enabled: hotkeyHandlerModel.shortcutsEnabled
                onActivated: {
                    hotkeyHandlerModel.logDebugMessage("Hotkey activated: " + cmdShortcut)
                    hotkeyHandlerModel.commandSelected(cmdUuid, cmdParameterString)
                }
            }
        }
    }
}
