import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Tables
import Demo

// The demo's 100,000-member table used as a person uses it: mouse and keys, far from the top.
TestCase {
    id: testCase
    name: "TableInteraction"
    width: 1100
    height: 560
    visible: true
    when: windowShown

    Component { id: feederComponent; StructuralMembersFeeder {} }
    Component { id: tableComponent; ContentTable { width: testCase.width; height: testCase.height } }
    Component { id: clipboardReader; TextEdit {} }

    property var table: null
    property var model: null
    property var shown: null

    function init() {
        failOnWarning(/.+/)
        const feeder = createTemporaryObject(feederComponent, testCase)
        model = feeder.model
        shown = model.contentFilterModel
        table = createTemporaryObject(tableComponent, testCase, { contentModel: model })
        table.forceActiveFocus()
        tryVerify(() => view().rows > 0 && cell(0, 0) !== null)
    }

    function view() { return findChild(table, "contentTableView") }
    function cell(row, column) { return view().itemAtCell(column, row) }
    function columnOf(id) {
        for (let column = 0; column < shown.columnCount; ++column) {
            if (shown.headerData(column, Qt.Horizontal, TableContentModel.ColumnIdRole) === id)
                return column
        }
        return -1
    }
    function valueAt(row, id) { return shown.data(shown.index(row, columnOf(id)), TableContentModel.ContentRole) }
    function current() { return shown.selectionModel.currentSelectedIndex }
    function firstShownRow() { return Math.ceil(view().contentY / table.rowHeight) }

    function clickCell(row, column, modifiers) {
        view().positionViewAtCell(column, row, TableView.Contain)
        tryVerify(() => cell(row, column) !== null)
        const item = cell(row, column)
        mouseClick(item, item.width / 2, item.height / 2, Qt.LeftButton, modifiers === undefined ? Qt.NoModifier : modifiers)
    }
    function typeText(text) {
        for (const character of text)
            keyClick(character)
    }
    function clipboardText() {
        const reader = createTemporaryObject(clipboardReader, testCase)
        reader.paste()
        return reader.text
    }

    // Drags the vertical scroll bar's handle to the middle of its track, then turns the wheel.
    function scrollToMiddle() {
        const bar = findChild(table, "verticalScrollBar")
        verify(bar !== null)
        const handleY = bar.position * bar.height + 4
        mousePress(bar, bar.width / 2, handleY)
        mouseMove(bar, bar.width / 2, bar.height / 2)
        mouseRelease(bar, bar.width / 2, bar.height / 2)
        mouseWheel(view(), view().width / 2, view().height / 2, 0, -240)
        tryVerify(() => firstShownRow() > 40000 && firstShownRow() < 60000)
        tryVerify(() => cell(firstShownRow() + 3, 0) !== null)
        return firstShownRow()
    }

    function test_1_clicksReachCellsAfterScrolling() {
        const top = scrollToMiddle()
        clickCell(top + 3, 2)
        compare(current().row, top + 3)
        compare(current().column, 2)
        const name = columnOf("name")
        const item = cell(top + 4, name)
        mouseDoubleClickSequence(item, item.width / 2, item.height / 2)
        const editor = findChild(table, "cellEditor")
        tryVerify(() => editor.visible)
        compare(current().row, top + 4)
    }

    function test_1_theNewRowLineCanBeReached() {
        const bar = findChild(table, "verticalScrollBar")
        mousePress(bar, bar.width / 2, bar.position * bar.height + 4)
        mouseMove(bar, bar.width / 2, bar.height - 1)
        mouseRelease(bar, bar.width / 2, bar.height - 1)
        tryVerify(() => cell(shown.newRowIndex, 0) !== null)
        const item = cell(shown.newRowIndex, 0)
        mouseClick(item, item.width / 2, item.height / 2)
        compare(current().row, shown.newRowIndex)
    }

    function test_2_aFinishedEditLeavesTheKeysToTheTable() {
        const top = scrollToMiddle()
        const length = columnOf("length")
        const row = top + 2
        const item = cell(row, length)
        mouseDoubleClickSequence(item, item.width / 2, item.height / 2)
        typeText("2*1,5")
        keyClick(Qt.Key_Return)
        tryVerify(() => Math.abs(valueAt(row, "length") - 3) < 1e-9, 5000, "the first edit")
        // typing on the current cell starts the next edit
        typeText("2500mm")
        keyClick(Qt.Key_Return)
        tryVerify(() => Math.abs(valueAt(row, "length") - 2.5) < 1e-9, 5000, "the second edit replaced the value")

        // Ctrl+C copies the selected block, Ctrl+V pastes it
        clickCell(row, length)
        clickCell(row + 1, length, Qt.ShiftModifier)
        keyClick(Qt.Key_C, Qt.ControlModifier)
        const copied = clipboardText().split("\n")
        compare(copied.length, 3)
        compare(Number(copied[1]), 2.5)
        clickCell(row + 5, length)
        keyClick(Qt.Key_V, Qt.ControlModifier)
        tryVerify(() => Math.abs(valueAt(row + 5, "length") - 2.5) < 1e-9)
    }

    function test_5_cellEditorsTakeExpressionsWithUnits_data() {
        return [
            { tag: "led by =, decimal comma", text: "=2*1,5", expected: 3 },
            { tag: "with a unit", text: "2500mm", expected: 2.5 },
            { tag: "expression with units", text: "=2*500mm", expected: 1 }
        ]
    }
    function test_5_cellEditorsTakeExpressionsWithUnits(data) {
        const top = scrollToMiddle()
        const length = columnOf("length")
        const item = cell(top + 1, length)
        mouseDoubleClickSequence(item, item.width / 2, item.height / 2)
        keyClick(Qt.Key_A, Qt.ControlModifier)
        typeText(data.text)
        keyClick(Qt.Key_Return)
        tryVerify(() => Math.abs(valueAt(top + 1, "length") - data.expected) < 1e-9, 5000, data.tag)
        verify(!findChild(table, "cellEditor").visible)
    }

    function clickItem(item) { mouseClick(item, item.width / 2, item.height / 2) }
    function columnToggle(popup, id) {
        const list = findChild(popup.contentItem, "columnsList")
        for (let i = 0; i < list.count; ++i) {
            if (list.model.data(list.model.index(i, 0), TableColumnsModel.IdRole) === id) {
                list.positionViewAtIndex(i, ListView.Contain)
                return list.itemAtIndex(i)
            }
        }
        return null
    }
    function header(column) { return findChild(table, "headerCell_" + column) }
    function filterField(column) { return findChild(table, "filterField_" + column) }
    function sceneX(item) { return item.mapToItem(null, 0, 0).x }
    function showsOnlyMaterial(material) {
        const rows = Math.min(shown.rowCountSubmitted, 30)
        for (let row = 0; row < rows; ++row) {
            if (valueAt(row, "material") !== material)
                return false
        }
        return rows > 0
    }
    function typeFilter(column, text) {
        clickItem(filterField(column))
        typeText(text)
        keyClick(Qt.Key_Return)
    }

    function test_3_filtersStayUnderTheirColumns() {
        // Columns… → hide Name and Type → Narrow → show all → Widen
        clickItem(findChild(table, "columnsButton"))
        const popup = findChild(table, "columnsPopup")
        tryVerify(() => popup.opened)
        clickItem(columnToggle(popup, "name"))
        clickItem(columnToggle(popup, "type"))
        keyClick(Qt.Key_Escape)
        tryVerify(() => !popup.visible)
        clickItem(findChild(table, "narrowColumnsButton"))
        clickItem(findChild(table, "columnsButton"))
        tryVerify(() => popup.opened)
        clickItem(findChild(popup.contentItem, "showAllColumnsButton"))
        keyClick(Qt.Key_Escape)
        clickItem(findChild(table, "extendColumnsButton"))
        // every filter field stands under its title
        for (let column = 0; column < shown.columnCount; ++column) {
            tryVerify(() => header(column) !== null && filterField(column) !== null, 2000, "column " + column)
            tryVerify(() => Math.abs(sceneX(header(column)) - sceneX(filterField(column))) < 1
                      && Math.abs(header(column).width - filterField(column).width) < 1, 2000, "column " + column)
        }
        // a filter typed under Material filters Material
        const material = columnOf("material")
        typeFilter(material, "S460")
        tryVerify(() => showsOnlyMaterial("S460"), 5000, "only S460 shown")
        const shownBefore = shown.rowCountSubmitted
        verify(shownBefore > 10000 && shownBefore < 30000)

        // a member added in the new-row line, with that material, is shown too, and the line stays
        keyClick(Qt.Key_End, Qt.ControlModifier)
        tryCompare(current(), "row", shown.newRowIndex)
        keyClick(Qt.Key_Home)
        const name = columnOf("name")
        clickCell(shown.newRowIndex, name)
        typeText("N1")
        keyClick(Qt.Key_Return)
        clickCell(shown.newRowIndex, material)
        typeText("S460")
        keyClick(Qt.Key_Return)
        tryCompare(model, "rowCountSubmitted", 100001)
        tryCompare(shown, "rowCountSubmitted", shownBefore + 1)
        compare(shown.newRowIndex, shown.rowCountSubmitted)
    }

    function test_3_showingAColumnKeepsTheFilters() {
        const material = columnOf("material")
        typeFilter(material, "S460")
        tryVerify(() => showsOnlyMaterial("S460"))
        clickItem(findChild(table, "columnsButton"))
        const popup = findChild(table, "columnsPopup")
        tryVerify(() => popup.opened)
        clickItem(columnToggle(popup, "comment"))
        keyClick(Qt.Key_Escape)
        tryVerify(() => columnOf("comment") >= 0)
        tryVerify(() => filterField(columnOf("material")).text === "S460")
        verify(showsOnlyMaterial("S460"))
    }

    function test_4_aFilterThatIsNoConditionIsMarked_data() {
        return [
            { tag: "operators only", text: "<<<", malformed: true },
            { tag: "an opening bracket", text: "[", malformed: true },
            { tag: "a comparison", text: "<=5", malformed: false },
            { tag: "a range", text: "[2;4]", malformed: false }
        ]
    }
    function test_4_aFilterThatIsNoConditionIsMarked(data) {
        const count = columnOf("count")
        typeFilter(count, data.text)
        // the fields are made anew when the table re-filters: ask for the field each time
        tryVerify(() => filterField(count).conditionText === data.text)
        compare(filterField(count).invalid, data.malformed)
    }

    function test_6_namesSortInNaturalOrder() {
        const name = columnOf("name")
        clickItem(header(name))
        tryVerify(() => header(name).sortOrder === TableContentModel.Ascending)
        let previous = null
        for (let row = 0; row < 40; ++row) {
            const text = valueAt(row, "name")
            const letter = text[0], number = Number(text.slice(1))
            if (previous !== null)
                verify(letter > previous.letter || letter === previous.letter && number > previous.number,
                       previous.text + " before " + text)
            previous = { text: text, letter: letter, number: number }
        }
    }

    function test_7_ctrlHomeAndCtrlEndGoToTheEnds() {
        clickCell(2, 1)
        keyClick(Qt.Key_End, Qt.ControlModifier)
        compare(current().row, shown.rowCount - 1)
        tryVerify(() => cell(shown.rowCount - 1, 1) !== null, 2000, "the last line is in view")
        keyClick(Qt.Key_Home, Qt.ControlModifier)
        compare(current().row, 0)
        compare(current().column, 1)
        tryVerify(() => cell(0, 1) !== null)
    }

    function test_7_aSortedTitleShowsItsWholeLabel() {
        const length = columnOf("length")
        clickItem(header(length))
        tryVerify(() => header(length).sortOrder === TableContentModel.Ascending)
        tryVerify(() => !header(length).titleTruncated, 2000, "the label is not cut off")
    }

    function test_7_theColumnsPopupStaysInTheWindow() {
        table.width = 700 // the button near the window's right edge
        clickItem(findChild(table, "columnsButton"))
        const popup = findChild(table, "columnsPopup")
        tryVerify(() => popup.opened)
        const right = popup.contentItem.mapToItem(null, popup.contentItem.width, 0).x
        verify(right <= testCase.width, "popup ends at " + right)
        keyClick(Qt.Key_Escape)
    }

    function test_7_aDraggedTitleShowsWhereItGoes() {
        const source = header(columnOf("count"))
        const target = header(columnOf("section"))
        const indicator = findChild(table, "columnDragIndicator")
        mousePress(source, source.width / 2, source.height / 2)
        mouseMove(source, source.width / 2 - 20, source.height / 2, -1, Qt.LeftButton)
        const toX = target.mapToItem(source, target.width / 2, 0).x
        mouseMove(source, toX, source.height / 2, -1, Qt.LeftButton)
        verify(indicator.visible)
        mouseRelease(source, toX, source.height / 2)
        verify(!indicator.visible)
        compare(columnOf("count"), 2)
    }

    function test_8_noWarningWhenScrollingAfterAColumnMove() {
        // failOnWarning is armed for every test; this one moves a column and scrolls both ways.
        const source = header(columnOf("colour"))
        const target = header(columnOf("name"))
        mousePress(source, source.width / 2, source.height / 2)
        const toX = target.mapToItem(source, 5, 0).x
        mouseMove(source, source.width / 2 - 20, source.height / 2, -1, Qt.LeftButton)
        mouseMove(source, toX, source.height / 2, -1, Qt.LeftButton)
        mouseRelease(source, toX, source.height / 2)
        compare(columnOf("colour"), 0)
        for (let turn = 0; turn < 20; ++turn)
            mouseWheel(view(), view().width / 2, view().height / 2, 0, -360)
        for (let turn = 0; turn < 10; ++turn)
            mouseWheel(view(), view().width / 2, view().height / 2, -240, 120)
        wait(50)
    }

    // Header cells are made by their own views, apart from the table: what they finish must still
    // hand the keys back to the table, so that Ctrl+A selects the table, not a field's text.
    function test_9_headerCellsGiveTheKeysBack_data() {
        return [
            { tag: "filter accepted", key: Qt.Key_Return, row: -1 },
            { tag: "filter given up", key: Qt.Key_Escape, row: -1 },
            { tag: "row number clicked", key: 0, row: 3 }
        ]
    }

    function test_9_headerCellsGiveTheKeysBack(data) {
        if (data.row >= 0) {
            const numbers = findChild(table, "rowNumbers")
            tryVerify(() => numbers.itemAtCell(0, data.row) !== null)
            const number = numbers.itemAtCell(0, data.row)
            compare(number.width, table.verticalHeaderWidth)
            clickItem(number)
            verify(shown.selectionModel.isRowSelected(data.row))
        } else {
            // The field the bar shows: the view keeps spare fields of the same name for reuse.
            const field = findChild(table, "filterBar").itemAtCell(columnOf("name"), 0)
            clickItem(field)
            verify(field.activeFocus)
            keyClick(data.key)
        }
        keyClick(Qt.Key_A, Qt.ControlModifier)
        verify(shown.selectionModel.selectedAll)
    }

    // The cell under the editor and the cells of the new-row line know it.
    function test_9_cellsKnowTheEditorAndTheNewRowLine() {
        clickCell(2, columnOf("name"))
        keyClick(Qt.Key_F2)
        tryVerify(() => findChild(table, "cellEditor").visible)
        verify(cell(2, columnOf("name")).editing)
        verify(!cell(2, columnOf("length")).editing)
        keyClick(Qt.Key_Escape)
        tryVerify(() => !cell(2, columnOf("name")).editing)
        verify(!cell(0, 0).newRow)
        view().positionViewAtCell(0, shown.newRowIndex, TableView.Contain)
        tryVerify(() => cell(shown.newRowIndex, 0) !== null)
        verify(cell(shown.newRowIndex, 0).newRow)
    }
}
