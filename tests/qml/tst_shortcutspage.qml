import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Qml.QtComponents
import Orvo.QtExtensions
import "../common/TestSupport.js" as TestSupport

// The demo's keyboard shortcuts page at the size the demo gives it, over the shipped commands.
TestCase {
    id: testCase
    name: "ShortcutsPage"
    width: 1089
    height: 736
    when: windowShown
    visible: true

    property var page: null
    property var restore: []

    CommandListModel { id: commands }

    function rowOf(uuid) {
        return TestSupport.rowWhere(commands, CommandListModel.UuidRole, uuid)
    }

    function shortcutOf(uuid) {
        return commands.data(commands.index(rowOf(uuid), 0), CommandListModel.ShortcutRole)
    }

    function commandAt(row) {
        return commands.data(commands.index(row, 0), CommandListModel.UuidRole)
    }

    function openPage() {
        page = TestSupport.createDocument(testCase, Qt.resolvedUrl("../../app/qml/ShortcutsPage.qml"),
                                          { width: testCase.width, height: testCase.height })
        return page
    }

    // The application's hotkey handler outlives its pages, as in the demo.
    function initTestCase() {
        TestSupport.createHotkeyHandler(testCase, true)
    }

    function init() {
        restore = []
    }

    function cleanup() {
        for (const binding of restore)
            commands.setShortcut(binding.uuid, binding.shortcut)
    }

    function remember(uuid) {
        restore.push({ uuid: uuid, shortcut: shortcutOf(uuid) })
    }

    // Every binding of the hotkey handler can be seen: in view, or reachable by scrolling.
    function test_everyBindingCanBeReached() {
        openPage()
        const bindings = findChild(page, "hotkeyBindings")
        verify(bindings.count > 10)
        tryVerify(() => bindings.height > 0)
        const scrollBar = bindings.ScrollBar.vertical
        verify(bindings.contentHeight <= bindings.height || (scrollBar !== null && scrollBar.policy === ScrollBar.AlwaysOn),
               "rows below the panel's edge must be in view or announced by a scroll bar")
    }

    // The log lists what ran before the page was opened.
    function test_theLogListsCommandsRunBeforeItOpened() {
        const saveRow = rowOf("5d85bcf0-15b0-44be-9bad-202d1b15dcbc")
        verify(saveRow >= 0)
        keySequence(shortcutOf(commandAt(saveRow)))
        openPage()
        const log = findChild(page, "commandRunLog")
        verify(log.count > 0)
        compare(log.model.data(log.model.index(0, 0), CommandHistoryModel.NameRole), "Save")
        compare(log.model.data(log.model.index(0, 0), CommandHistoryModel.OriginRole), "Keyboard shortcut")
    }

    // Giving a command a shortcut another command has asks first, and moves it only if agreed.
    function test_aTakenShortcutMovesOnlyWhenTheUserAgrees_data() {
        return [{ tag: "kept", agree: false }, { tag: "moved", agree: true }]
    }

    function test_aTakenShortcutMovesOnlyWhenTheUserAgrees(data) {
        openPage()
        const owner = "34ecfcf1-2343-4e3d-adcb-722902af15fd" // Move, Ctrl+M
        const taker = "cfad05ae-4dcb-4f34-863e-287f78744b71" // Mirror, no shortcut
        remember(owner)
        remember(taker)
        const list = findChild(page, "shortcutCommandList")
        list.currentIndex = rowOf(taker)
        const field = findChild(page, "shortcutField")
        field.forceActiveFocus()
        keyClick(Qt.Key_M, Qt.ControlModifier)
        compare(field.text, "Ctrl+M", "the shortcut is recorded by pressing it")
        mouseClick(findChild(page, "applyShortcut"))

        const box = findChild(page, "shortcutConflict")
        tryCompare(box, "visible", true)
        compare(shortcutOf(owner), "Ctrl+M", "nothing changes before the user answers")
        const answer = findChild(box.footer, data.agree ? "messageBoxAccept" : "messageBoxReject")
        verify(answer)
        verify(!answer.contentItem.truncated, "the answer can be read whole: " + answer.text)
        mouseClick(answer)
        tryCompare(box, "visible", false)
        compare(shortcutOf(owner), data.agree ? "" : "Ctrl+M")
        compare(shortcutOf(taker), data.agree ? "Ctrl+M" : "")
    }

    // A binding's row names the command the shortcut runs.
    function test_everyBindingNamesItsCommand() {
        openPage()
        const bindings = findChild(page, "hotkeyBindings")
        tryVerify(() => bindings.itemAtIndex(2) !== null)
        for (let i = 0; i < 3; ++i) {
            const row = bindings.itemAtIndex(i)
            const name = commands.commandName(row.cmdUuid)
            verify(name.length > 0, row.cmdUuid)
            compare(row.children[1].text, name)
        }
    }
}
