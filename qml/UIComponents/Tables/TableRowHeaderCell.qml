import QtQuick
import Qml.QtComponents
import BasicComponents.Constants
import UIComponents.Constants

// One row number, a delegate of the row numbers' header view: the visible rows are numbered
// without gaps, the new-row line is "*". A click selects the row, Shift extends, Ctrl toggles.
Rectangle {
    id: cell
    required property int row
    required property string display
    required property TableSelectionFilterModel selection
    property bool rowSelected: false
    property bool currentRow: false
    signal clicked()

    implicitHeight: UIComponentsConstants.tableRowHeight
    color: cell.rowSelected ? UIComponentsConstants.tableSelection
                            : cell.currentRow ? BasicConstants.colors.accentLight : UIComponentsConstants.tableHeader
    border.color: UIComponentsConstants.tableGrid

    function refresh() {
        cell.rowSelected = cell.selection ? cell.selection.isRowSelected(cell.row) : false
        cell.currentRow = cell.selection ? cell.selection.currentSelectedIndex.row === cell.row : false
    }
    Component.onCompleted: refresh()
    onRowChanged: refresh()
    onSelectionChanged: refresh()
    Connections {
        target: cell.selection
        function onRegionCountChanged() { cell.refresh() }
        function onCurrentSelectedIndexChanged() { cell.refresh() }
        function onCurrentRegionChanged() { cell.refresh() }
        function onSelectedAllChanged() { cell.refresh() }
    }

    Text {
        anchors { fill: parent; rightMargin: 6 }
        horizontalAlignment: Text.AlignRight
        verticalAlignment: Text.AlignVCenter
        text: cell.display
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.small
        color: BasicConstants.colors.textSecondary
    }
    MouseArea {
        anchors.fill: parent
        onClicked: mouse => {
            if (mouse.modifiers & Qt.ShiftModifier)
                cell.selection.selectRowFromLast(cell.row)
            else
                cell.selection.selectRow(cell.row, mouse.modifiers & Qt.ControlModifier ? TableSelectionModel.Toggle
                                                                                        : TableSelectionModel.CleanSelect)
            cell.clicked()
        }
    }
}
