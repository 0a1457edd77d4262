import QtQuick
import Qml.QtComponents

// The application's keyboard shortcuts: one application-wide Shortcut per binding of the
// host's command repository. The native half makes the model when the host loads the panel.
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

    function run(binding) {
        hotkeyHandler.model.logDebugMessage("Hotkey activated: " + binding.cmdShortcut)
        hotkeyHandler.model.commandSelected(binding.cmdUuid, binding.cmdParameterString)
    }

    // Qt calls a key bound twice ambiguous and gives it to one of the bindings. A command bound
    // to Return has two rows (the second makes Enter's command answer Return too): when every
    // binding of the key runs the same command, run it once.
    function runAmbiguous(binding) {
        const bindings = bindingsOf(binding.sequence)
        if (bindings.every(other => other.cmdUuid === binding.cmdUuid
                           && other.cmdParameterString === binding.cmdParameterString)) {
            run(binding)
        } else {
            console.warn("Hotkey " + binding.cmdShortcut + " is bound to several commands ("
                         + bindings.map(other => other.cmdUuid).join(", ") + "); none was run")
        }
    }

    Repeater {
        id: bindingRepeater
        model: hotkeyHandler.model
        // The bindings know only their row: the handler switches them and runs their commands.
        onItemAdded: (index, item) => {
            item.shortcutEnabled = Qt.binding(() => hotkeyHandler.model !== null && hotkeyHandler.model.shortcutsEnabled)
            item.activated.connect(() => hotkeyHandler.run(item))
            item.activatedAmbiguously.connect(() => hotkeyHandler.runAmbiguous(item))
        }

        delegate: Item {
            id: binding
            required property string cmdUuid
            required property string cmdShortcut
            required property string cmdParameterString
            property bool shortcutEnabled: false
            readonly property string sequence: shortcut.portableText
            signal activated()
            signal activatedAmbiguously()

            Shortcut {
                id: shortcut
                context: Qt.ApplicationShortcut
                sequence: binding.cmdShortcut
                enabled: binding.shortcutEnabled
                onActivated: binding.activated()
                onActivatedAmbiguously: binding.activatedAmbiguously()
            }
        }
    }
}
