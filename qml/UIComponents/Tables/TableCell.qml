import QtQuick
import Qml.QtComponents
import BasicComponents.Constants
import UIComponents.Constants

// One cell of a content table, drawn by its content type from what the model prepared: the text
// to show (numbers with their decimals, colour names), the swatch of a colour, selection and
// highlight. Roles that the new-row line leaves undefined are taken as var.
Rectangle {
    id: cell
    required property int row
    required property int column
    required property string displayText
    required property color swatchColor
    required property var content
    required property var contentType
    required property var editable
    required property var selected
    required property var selectedActive
    required property var isBold
    required property var highlightState
    required property var hasAction
    property bool newRow: false
    property bool editing: false
    readonly property bool isCheckBox: cell.contentType === TableContentModel.Bool && !cell.newRow
    readonly property bool isColour: cell.contentType === TableContentModel.Color && !cell.newRow

    implicitWidth: 64
    implicitHeight: UIComponentsConstants.tableRowHeight
    color: {
        if (cell.selected === true)
            return UIComponentsConstants.tableSelection
        if (cell.highlightState === TableContentModel.Error)
            return BasicConstants.colors.errorLight
        if (cell.highlightState === TableContentModel.UserDefined)
            return UIComponentsConstants.tableHighlight
        if (cell.newRow)
            return UIComponentsConstants.tableNewRow
        return cell.editable === true ? BasicConstants.colors.panel : UIComponentsConstants.tableReadOnly
    }
    border.width: cell.selectedActive === true ? 2 : 0
    border.color: BasicConstants.colors.accent

    Rectangle { // the grid lines
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: 1
        color: UIComponentsConstants.tableGrid
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 1
        color: UIComponentsConstants.tableGrid
    }

    Row {
        anchors { fill: parent; leftMargin: 6; rightMargin: 6 }
        spacing: 6
        visible: !cell.editing
        layoutDirection: cell.contentType === TableContentModel.Integer || cell.contentType === TableContentModel.Real
                         ? Qt.RightToLeft : Qt.LeftToRight

        // A check box for boolean cells.
        Rectangle {
            visible: cell.isCheckBox
            anchors.verticalCenter: parent.verticalCenter
            width: 14; height: 14; radius: 2
            border.color: BasicConstants.colors.border
            color: cell.content === true ? BasicConstants.colors.accent : BasicConstants.colors.panel
            Text {
                anchors.centerIn: parent
                text: cell.content === true ? "✓" : ""
                color: BasicConstants.colors.panel
                font.pixelSize: BasicConstants.fonts.small
            }
        }
        // The swatch of a colour cell.
        Rectangle {
            visible: cell.isColour
            anchors.verticalCenter: parent.verticalCenter
            width: 28; height: 14; radius: 2
            color: cell.swatchColor
            border.color: BasicConstants.colors.border
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - (cell.isCheckBox ? 20 : cell.isColour ? 34 : 0) - (cell.hasAction === true ? 16 : 0)
            horizontalAlignment: parent.layoutDirection === Qt.RightToLeft ? Text.AlignRight : Text.AlignLeft
            text: cell.displayText
            elide: Text.ElideRight
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            font.bold: cell.isBold === true
            font.italic: cell.highlightState === TableContentModel.DefaultModified
            color: cell.editable === true || cell.newRow ? BasicConstants.colors.text : BasicConstants.colors.textSecondary
        }
    }

    Text {
        visible: cell.hasAction === true
        anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
        text: "…"
        color: BasicConstants.colors.accent
    }
}
