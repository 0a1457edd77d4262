import QtQuick
import BasicComponents.Constants
import UIComponents.Constants

// One column title: click sorts (none, ascending, descending), the right edge resizes, and a
// drag of the title onto another column moves the column there.
Rectangle {
    id: cell
    required property var table     // the TableContentFilterModel
    required property int column
    property string label: ""
    property int sortOrder: 0
    property bool sortable: false
    property bool required: false
    signal moveRequested(int fromColumn, real sceneX)

    readonly property int roleSortOrder: 270

    color: titleMouse.containsMouse ? BasicConstants.colors.hover : UIComponentsConstants.tableHeader
    border.color: UIComponentsConstants.tableGrid
    clip: true

    Text {
        anchors { left: parent.left; right: sortMark.left; leftMargin: 6; rightMargin: 2; verticalCenter: parent.verticalCenter }
        text: cell.label + (cell.required ? " *" : "")
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        font.bold: true
        color: BasicConstants.colors.text
    }
    Text {
        id: sortMark
        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
        text: cell.sortOrder === 1 ? "▲" : cell.sortOrder === 2 ? "▼" : ""
        font.pixelSize: BasicConstants.fonts.small
        color: BasicConstants.colors.accent
    }

    MouseArea {
        id: titleMouse
        anchors { fill: parent; rightMargin: 6 }
        hoverEnabled: true
        property real pressX: 0
        property bool dragging: false
        onPressed: mouse => { pressX = mouse.x; dragging = false }
        onPositionChanged: mouse => { if (pressed && Math.abs(mouse.x - pressX) > 12) dragging = true }
        onReleased: mouse => {
            if (dragging)
                cell.moveRequested(cell.column, mapToItem(null, mouse.x, mouse.y).x)
        }
        onClicked: {
            if (dragging || !cell.sortable)
                return
            cell.table.setHeaderData(cell.column, Qt.Horizontal, (cell.sortOrder + 1) % 3, cell.roleSortOrder)
        }
    }

    // Resizing: the live width follows the drag, the layout is kept when the drag ends.
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
        onDoubleClicked: cell.table.setColumnWidth(cell.column, cell.table.columnWidth(cell.column) + UIComponentsConstants.tableColumnWidthStep)
    }
}
