import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Common

// Recording a shortcut by pressing it, while writing one stays possible.
TestCase {
    id: testCase
    name: "ShortcutField"
    width: 300
    height: 100
    when: windowShown
    visible: true

    Component {
        id: fieldComponent
        ShortcutField { width: 200 }
    }

    // An application shortcut on a key the field records: it must not run while recording.
    Shortcut {
        id: applicationShortcut
        context: Qt.ApplicationShortcut
        sequence: "Ctrl+Shift+K"
        property int runs: 0
        onActivated: ++runs
    }

    function test_keys_data() {
        return [
            { tag: "a combination is recorded", key: Qt.Key_K, modifiers: Qt.ControlModifier | Qt.ShiftModifier,
              text: "Ctrl+Shift+K", recorded: 1 },
            { tag: "a function key is recorded", key: Qt.Key_F5, modifiers: Qt.NoModifier, text: "F5", recorded: 1 },
            { tag: "Alt counts as a command modifier", key: Qt.Key_1, modifiers: Qt.AltModifier, text: "Alt+1", recorded: 1 },
            { tag: "a letter is typed", key: "d", modifiers: Qt.NoModifier, text: "d", recorded: 0 },
            { tag: "a capital is typed", key: "D", modifiers: Qt.ShiftModifier, text: "D", recorded: 0 }
        ]
    }

    function test_keys(data) {
        const field = createTemporaryObject(fieldComponent, testCase)
        const spy = createTemporaryObject(spyComponent, testCase, { target: field })
        field.forceActiveFocus()
        tryVerify(() => field.activeFocus)
        applicationShortcut.runs = 0
        keyClick(data.key, data.modifiers)
        compare(field.text, data.text)
        compare(spy.count, data.recorded)
        compare(applicationShortcut.runs, 0, "the application's shortcut stayed quiet")
    }

    function test_writingAShortcutStaysPossible() {
        const field = createTemporaryObject(fieldComponent, testCase)
        field.forceActiveFocus()
        tryVerify(() => field.activeFocus)
        keyClick("D", Qt.ShiftModifier)
        keyClick("e")
        keyClick("l")
        compare(field.text, "Del")
    }

    Component {
        id: spyComponent
        SignalSpy { signalName: "recorded" }
    }
}
