import QtQuick
import Qml.QtBasicComponents
import Orvo.QtExtensions

// A field for a keyboard shortcut: pressing a key combination with Ctrl, Alt or Meta, or a
// function key, records it ("Ctrl+Shift+M"); anything else types as in any field, so a
// shortcut can also be written ("Del"). While the field has the focus, the combinations it
// records do not reach the application's shortcuts (and the field's own Ctrl+C, Ctrl+V are
// recorded too: this field is for keys, not for the clipboard).
BasicTextField {
    id: field

    // A combination was pressed and recorded.
    signal recorded(string sequence)

    function recordable(event) {
        const commandModifiers = Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier
        const functionKey = event.key >= Qt.Key_F1 && event.key <= Qt.Key_F35
        return (event.modifiers & commandModifiers) !== 0 || functionKey
    }

    function record(event) {
        const sequence = KeySequences.fromKeyPress(event.key, event.modifiers)
        if (sequence.length === 0)
            return false
        text = sequence
        recorded(sequence)
        return true
    }

    Keys.onShortcutOverride: event => event.accepted = recordable(event)
    Keys.onPressed: event => {
        if (recordable(event))
            event.accepted = record(event)
    }
}
