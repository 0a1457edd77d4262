import QtQuick
import Qml.QtComponents

// The application's keyboard shortcuts: one application-wide Shortcut per binding of the
// host's command repository. The native half publishes the model in the shell's context
// when the host loads the panel.
HotkeyHandler_Cpp {
    id: hotkeyHandler

    // The bindings whose shortcut is the same key sequence as sequence.
    function bindingsOf(sequence) {
        const bindings = []
        for (let i = 0; i < bindingRepeater.count; ++i) {
            const binding = bindingRepeater.itemAt(i)
            if (binding && binding.sequence === sequence)
                bindings.push(binding)
        }
        return bindings
    }

    Repeater {
        id: bindingRepeater
        model: hotkeyHandlerModel

        delegate: Item {
            id: binding
            required property string cmdUuid
            required property string cmdShortcut
            required property string cmdParameterString
            readonly property string sequence: shortcut.portableText

            function run() {
                hotkeyHandlerModel.logDebugMessage("Hotkey activated: " + cmdShortcut)
                hotkeyHandlerModel.commandSelected(cmdUuid, cmdParameterString)
            }

            Shortcut {
                id: shortcut
                context: Qt.ApplicationShortcut
                sequence: binding.cmdShortcut
                enabled: hotkeyHandlerModel.shortcutsEnabled
                onActivated: binding.run()
                // Qt calls a key bound twice ambiguous and gives it to one of the bindings. A
                // command bound to Return has two rows (the second makes Enter's command answer
                // Return too): when every binding of the key runs the same command, run it once.
                onActivatedAmbiguously: {
                    const bindings = hotkeyHandler.bindingsOf(binding.sequence)
                    if (bindings.every(other => other.cmdUuid === binding.cmdUuid
                                       && other.cmdParameterString === binding.cmdParameterString)) {
                        binding.run()
                    } else {
                        console.warn("Hotkey " + binding.cmdShortcut + " is bound to several commands ("
                                     + bindings.map(other => other.cmdUuid).join(", ") + "); none was run")
                    }
                }
            }
        }
    }
}
