import QtQuick
import Qml.QtComponents
import BasicComponents.Constants
import UIComponents.Constants

// One cell of a content table, drawn by its content type; selection and highlight come from
// the model's roles.
Rectangle {
    id: cell
    required property int row
    required property int column
    required property var content
    required property var contentType
    required property var parameterIndex
    required property var parametersNames
    required property var allValues
    required property var decimals
    required property var editable
    required property var selected
    required property var selectedActive
    required property var isBold
    required property var highlightState
    required property var hasAction
    property bool newRow: false
    property var contentModel: null // the TableContentModel, for the colour names
    property bool editing: false

    readonly property string shownText: {
        if (parameterIndex !== undefined && parameterIndex >= 0 && parametersNames && parameterIndex < parametersNames.length)
            return parametersNames[parameterIndex]
        if (content === undefined || content === null)
            return ""
        if (contentType === TableContentModel.Real && !newRow && typeof content === "number")
            return decimals !== undefined ? content.toFixed(decimals) : String(content)
        if (contentType === TableContentModel.Bool && !newRow)
            return ""
        return String(content)
    }

    color: {
        if (selected === true)
            return UIComponentsConstants.tableSelection
        if (highlightState === TableContentModel.Error)
            return BasicConstants.colors.errorLight
        if (highlightState === TableContentModel.UserDefined)
            return UIComponentsConstants.tableHighlight
        if (newRow)
            return UIComponentsConstants.tableNewRow
        return editable === true ? BasicConstants.colors.panel : UIComponentsConstants.tableReadOnly
    }
    border.width: selectedActive === true ? 2 : 0
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

    Text {
        visible: !cell.editing && cell.contentType !== TableContentModel.Color && cell.contentType !== TableContentModel.Bool
        anchors { fill: parent; leftMargin: 6; rightMargin: 6 }
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: (cell.contentType === TableContentModel.Integer || cell.contentType === TableContentModel.Real)
                             ? Text.AlignRight : Text.AlignLeft
        text: cell.shownText
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        font.bold: cell.isBold === true
        font.italic: cell.highlightState === TableContentModel.DefaultModified
        color: cell.editable === true || cell.newRow ? BasicConstants.colors.text : BasicConstants.colors.textSecondary
    }

    // A check box for boolean cells; named states (Yes/No) are written out.
    Row {
        visible: cell.contentType === TableContentModel.Bool && !cell.newRow
        anchors { left: parent.left; leftMargin: 6; verticalCenter: parent.verticalCenter }
        spacing: 6
        Rectangle {
            width: 14; height: 14; radius: 2
            border.color: BasicConstants.colors.border
            color: cell.content === true ? BasicConstants.colors.accent : BasicConstants.colors.panel
            Text { anchors.centerIn: parent; text: cell.content === true ? "✓" : ""; color: "white"; font.pixelSize: 11 }
        }
        Text {
            text: cell.parametersNames && cell.parametersNames.length > 1 ? cell.parametersNames[cell.content === true ? 0 : 1] : ""
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            color: BasicConstants.colors.text
        }
    }

    // A colour swatch with the colour's name.
    Row {
        visible: cell.contentType === TableContentModel.Color && !cell.editing
        anchors { left: parent.left; leftMargin: 6; verticalCenter: parent.verticalCenter }
        spacing: 6
        Rectangle {
            width: 28; height: 14; radius: 2
            color: parent.visible && cell.content ? cell.content : "transparent"
            border.color: BasicConstants.colors.border
        }
        Text {
            text: {
                if (!cell.content || !cell.contentModel || !cell.allValues)
                    return ""
                const paletteIndex = cell.allValues.indexOf(cell.content)
                return paletteIndex < 0 ? cell.content : Strings.text(cell.contentModel.getColorLcid(paletteIndex))
            }
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            color: BasicConstants.colors.text
        }
    }

    Text {
        visible: cell.hasAction === true
        anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
        text: "…"
        color: BasicConstants.colors.accent
    }
}
