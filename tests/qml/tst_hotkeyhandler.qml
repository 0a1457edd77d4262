import QtQuick
import QtTest
import Qml.QtComponents
import Qml.QtBasicComponents
import Orvo.QtExtensions
import "../common/TestSupport.js" as TestSupport

// The hotkey handler as the application loads it, over the application's shipped commands:
// keys typed into a window run their commands, and nothing runs while a message box is up.
TestCase {
    id: testCase
    name: "HotkeyHandler"
    when: windowShown
    width: 480
    height: 320

    property var changedCommand: null

    CommandExecutionMonitor { id: monitor }
    SignalSpy { id: executed; target: monitor; signalName: "commandExecuted" }
    CommandListModel { id: commands }
    Component {
        id: nodesComponent
        TableInput_Cpp { tableId: "node" }
    }
    Component {
        id: messageBoxComponent
        BasicMessageBox { title: "Question"; text: "Keep the changes?" }
    }

    // The commands a key runs: enabled, with a shortcut.
    function boundCommands() {
        var bound = []
        for (var row = 0; row < commands.count; ++row) {
            var index = commands.index(row, 0)
            var shortcut = commands.data(index, CommandListModel.ShortcutRole)
            if (shortcut !== "" && commands.data(index, CommandListModel.EnabledRole)) {
                bound.push({ uuid: commands.data(index, CommandListModel.UuidRole), shortcut: shortcut,
                             parameters: commands.data(index, CommandListModel.ParameterStringRole) })
            }
        }
        return bound
    }

    function ran(command) { return command.uuid + "(" + command.parameters + ") by HotkeyHandler" }

    function ranCommands() {
        return executed.signalArguments.map(args => args[0] + "(" + args[1] + ") by " + args[2])
    }

    function rebind(command, shortcut) {
        changedCommand = command
        verify(commands.setShortcut(command.uuid, shortcut))
        // The bindings are made anew; the old ones go when the event loop deletes them.
        wait(0)
    }

    function initTestCase() {
        verify(boundCommands().length > 0, "the application ships commands with shortcuts")
    }

    function init() {
        TestSupport.createHotkeyHandler(testCase)
        executed.clear()
    }

    function cleanup() {
        if (changedCommand)
            commands.setShortcut(changedCommand.uuid, changedCommand.shortcut)
        changedCommand = null
    }

    function test_everyShortcutRunsItsCommand_data() {
        return boundCommands().map(command => ({ tag: command.shortcut, command: command }))
    }

    function test_everyShortcutRunsItsCommand(data) {
        keySequence(data.command.shortcut)
        compare(ranCommands(), [ran(data.command)])
    }

    function test_nothingRunsWhileAMessageBoxIsVisible() {
        var command = boundCommands()[0]
        var box = createTemporaryObject(messageBoxComponent, testCase)
        box.open()
        tryCompare(box, "visible", true)
        compare(hotkeyHandlerModel.shortcutsEnabled, false)
        keySequence(command.shortcut)
        compare(ranCommands(), [])

        box.close()
        tryCompare(box, "visible", false)
        compare(hotkeyHandlerModel.shortcutsEnabled, true)
        keySequence(command.shortcut)
        compare(ranCommands(), [ran(command)])
    }

    function test_aShortcutChangedAtRunTimeAnswersAtOnce() {
        var command = boundCommands()[0]
        rebind(command, "Ctrl+Alt+Shift+K")
        keySequence(command.shortcut)
        compare(ranCommands(), [])
        keySequence("Ctrl+Alt+Shift+K")
        compare(ranCommands(), [ran(command)])
    }

    function test_returnAlsoAnswersACommandBoundToEnter() {
        var command = boundCommands()[0]
        rebind(command, "Enter")
        keySequence("Enter")
        keySequence("Return")
        compare(ranCommands(), [ran(command), ran(command)])
    }

    // The extra row repeats a Return binding, so two shortcuts share the key; both run the same
    // command, and it runs once per press.
    function test_aCommandBoundToReturnRunsOnce() {
        var command = boundCommands()[0]
        rebind(command, "Return")
        keySequence("Return")
        compare(ranCommands(), [ran(command)])
        keySequence("Return")
        compare(ranCommands(), [ran(command), ran(command)])
    }

    // Two commands on one key: which one the user meant is unknown, so neither runs.
    function test_aKeyBoundToTwoCommandsRunsNeither() {
        var bound = boundCommands()
        var first = bound[0]
        var second = bound[1]
        rebind(first, second.shortcut)
        ignoreWarning(new RegExp("Hotkey " + second.shortcut.replace(/\+/g, "\\+") + " is bound to several commands"))
        keySequence(second.shortcut)
        compare(ranCommands(), [])
    }

    // The keys walk the host's undo stack, and a table of the model follows each step.
    function test_ctrlZAndCtrlYWalkTheUndoStack() {
        const model = createTemporaryObject(nodesComponent, testCase).contentModel
        let x = -1
        for (let column = 0; column < model.columnCount; ++column) {
            if (model.headerData(column, Qt.Horizontal, TableContentModel.ColumnIdRole) === "node.x")
                x = column
        }
        verify(x >= 0)
        const rows = model.rowCountSubmitted
        verify(model.setData(model.index(model.newRowIndex, x), "7", TableContentModel.ContentRole))
        model.confirmUpdate()
        compare(model.rowCountSubmitted, rows + 1)

        keySequence("Ctrl+Z")
        compare(model.rowCountSubmitted, rows)
        keySequence("Ctrl+Y")
        compare(model.rowCountSubmitted, rows + 1)
        compare(model.data(model.index(rows, x), TableContentModel.ContentRole), 7)
    }
}
