import QtQuick
import Qml.QtComponents
import BasicComponents.Constants
import UIComponents.Constants

// One column title, a delegate of the titles' header view: click sorts (none, ascending,
// descending), the right edge resizes, and a title dragged onto another column moves it there.
// What it shows comes from the table's header data, read again when the table says it changed.
Rectangle {
    id: cell
    required property int column
    required property TableContentFilterModel table
    property string columnLabel: ""
    property int sortOrder: TableContentModel.Unsorted
    property bool sortable: false
    property bool mandatory: false
    readonly property bool titleTruncated: title.truncated
    signal dragMoved(real sceneX)
    signal dropped(real sceneX)

    objectName: "headerCell_" + column
    implicitWidth: 64

    // A cell may be made before its view hands it the table.
    function load() {
        if (!cell.table)
            return
        const header = role => cell.table.headerData(cell.column, Qt.Horizontal, role)
        cell.columnLabel = header(TableContentModel.ColumnLabelRole) ?? ""
        cell.sortOrder = header(TableContentModel.SortOrderRole) ?? TableContentModel.Unsorted
        cell.sortable = header(TableContentModel.SortableRole) === true
        cell.mandatory = header(TableContentModel.RequiredRole) === true
    }
    Component.onCompleted: load()
    onColumnChanged: load()
    onTableChanged: load()
    Connections {
        target: cell.table
        function onHeaderDataChanged(orientation, first, last) {
            if (orientation === Qt.Horizontal && first <= cell.column && cell.column <= last)
                cell.load()
        }
        function onColumnsLayoutChanged() { cell.load() }
    }
    color: titleMouse.containsMouse ? BasicConstants.colors.hover : UIComponentsConstants.tableHeader
    border.color: UIComponentsConstants.tableGrid
    clip: true

    Text {
        id: title
        anchors { left: parent.left; right: sortMark.left; leftMargin: 6; rightMargin: 2; verticalCenter: parent.verticalCenter }
        text: cell.columnLabel + (cell.mandatory ? " *" : "")
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        font.bold: true
        color: BasicConstants.colors.text
    }
    Text {
        id: sortMark
        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
        text: cell.sortOrder === TableContentModel.Ascending ? "▲" : cell.sortOrder === TableContentModel.Descending ? "▼" : ""
        font.pixelSize: BasicConstants.fonts.small
        color: BasicConstants.colors.accent
    }

    // A sorted title shows its arrow beside the whole label: the column widens when it must.
    function fitTitle() {
        const needed = Math.ceil(title.implicitWidth + sortMark.implicitWidth + 6 + 2 + 8 + 2)
        if (needed > cell.width) {
            cell.table.setColumnWidth(cell.column, needed)
            cell.table.submitLayout()
        }
    }

    MouseArea {
        id: titleMouse
        anchors { fill: parent; rightMargin: 6 }
        hoverEnabled: true
        property real pressX: 0
        property bool dragging: false
        onPressed: mouse => { pressX = mouse.x; dragging = false }
        onPositionChanged: mouse => {
            if (!pressed)
                return
            if (Math.abs(mouse.x - pressX) > 12)
                dragging = true
            if (dragging)
                cell.dragMoved(mapToItem(null, mouse.x, mouse.y).x)
        }
        onReleased: mouse => {
            if (dragging)
                cell.dropped(mapToItem(null, mouse.x, mouse.y).x)
        }
        onClicked: {
            if (dragging || !cell.sortable)
                return
            cell.table.setHeaderData(cell.column, Qt.Horizontal, (cell.sortOrder + 1) % 3, TableContentModel.SortOrderRole)
            cell.fitTitle()
        }
    }

    // Resizing: the live width follows the drag, the layout keeps it when the drag ends.
    MouseArea {
        width: 8
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        cursorShape: Qt.SplitHCursor
        property real startX: 0
        property int startWidth: 0
        onPressed: mouse => { startX = mapToItem(null, mouse.x, 0).x; startWidth = cell.table.columnWidth(cell.column) }
        onPositionChanged: mouse => {
            if (pressed)
                cell.table.setColumnWidth(cell.column, startWidth + mapToItem(null, mouse.x, 0).x - startX)
        }
        onReleased: cell.table.submitLayout()
        onDoubleClicked: {
            cell.table.setColumnWidth(cell.column, cell.table.columnWidth(cell.column) + UIComponentsConstants.tableColumnWidthStep)
            cell.table.submitLayout()
        }
    }
}
