import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Tables

// The input table panel used as a person uses it: tabs opened, closed and dragged, the
// workstation switched, a table filtered, sorted, multi-edited and pasted into, with the host's
// data read back by a panel of its own; then the layout left behind comes back in a new panel.
TestCase {
    id: testCase
    name: "TablePanels"
    width: 1100
    height: 600
    visible: true
    when: windowShown

    Component { id: panelComponent; TableInput { width: testCase.width; height: testCase.height } }
    // Reads the host's table anew: what the host holds, not what the panel under test shows.
    Component { id: readerComponent; TableInput_Cpp {} }
    Component { id: clipboardWriter; TextEdit {} }

    property var panel: null
    property int panels: 0

    function createPanel(key) {
        const created = createTemporaryObject(panelComponent, testCase, { configurationKey: key })
        verify(created !== null)
        created.forceActiveFocus()
        return created
    }
    function init() {
        failOnWarning(/.+/)
        ++panels
        ensureNodes(6)
        panel = createPanel("PanelsTest" + panels)
        tryVerify(() => view() !== null && view().rows > 0)
    }

    function reader(tableId) {
        const created = createTemporaryObject(readerComponent, testCase)
        created.tableId = tableId
        return created.contentModel
    }
    function columnIn(model, id) {
        for (let column = 0; column < model.columnCount; ++column) {
            if (model.headerData(column, Qt.Horizontal, TableContentModel.ColumnIdRole) === id)
                return column
        }
        return -1
    }
    // Nodes at x = 1, 2, ... so that the tables have rows to work on.
    function ensureNodes(count) {
        const model = reader("node")
        const x = columnIn(model, "node.x")
        while (model.rowCountSubmitted < count) {
            verify(model.setData(model.index(model.newRowIndex, x), String(model.rowCountSubmitted + 1),
                                 TableContentModel.ContentRole))
            model.confirmUpdate()
        }
    }
    function hostValues(tableId, columnId) {
        const model = reader(tableId)
        const column = columnIn(model, columnId)
        const values = []
        for (let row = 0; row < model.rowCountSubmitted; ++row)
            values.push(model.data(model.index(row, column), TableContentModel.ContentRole))
        return values
    }

    function view() { return findChild(panel, "contentTableView") }
    function shown() { return panel.contentModel.contentFilterModel }
    function columnOf(id) { return columnIn(shown(), id) }
    function cell(row, column) { return view().itemAtCell(column, row) }
    function clickItem(item, modifiers) {
        verify(item !== null)
        mouseClick(item, item.width / 2, item.height / 2, Qt.LeftButton, modifiers === undefined ? Qt.NoModifier : modifiers)
    }
    function clickCell(row, column, modifiers) {
        view().positionViewAtCell(column, row, TableView.Contain)
        tryVerify(() => cell(row, column) !== null)
        clickItem(cell(row, column), modifiers)
    }
    function typeText(text) {
        for (const character of text)
            keyClick(character)
    }
    // The tab bar as a person reads it, the selected tab in brackets.
    function bar() {
        const tabs = panel.tabsFilterModel
        const ids = []
        for (let place = 0; place < tabs.rowCount(); ++place) {
            const id = tabs.data(tabs.index(place, 0), TableTabsModel.IdRole)
            ids.push(place === tabs.selectedIndex ? "[" + id + "]" : id)
        }
        return ids.join(" ")
    }
    function tab(id) { return findChild(panel, "tab_" + id) }
    function openFromTheBar(id) {
        clickItem(findChild(panel, "openTableButton"))
        const popup = findChild(panel, "tablesPopup")
        tryVerify(() => popup.opened)
        const toggle = findChild(popup.contentItem, "openTable_" + id)
        clickItem(toggle)
        tryCompare(panel, "tableId", id)
        keyClick(Qt.Key_Escape)
        tryVerify(() => !popup.visible)
    }
    function dragTab(id, beforeId) {
        const from = tab(id), to = tab(beforeId)
        const target = to.mapToItem(from, 4, to.height / 2)
        mousePress(from, from.width / 3, from.height / 2)
        mouseMove(from, from.width / 3 + 10, from.height / 2)
        mouseMove(from, target.x, target.y)
        mouseRelease(from, target.x, target.y)
    }

    function test_1_tabsOpenCloseMoveAndStep() {
        compare(bar(), "[node]")
        openFromTheBar("member")
        tryCompare(panel, "tableId", "member")
        openFromTheBar("support")
        compare(bar(), "node member [support]")
        tryVerify(() => tab("support") !== null && tab("node") !== null)

        dragTab("support", "node")
        compare(bar(), "[support] node member")
        compare(panel.tableId, "support")

        // Ctrl+PageDown and Ctrl+PageUp walk the bar and stop at its ends, from inside the table
        clickCell(0, 0)
        keyClick(Qt.Key_PageDown, Qt.ControlModifier)
        compare(bar(), "support [node] member")
        compare(panel.tableId, "node")
        keyClick(Qt.Key_PageUp, Qt.ControlModifier)
        keyClick(Qt.Key_PageUp, Qt.ControlModifier)
        compare(bar(), "[support] node member")

        // closing the shown tab shows its neighbour
        clickItem(findChild(tab("support"), "closeButton"))
        compare(bar(), "[node] member")
        compare(panel.tableId, "node")
        compare(panel.contentModel.rowCountSubmitted, hostValues("node", "node.x").length)
    }

    function test_2_theWorkstationSwitchKeepsEachWorkstationsTabs() {
        openFromTheBar("member")
        const workstations = findChild(panel, "workstationSwitch")
        verify(workstations.visible)
        clickItem(workstations)
        tryVerify(() => workstations.popup.opened)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        tryCompare(panel, "tableId", "loadCase")
        compare(bar(), "[loadCase]")

        clickItem(workstations)
        tryVerify(() => workstations.popup.opened)
        keyClick(Qt.Key_Up)
        keyClick(Qt.Key_Return)
        tryCompare(panel, "tableId", "member")
        compare(bar(), "node [member]")
    }

    function test_3_filterSortMultiEditAndPasteReachTheHost() {
        const x = columnOf("node.x"), y = columnOf("node.y")
        // a filter on X keeps the nodes at x >= 3
        clickItem(findChild(panel, "filterField_" + x))
        typeText(">=3")
        keyClick(Qt.Key_Return)
        const expected = hostValues("node", "node.x").filter(value => value >= 3).length
        tryCompare(shown(), "rowCountSubmitted", expected)

        // a click on the title sorts by X, the host orders the rows
        clickItem(findChild(panel, "headerCell_" + x))
        tryVerify(() => findChild(panel, "headerCell_" + x).sortOrder === TableContentModel.Ascending)
        const first = shown().data(shown().index(0, x), TableContentModel.ContentRole)
        verify(first >= 3)

        // the first two shown nodes get +1.5 on Y through the multi-edit box
        const before = hostValues("node", "node.y")
        const xs = hostValues("node", "node.x")
        clickCell(0, y)
        clickCell(1, y, Qt.ShiftModifier)
        const edited = [shown().data(shown().index(0, x), TableContentModel.ContentRole),
                        shown().data(shown().index(1, x), TableContentModel.ContentRole)]
        clickItem(findChild(panel, "multiEditExpression"))
        typeText("+1.5")
        keyClick(Qt.Key_Return)
        tryVerify(() => {
            const after = hostValues("node", "node.y")
            return xs.every((value, row) => Math.abs(after[row] - before[row] - (edited.includes(value) ? 1.5 : 0)) < 1e-9)
        }, 5000, "only the two selected nodes moved up by 1.5")

        // a pasted column of two values lands on the two shown rows from the current cell on
        const writer = createTemporaryObject(clipboardWriter, testCase)
        writer.text = "7\n8"
        writer.selectAll()
        writer.copy()
        clickCell(0, y)
        keyClick(Qt.Key_V, Qt.ControlModifier)
        tryVerify(() => {
            const after = hostValues("node", "node.y")
            const ys = hostValues("node", "node.x").map((value, row) => ({ x: value, y: after[row] }))
            return ys.filter(node => node.x === edited[0])[0].y === 7 && ys.filter(node => node.x === edited[1])[0].y === 8
        }, 5000, "the pasted values are the host's")
    }

    function test_4_aNewPanelRestoresTheLayoutLeftBehind() {
        const key = "PanelsTestRestored"
        let first = createPanel(key)
        panel = first
        tryVerify(() => view() !== null && view().rows > 0)
        // Z hidden through the column selector, two tables opened, the last dragged to the front
        clickItem(findChild(panel, "columnsButton"))
        const popup = findChild(panel, "columnsPopup")
        tryVerify(() => popup.opened)
        const list = findChild(popup.contentItem, "columnsList")
        for (let i = 0; i < list.count; ++i) {
            if (list.model.data(list.model.index(i, 0), TableColumnsModel.IdRole) === "node.z")
                list.positionViewAtIndex(i, ListView.Contain)
        }
        tryVerify(() => findChild(list, "columnToggle_node.z") !== null)
        clickItem(findChild(list, "columnToggle_node.z"))
        keyClick(Qt.Key_Escape)
        tryCompare(popup, "visible", false)
        compare(columnOf("node.z"), -1)
        openFromTheBar("support")
        openFromTheBar("member")
        tryVerify(() => tab("member") !== null && tab("node") !== null)
        dragTab("member", "node")
        compare(bar(), "[member] node support")
        const columns = shown().columnCount
        first.storeConfiguration()
        first.destroy()
        wait(0)

        panel = createPanel(key)
        compare(bar(), "[member] node support")
        compare(panel.tableId, "member")
        compare(shown().columnCount, columns)
        clickItem(tab("node"))
        compare(panel.tableId, "node")
        compare(columnOf("node.z"), -1)
        verify(columnOf("node.x") >= 0)
    }
}
