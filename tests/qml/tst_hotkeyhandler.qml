import QtQuick
import QtTest
import Qml.QtComponents
import Qml.QtBasicComponents
import Orvo.QtExtensions

// The hotkey handler as the application loads it: keys typed into a window run their
// commands, and nothing runs while a message box is up.
TestCase {
    id: testCase
    name: "HotkeyHandler"
    when: windowShown
    width: 480
    height: 320

    CommandExecutionMonitor {
        id: monitor
    }

    SignalSpy {
        id: executed
        target: monitor
        signalName: "commandExecuted"
    }

    CommandListModel {
        id: commands
    }

    Component {
        id: messageBoxComponent
        BasicMessageBox {
            title: "Question"
            text: "Keep the changes?"
        }
    }

    function loadHandler() {
        var component = Qt.createComponent("qrc:/UIComponents/HotkeyHandler/HotkeyHandler.qml")
        verify(component.status === Component.Ready, component.errorString())
        var handler = createTemporaryObject(component, testCase)
        verify(handler)
        return handler
    }

    function ranCommands() {
        var ran = []
        for (var i = 0; i < executed.count; ++i) {
            var args = executed.signalArguments[i]
            ran.push(args[0] + "(" + args[1] + ") by " + args[2])
        }
        return ran
    }

    function init() {
        loadHandler()
        executed.clear()
    }

    function cleanup() {
        commands.setShortcut("test.node", "Ctrl+Shift+N")
    }

    function test_keySequenceRunsItsCommand_data() {
        return [
            { tag: "modifiers and a letter", keys: "Ctrl+Shift+N", ran: "test.node() by HotkeyHandler" },
            { tag: "function key, with parameters", keys: "F7", ran: "test.measure(mode=distance) by HotkeyHandler" },
            { tag: "the binding to Enter", keys: "Enter", ran: "test.confirm(apply) by HotkeyHandler" },
            { tag: "Return answers the Enter binding", keys: "Return", ran: "test.confirm(apply) by HotkeyHandler" }
        ]
    }

    function test_keySequenceRunsItsCommand(data) {
        keySequence(data.keys)
        compare(ranCommands(), [data.ran])
    }

    function test_unboundAndDisabledRunNothing_data() {
        return [
            { tag: "a key no command is bound to", keys: "Ctrl+Shift+Q" },
            { tag: "a disabled command", keys: "Ctrl+L" }
        ]
    }

    function test_unboundAndDisabledRunNothing(data) {
        keySequence(data.keys)
        compare(ranCommands(), [])
    }

    function test_nothingRunsWhileAMessageBoxIsVisible() {
        var box = createTemporaryObject(messageBoxComponent, testCase)
        box.open()
        tryCompare(box, "visible", true)
        compare(hotkeyHandlerModel.shortcutsEnabled, false)

        keySequence("Ctrl+Shift+N")
        keySequence("F7")
        compare(ranCommands(), [])

        box.close()
        tryCompare(box, "visible", false)
        compare(hotkeyHandlerModel.shortcutsEnabled, true)
        keySequence("Ctrl+Shift+N")
        compare(ranCommands(), ["test.node() by HotkeyHandler"])
    }

    function test_aShortcutChangedAtRunTimeAnswersAtOnce() {
        verify(commands.setShortcut("test.node", "Ctrl+Alt+K"))

        keySequence("Ctrl+Shift+N")
        compare(ranCommands(), [])
        keySequence("Ctrl+Alt+K")
        compare(ranCommands(), ["test.node() by HotkeyHandler"])
    }
}
