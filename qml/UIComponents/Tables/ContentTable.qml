import QtQuick
import QtQuick.Controls.Basic as Controls
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants

// A data table over a TableContentModel: sortable, resizable and movable columns, a filter bar,
// spreadsheet selection, editors per content type, the new-row line, copy and paste, and the
// multi-edit box. The view shows the model's filter model; the feeder behind the model is the host's.
// Titles, filter fields and row numbers are header views synchronised with the table, so they
// always stand where the table's columns and rows are.
FocusScope {
    id: root
    required property TableContentModel contentModel
    readonly property TableContentFilterModel table: root.contentModel ? root.contentModel.contentFilterModel : null
    readonly property TableSelectionFilterModel selection: root.table ? root.table.selectionModel : null
    readonly property int rowHeight: UIComponentsConstants.tableRowHeight
    readonly property int verticalHeaderWidth: Math.max(root.table ? root.table.minVerticalHeaderWidth : 32,
                                                        12 + 8 * String(root.table ? root.table.rowCount : 0).length)

    FilterBarModel { id: ownFilterBar }
    Component.onCompleted: {
        if (root.contentModel && !root.contentModel.filterBarModel)
            root.contentModel.filterBarModel = ownFilterBar
        keys.forceActiveFocus()
    }

    QtObject {
        id: d
        readonly property int pageRows: Math.max(1, Math.floor(tableView.height / root.rowHeight) - 1)
        readonly property int scrollBarWidth: 14

        function relayout() {
            // Widths may change while the view lays out (a delivery widens a column): wait for it.
            relayoutTimer.start()
        }
        function cellAt(item, x, y) {
            const point = item.mapToItem(tableView.contentItem, x, y)
            const cell = tableView.cellAtPosition(point.x, point.y)
            return cell.x < 0 || cell.y < 0 ? null : root.table.index(cell.y, cell.x)
        }
        function moveCurrent(rows, columns) {
            const current = root.selection.currentSelectedIndex
            const row = current.valid ? Math.max(0, Math.min(root.table.rowCount - 1, current.row + rows)) : 0
            const column = current.valid ? Math.max(0, Math.min(root.table.columnCount - 1, current.column + columns)) : 0
            root.selection.select(root.table.index(row, column), TableSelectionModel.CleanSelect, true)
        }
        function moveCurrentTo(row) {
            const current = root.selection.currentSelectedIndex
            root.selection.select(root.table.index(row, current.valid ? current.column : 0), TableSelectionModel.CleanSelect, true)
        }
        function scrollBy(dx, dy) {
            tableView.contentY = Math.max(0, Math.min(Math.max(0, tableView.contentHeight - tableView.height), tableView.contentY - dy))
            tableView.contentX = Math.max(0, Math.min(Math.max(0, tableView.contentWidth - tableView.width), tableView.contentX - dx))
        }
        // The column a title dropped at sceneX lands before.
        function dropColumn(fromColumn, sceneX) {
            const point = tableView.contentItem.mapFromItem(null, sceneX, 0)
            const target = tableView.cellAtPosition(point.x, tableView.contentY + 1).x
            if (target >= 0 && target !== fromColumn)
                root.table.moveColumn(fromColumn, target > fromColumn ? target + 1 : target)
        }
    }

    function startEditing(text) {
        const current = root.selection.currentSelectedIndex
        if (!current.valid)
            return
        const isNewRow = current.row === root.table.newRowIndex
        if (!isNewRow && !root.table.data(current, TableContentModel.EditableRole))
            return
        if (isNewRow)
            root.contentModel.columnsModel.displayAllMandatoryColumns()
        tableView.positionViewAtCell(current.column, current.row, TableView.Contain)
        const item = tableView.itemAtCell(current.column, current.row)
        if (!item)
            return
        if (!isNewRow && root.table.data(current, TableContentModel.ContentTypeRole) === TableContentModel.Bool) {
            root.table.setData(current, !root.table.data(current, TableContentModel.ContentRole), TableContentModel.ContentRole)
            root.table.confirmUpdate()
            return
        }
        const topLeft = item.mapToItem(root, 0, 0)
        editor.x = topLeft.x
        editor.y = topLeft.y
        editor.width = Math.max(item.width, 120)
        editor.height = item.height
        editor.open(current.row, current.column, isNewRow, text)
    }

    // The table's keys: every key a user presses on the table, and only there, comes here.
    Item {
        id: keys
        focus: true
        Keys.onPressed: event => {
            const shift = event.modifiers & Qt.ShiftModifier
            const ctrl = event.modifiers & Qt.ControlModifier
            const step = { [Qt.Key_Up]: [-1, 0], [Qt.Key_Down]: [1, 0], [Qt.Key_Left]: [0, -1], [Qt.Key_Right]: [0, 1],
                           [Qt.Key_PageUp]: [-d.pageRows, 0], [Qt.Key_PageDown]: [d.pageRows, 0] }[event.key]
            if (ctrl && event.key === Qt.Key_Home) {
                d.moveCurrentTo(0)
            } else if (ctrl && event.key === Qt.Key_End) {
                d.moveCurrentTo(root.table.rowCount - 1)
            } else if (step) {
                if (shift)
                    root.selection.extendSelection(step[0], step[1])
                else
                    d.moveCurrent(step[0], step[1])
            } else if (event.matches(StandardKey.SelectAll)) {
                root.selection.selectAll()
            } else if (event.matches(StandardKey.Copy)) {
                root.table.copyToClipboard()
            } else if (event.matches(StandardKey.Paste)) {
                root.table.pasteFromClipboard()
                root.table.confirmUpdate()
            } else if (event.key === Qt.Key_F2 || event.key === Qt.Key_Return || event.key === Qt.Key_Enter
                       || event.key === Qt.Key_Space) {
                root.startEditing()
            } else if (event.key === Qt.Key_Escape) {
                root.selection.select(root.table.index(-1, -1), TableSelectionModel.CleanSelect)
            } else if (!ctrl && event.text.length === 1 && event.text >= " ") {
                root.startEditing(event.text)
            } else {
                return
            }
            event.accepted = true
        }
    }

    // Lays the view out once the events queued now are handled, however many asked for it.
    Timer {
        id: relayoutTimer
        interval: 0
        onTriggered: tableView.forceLayout()
    }

    Connections {
        target: root.table
        function onColumnWidthChanged() { d.relayout() }
        function onColumnsLayoutChanged() { d.relayout() }
        function onColumnCountChanged() { d.relayout() }
    }
    Connections {
        target: root.selection
        function onEnsureVisibleCurrentSelected() {
            const current = root.selection.currentSelectedIndex
            if (current.valid)
                tableView.positionViewAtCell(current.column, current.row, TableView.Contain)
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 4

        TableToolBar {
            Layout.fillWidth: true
            contentModel: root.contentModel
            onDone: keys.forceActiveFocus()
        }

        // Column titles
        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: false
            Layout.preferredHeight: titles.implicitHeight
            spacing: 0
            Rectangle {
                Layout.preferredWidth: root.verticalHeaderWidth
                Layout.fillHeight: true
                color: UIComponentsConstants.tableHeader
                border.color: UIComponentsConstants.tableGrid
                MouseArea {
                    anchors.fill: parent
                    onClicked: { root.selection.selectAll(); keys.forceActiveFocus() }
                }
            }
            TableColumnHeaderView {
                id: titles
                objectName: "columnTitles"
                Layout.fillWidth: true
                // A header view's implicit size is the table's content: the layout must not follow it.
                Layout.preferredWidth: 100
                Layout.preferredHeight: implicitHeight
                Layout.rightMargin: d.scrollBarWidth
                implicitHeight: root.table ? root.table.horizontalHeaderHeight : 24
                syncView: tableView
                // A title's own drag moves its column; the view must not take it for a flick.
                interactive: false
                clip: true
                table: root.table
                onTitleDragMoved: (columnLabel, sceneX) => columnDrag.follow(columnLabel, sceneX)
                onTitleDropped: (column, sceneX) => { columnDrag.visible = false; d.dropColumn(column, sceneX) }
                delegate: TableHeaderCell {
                    id: title
                    // The view hands itself to a cell only after the cell's first bindings.
                    readonly property TableColumnHeaderView view: TableView.view as TableColumnHeaderView
                    table: title.view ? title.view.table : null
                    implicitHeight: title.view ? title.view.implicitHeight : 24
                    onDragMoved: sceneX => title.view.titleDragMoved(title.columnLabel, sceneX)
                    onDropped: sceneX => title.view.titleDropped(title.column, sceneX)
                }
            }
        }

        // Filter texts
        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: false
            Layout.preferredHeight: filters.implicitHeight
            spacing: 0
            Rectangle {
                Layout.preferredWidth: root.verticalHeaderWidth
                Layout.fillHeight: true
                color: UIComponentsConstants.tableHeader
                Text {
                    anchors.centerIn: parent
                    text: "⚲"
                    color: root.table && root.table.filterBarModel && root.table.filterBarModel.anyCondition
                           ? BasicConstants.colors.accent : BasicConstants.colors.textSecondary
                }
            }
            TableColumnHeaderView {
                id: filters
                objectName: "filterBar"
                Layout.fillWidth: true
                Layout.preferredWidth: 100
                Layout.preferredHeight: implicitHeight
                Layout.rightMargin: d.scrollBarWidth
                implicitHeight: root.rowHeight + 2
                syncView: tableView
                interactive: false
                clip: true
                table: root.table
                onCellFinished: keys.forceActiveFocus()
                delegate: TableFilterCell {
                    id: filter
                    readonly property TableColumnHeaderView view: TableView.view as TableColumnHeaderView
                    table: filter.view ? filter.view.table : null
                    implicitHeight: filter.view ? filter.view.implicitHeight : UIComponentsConstants.tableRowHeight + 2
                    onFinished: filter.view.cellFinished()
                }
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0

            // Row numbers; a click selects the row, Shift extends, Ctrl toggles.
            TableRowHeaderView {
                id: rowNumbers
                objectName: "rowNumbers"
                Layout.preferredWidth: root.verticalHeaderWidth
                Layout.fillHeight: true
                Layout.preferredHeight: 100
                Layout.bottomMargin: d.scrollBarWidth
                syncView: tableView
                interactive: false
                clip: true
                selection: root.selection
                cellWidth: root.verticalHeaderWidth
                onCellClicked: keys.forceActiveFocus()
                delegate: TableRowHeaderCell {
                    id: rowNumber
                    readonly property TableRowHeaderView view: TableView.view as TableRowHeaderView
                    selection: rowNumber.view ? rowNumber.view.selection : null
                    implicitWidth: rowNumber.view ? rowNumber.view.cellWidth : 32
                    onClicked: rowNumber.view.cellClicked()
                }
            }

            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true

                ContentTableView {
                    id: tableView
                    objectName: "contentTableView"
                    anchors { fill: parent; rightMargin: d.scrollBarWidth; bottomMargin: d.scrollBarWidth }
                    clip: true
                    interactive: false
                    boundsBehavior: Flickable.StopAtBounds
                    model: root.table
                    columnWidthProvider: column => root.table ? root.table.columnWidth(column) : 0
                    rowHeightProvider: () => root.rowHeight
                    Controls.ScrollBar.vertical: verticalBar
                    Controls.ScrollBar.horizontal: horizontalBar
                    newRowIndex: root.table ? root.table.newRowIndex : -1
                    editingRow: editor.visible ? editor.row : -1
                    editingColumn: editor.visible ? editor.column : -1
                    delegate: TableCell {
                        id: tableCell
                        readonly property ContentTableView view: TableView.view as ContentTableView
                        newRow: tableCell.view ? tableCell.row === tableCell.view.newRowIndex : false
                        editing: tableCell.view ? tableCell.view.editingRow === tableCell.row
                                                  && tableCell.view.editingColumn === tableCell.column : false
                    }
                }

                // Clicks, drags and the wheel over the cells; the scroll bars keep their own.
                MouseArea {
                    id: cellMouse
                    objectName: "cellMouse"
                    anchors.fill: tableView
                    acceptedButtons: Qt.LeftButton
                    property var pressIndex: null
                    property bool dragging: false
                    property int dragMode: TableSelectionModel.CleanSelect

                    onPressed: mouse => {
                        keys.forceActiveFocus()
                        const index = d.cellAt(cellMouse, mouse.x, mouse.y)
                        pressIndex = index
                        dragging = false
                        if (!index)
                            return
                        const ctrl = mouse.modifiers & Qt.ControlModifier
                        dragMode = ctrl ? TableSelectionModel.Append : TableSelectionModel.CleanSelect
                        if (mouse.modifiers & Qt.ShiftModifier)
                            root.selection.selectRegion(index, dragMode)
                        else
                            root.selection.select(index, ctrl ? TableSelectionModel.Toggle : TableSelectionModel.CleanSelect)
                    }
                    onPositionChanged: mouse => {
                        if (!pressed || !pressIndex)
                            return
                        const index = d.cellAt(cellMouse, mouse.x, mouse.y)
                        if (!index)
                            return
                        if (!dragging && (index.row !== pressIndex.row || index.column !== pressIndex.column)) {
                            dragging = true
                            root.selection.beginSelectRegion(pressIndex, dragMode)
                        }
                        if (dragging)
                            root.selection.selectRegion(index, dragMode)
                    }
                    onReleased: {
                        if (dragging)
                            root.selection.endSelectRegion(false)
                        dragging = false
                    }
                    onDoubleClicked: mouse => {
                        const index = d.cellAt(cellMouse, mouse.x, mouse.y)
                        if (index)
                            root.startEditing()
                    }
                    onWheel: wheel => d.scrollBy(wheel.angleDelta.x, wheel.angleDelta.y)
                }

                TableScrollBar {
                    id: verticalBar
                    objectName: "verticalScrollBar"
                    orientation: Qt.Vertical
                    anchors { top: parent.top; right: parent.right; bottom: parent.bottom; bottomMargin: d.scrollBarWidth }
                    width: d.scrollBarWidth
                }
                TableScrollBar {
                    id: horizontalBar
                    objectName: "horizontalScrollBar"
                    orientation: Qt.Horizontal
                    anchors { left: parent.left; right: parent.right; bottom: parent.bottom; rightMargin: d.scrollBarWidth }
                    height: d.scrollBarWidth
                }
            }
        }
    }

    // What a dragged title shows while it moves: the title under the pointer.
    Rectangle {
        id: columnDrag
        objectName: "columnDragIndicator"
        visible: false
        z: 20
        width: dragText.implicitWidth + 16
        height: titles.height
        radius: 3
        opacity: 0.85
        color: BasicConstants.colors.accentLight
        border.color: BasicConstants.colors.accent
        function follow(label, sceneX) {
            dragText.text = label
            const point = root.mapFromItem(null, sceneX, 0)
            x = point.x - width / 2
            y = titles.mapToItem(root, 0, 0).y
            visible = true
        }
        Text {
            id: dragText
            anchors.centerIn: parent
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            font.bold: true
            color: BasicConstants.colors.text
        }
    }

    TableCellEditor {
        id: editor
        objectName: "cellEditor"
        visible: false
        z: 10
        table: root.table
        contentModel: root.contentModel
        onFinished: accepted => {
            if (accepted)
                root.table.confirmUpdate()
            // The editor lets go of the keys: the next key is the table's again.
            keys.forceActiveFocus()
        }
    }
}
