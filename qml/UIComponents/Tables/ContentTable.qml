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
FocusScope {
    id: root
    required property var contentModel
    readonly property var table: contentModel?.contentFilterModel ?? null
    readonly property var selection: table?.selectionModel ?? null
    property int layoutRevision: 0
    readonly property int rowHeight: UIComponentsConstants.tableRowHeight
    readonly property int verticalHeaderWidth: Math.max(table?.minVerticalHeaderWidth ?? 32, 12 + 8 * String(table?.rowCount ?? 0).length)

    // Roles of TableContentModel, as QML sees them by number.
    readonly property int roleContent: 257
    readonly property int roleContentType: 262
    readonly property int roleColumnId: 264
    readonly property int roleColumnLabel: 265
    readonly property int roleEditable: 267
    readonly property int roleRequired: 268
    readonly property int roleSortable: 269
    readonly property int roleSortOrder: 270

    FilterBarModel { id: ownFilterBar }
    Component.onCompleted: if (contentModel && !contentModel.filterBarModel) contentModel.filterBarModel = ownFilterBar

    Connections {
        target: root.table
        function onColumnWidthChanged() { root.relayout() }
        function onColumnsLayoutChanged() { root.relayout() }
        function onHeaderDataChanged() { root.layoutRevision++ }
        function onColumnCountChanged() { root.relayout() }
    }
    Connections {
        target: root.selection
        function onEnsureVisibleCurrentSelected() {
            const current = root.selection.currentSelectedIndex
            if (current.valid)
                tableView.positionViewAtCell(current.column, current.row, TableView.Contain)
        }
    }

    function relayout() {
        layoutRevision++
        // Widths may change while the view is laying out (a delivery widens a column): wait for it.
        Qt.callLater(tableView.forceLayout)
    }
    function indexAt(x, y) {
        const point = root.mapToItem(tableView.contentItem, x, y)
        const cell = tableView.cellAtPos(point.x, point.y)
        return cell.x < 0 || cell.y < 0 ? null : table.index(cell.y, cell.x)
    }
    function currentIndex() {
        return selection.currentSelectedIndex
    }
    function moveCurrent(rows, columns) {
        const current = currentIndex()
        const row = current.valid ? Math.max(0, Math.min(table.rowCount - 1, current.row + rows)) : 0
        const column = current.valid ? Math.max(0, Math.min(table.columnCount - 1, current.column + columns)) : 0
        selection.select(table.index(row, column), TableSelectionModel.CleanSelect, true)
    }
    function startEditing(text) {
        const current = currentIndex()
        if (!current.valid || !table.allowEdit && current.row !== table.newRowIndex)
            return
        const isNewRow = current.row === table.newRowIndex
        if (!isNewRow && !table.data(current, roleEditable))
            return
        if (isNewRow)
            contentModel.columnsModel.displayAllMandatoryColumns()
        tableView.positionViewAtCell(current.column, current.row, TableView.Contain)
        const item = tableView.itemAtCell(current.column, current.row)
        if (!item)
            return
        if (!isNewRow && table.data(current, roleContentType) === TableContentModel.Bool) {
            table.setData(current, !table.data(current, roleContent), roleContent)
            table.confirmUpdate()
            return
        }
        const topLeft = item.mapToItem(root, 0, 0)
        editor.x = topLeft.x
        editor.y = topLeft.y
        editor.width = Math.max(item.width, 120)
        editor.height = item.height
        editor.row = current.row
        editor.column = current.column
        editor.newRow = isNewRow
        editor.visible = true
        editor.open(text !== undefined ? text : String(table.data(current, roleContent) ?? ""), text !== undefined)
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 4

        RowLayout {
            Layout.fillWidth: true
            spacing: BasicConstants.sizes.spacing
            MultiEditBox {
                Layout.fillWidth: true
                contentModel: root.contentModel
                visible: root.table?.allowEdit ?? false
            }
            Item { Layout.fillWidth: true; visible: !(root.table?.allowEdit ?? false) }
            BasicButton {
                text: Strings.text("UI_TABLE_NARROW_COLUMNS")
                onClicked: root.table.narrowAllColumns()
            }
            BasicButton {
                text: Strings.text("UI_TABLE_EXTEND_COLUMNS")
                onClicked: root.table.extendAllColumns()
            }
            BasicButton {
                id: columnsButton
                text: Strings.text("UI_TABLE_COLUMNS")
                onClicked: columnsPopup.open()
                Controls.Popup {
                    id: columnsPopup
                    y: columnsButton.height
                    width: 220
                    height: Math.min(360, columnsList.contentHeight + 44)
                    ColumnLayout {
                        anchors.fill: parent
                        ListView {
                            id: columnsList
                            Layout.fillWidth: true
                            Layout.fillHeight: true
                            clip: true
                            model: root.contentModel?.columnsModel ?? null
                            delegate: BasicCheckBox {
                                required property int index
                                required property var model
                                width: columnsList.width
                                text: model.label
                                checked: model.visible
                                onToggled: root.contentModel.columnsModel.setData(root.contentModel.columnsModel.index(index, 0), checked, 259)
                            }
                        }
                        BasicButton {
                            Layout.fillWidth: true
                            text: Strings.text("UI_TABLE_SHOW_ALL_COLUMNS")
                            onClicked: root.contentModel.columnsModel.displayAllColumns()
                        }
                    }
                }
            }
            BasicButton {
                text: Strings.text("UI_TABLE_CLEAR_FILTERS")
                enabled: root.table?.filterBarModel?.anyCondition ?? false
                onClicked: root.table.filterBarModel.clearAll()
            }
        }

        // Column titles
        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: false
            Layout.preferredHeight: root.table?.horizontalHeaderHeight ?? 24
            Layout.maximumHeight: root.table?.horizontalHeaderHeight ?? 24
            spacing: 0
            Rectangle {
                Layout.preferredWidth: root.verticalHeaderWidth
                Layout.fillHeight: true
                color: UIComponentsConstants.tableHeader
                border.color: UIComponentsConstants.tableGrid
                MouseArea {
                    anchors.fill: parent
                    onClicked: { root.selection.selectAll(); root.forceActiveFocus() }
                }
            }
            ListView {
                id: header
                Layout.fillWidth: true
                Layout.fillHeight: true
                orientation: ListView.Horizontal
                interactive: false
                clip: true
                contentX: tableView.contentX
                model: root.table?.columnCount ?? 0
                delegate: TableHeaderCell {
                    required property int index
                    objectName: "headerCell_" + index
                    table: root.table
                    column: index
                    width: { root.layoutRevision; return root.table?.columnWidth(index) ?? 0 }
                    height: header.height
                    label: { root.layoutRevision; return root.table?.headerData(index, Qt.Horizontal, root.roleColumnLabel) ?? "" }
                    sortOrder: { root.layoutRevision; return root.table?.headerData(index, Qt.Horizontal, root.roleSortOrder) ?? 0 }
                    sortable: { root.layoutRevision; return root.table?.headerData(index, Qt.Horizontal, root.roleSortable) ?? false }
                    required: { root.layoutRevision; return root.table?.headerData(index, Qt.Horizontal, root.roleRequired) ?? false }
                    onMoveRequested: (fromColumn, sceneX) => {
                        const point = tableView.contentItem.mapFromItem(null, sceneX, 0)
                        const target = tableView.cellAtPos(point.x, tableView.contentY + 1).x
                        if (target >= 0 && target !== fromColumn)
                            root.table.moveColumn(fromColumn, target > fromColumn ? target + 1 : target)
                    }
                }
            }
        }

        // Filter texts
        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: false
            Layout.preferredHeight: root.rowHeight + 2
            Layout.maximumHeight: root.rowHeight + 2
            spacing: 0
            Rectangle {
                Layout.preferredWidth: root.verticalHeaderWidth
                Layout.fillHeight: true
                color: UIComponentsConstants.tableHeader
                Text {
                    anchors.centerIn: parent
                    text: "⚲"
                    color: root.table?.filterBarModel?.anyCondition ? BasicConstants.colors.accent
                                                                                            : BasicConstants.colors.textSecondary
                }
            }
            TableFilterBar {
                Layout.fillWidth: true
                Layout.fillHeight: true
                table: root.table
                widthsRevision: root.layoutRevision
                contentX: tableView.contentX
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0

            // Row numbers; a click selects the row, Shift extends, Ctrl toggles.
            ListView {
                id: rowHeader
                Layout.preferredWidth: root.verticalHeaderWidth
                Layout.fillHeight: true
                interactive: false
                clip: true
                contentY: tableView.contentY
                model: root.table?.rowCount ?? 0
                delegate: Rectangle {
                    required property int index
                    width: rowHeader.width
                    height: root.rowHeight
                    property bool rowSelected: { root.layoutRevision; return root.selection?.isRowSelected(index) ?? false }
                    property bool currentRow: { root.layoutRevision; return root.selection?.currentSelectedIndex.row === index }
                    color: rowSelected ? UIComponentsConstants.tableSelection
                                       : currentRow ? BasicConstants.colors.accentLight : UIComponentsConstants.tableHeader
                    border.color: UIComponentsConstants.tableGrid
                    Text {
                        anchors { fill: parent; rightMargin: 6 }
                        horizontalAlignment: Text.AlignRight
                        verticalAlignment: Text.AlignVCenter
                        text: { root.layoutRevision; return root.table?.headerData(index, Qt.Vertical, 0) ?? "" }
                        font.family: BasicConstants.fonts.family
                        font.pixelSize: BasicConstants.fonts.small
                        color: BasicConstants.colors.textSecondary
                    }
                    MouseArea {
                        anchors.fill: parent
                        onClicked: mouse => {
                            if (mouse.modifiers & Qt.ShiftModifier)
                                root.selection.selectRowFromLast(index)
                            else
                                root.selection.selectRow(index, mouse.modifiers & Qt.ControlModifier ? TableSelectionModel.Toggle
                                                                                                     : TableSelectionModel.CleanSelect)
                            root.forceActiveFocus()
                        }
                    }
                }
                Connections {
                    target: root.selection
                    function onRegionCountChanged() { root.layoutRevision++ }
                    function onCurrentSelectedIndexChanged() { root.layoutRevision++ }
                    function onSelectedAllChanged() { root.layoutRevision++ }
                }
            }

            TableView {
                id: tableView
                objectName: "contentTableView"
                Layout.fillWidth: true
                Layout.fillHeight: true
                clip: true
                interactive: false
                boundsBehavior: Flickable.StopAtBounds
                model: root.table
                columnWidthProvider: column => { root.layoutRevision; return root.table?.columnWidth(column) ?? 0 }
                rowHeightProvider: () => root.rowHeight
                Controls.ScrollBar.vertical: Controls.ScrollBar { policy: Controls.ScrollBar.AsNeeded }
                Controls.ScrollBar.horizontal: Controls.ScrollBar { policy: Controls.ScrollBar.AsNeeded }
                delegate: TableCell {
                    contentModel: root.contentModel
                    newRow: row === (root.table?.newRowIndex ?? -1)
                    editing: editor.visible && editor.row === row && editor.column === column
                }

                MouseArea {
                    id: cellMouse
                    anchors.fill: parent
                    acceptedButtons: Qt.LeftButton
                    property var pressIndex: null
                    property bool dragging: false
                    property int dragMode: TableSelectionModel.CleanSelect

                    function indexUnder(mouse) {
                        const point = cellMouse.mapToItem(root, mouse.x, mouse.y)
                        return root.indexAt(point.x, point.y)
                    }
                    onPressed: mouse => {
                        root.forceActiveFocus()
                        const index = indexUnder(mouse)
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
                        const index = indexUnder(mouse)
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
                    onDoubleClicked: root.startEditing()
                    onWheel: wheel => {
                        const maxY = Math.max(0, tableView.contentHeight - tableView.height)
                        const maxX = Math.max(0, tableView.contentWidth - tableView.width)
                        tableView.contentY = Math.max(0, Math.min(maxY, tableView.contentY - wheel.angleDelta.y))
                        tableView.contentX = Math.max(0, Math.min(maxX, tableView.contentX - wheel.angleDelta.x))
                    }
                }
            }
        }
    }

    TableCellEditor {
        id: editor
        visible: false
        z: 10
        table: root.table
        contentModel: root.contentModel
        onFinished: accepted => {
            visible = false
            if (accepted)
                root.table.confirmUpdate()
            root.forceActiveFocus()
        }
    }

    Keys.onPressed: event => {
        const shift = event.modifiers & Qt.ShiftModifier
        const ctrl = event.modifiers & Qt.ControlModifier
        const step = { [Qt.Key_Up]: [-1, 0], [Qt.Key_Down]: [1, 0], [Qt.Key_Left]: [0, -1], [Qt.Key_Right]: [0, 1],
                       [Qt.Key_PageUp]: [-20, 0], [Qt.Key_PageDown]: [20, 0] }[event.key]
        if (step) {
            if (shift)
                root.selection.extendSelection(step[0], step[1])
            else
                root.moveCurrent(step[0], step[1])
            event.accepted = true
        } else if (event.matches(StandardKey.SelectAll)) {
            root.selection.selectAll()
            event.accepted = true
        } else if (event.matches(StandardKey.Copy)) {
            root.table.copyToClipboard()
            event.accepted = true
        } else if (event.matches(StandardKey.Paste)) {
            root.table.pasteFromClipboard()
            root.table.confirmUpdate()
            event.accepted = true
        } else if (event.key === Qt.Key_F2 || event.key === Qt.Key_Return || event.key === Qt.Key_Enter
                   || event.key === Qt.Key_Space) {
            root.startEditing()
            event.accepted = true
        } else if (event.key === Qt.Key_Escape) {
            root.selection.select(root.table.index(-1, -1), TableSelectionModel.CleanSelect)
            event.accepted = true
        } else if (!ctrl && event.text.length === 1 && event.text >= " ") {
            root.startEditing(event.text)
            event.accepted = true
        }
    }
}
