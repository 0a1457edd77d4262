import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants

// The row of filter texts above the table, one field per column, scrolled with the table.
ListView {
    id: bar
    required property var table // the TableContentFilterModel
    property int widthsRevision: 0

    orientation: ListView.Horizontal
    interactive: false
    clip: true
    model: table?.filterBarModel ?? null
    delegate: BasicTextField {
        required property int index
        required property string conditionText
        objectName: "filterField_" + index
        width: { bar.widthsRevision; return bar.table?.columnWidth(index) ?? 0 }
        height: bar.height
        text: conditionText
        placeholderText: Strings.text("UI_TABLE_FILTER_PLACEHOLDER")
        color: BasicConstants.colors.text
        background: Rectangle {
            color: conditionText.length > 0 ? UIComponentsConstants.filterActive : BasicConstants.colors.panel
            border.color: activeFocus ? BasicConstants.colors.accent : UIComponentsConstants.tableGrid
        }
        // A filter applies when the user is done typing it, not on every keystroke.
        onEditingFinished: bar.model.setData(bar.model.index(index, 0), text, 257)
    }
}
