import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants

// The filter text of one column, a delegate of the filter bar's header view. The text goes to
// the table's FilterBarModel when the user presses Enter or leaves the field; a text that looks
// like a comparison or a range but is none is marked, and its tooltip says why.
BasicTextField {
    id: field
    required property int column
    required property TableContentFilterModel table
    readonly property FilterBarModel filterBar: field.table ? field.table.filterBarModel : null
    property string conditionText: ""
    readonly property bool malformed: field.table ? field.table.isFilterTextMalformed(field.conditionText) : false
    signal finished()

    objectName: "filterField_" + column
    implicitWidth: 64
    placeholderText: Strings.text("UI_TABLE_FILTER_PLACEHOLDER")
    color: BasicConstants.colors.text
    invalid: field.malformed
    background: Rectangle {
        color: field.malformed ? BasicConstants.colors.errorLight
                               : field.conditionText.length > 0 ? UIComponentsConstants.filterActive : BasicConstants.colors.panel
        border.color: field.activeFocus ? BasicConstants.colors.accent : UIComponentsConstants.tableGrid
    }
    Controls.ToolTip.visible: field.malformed && field.hovered
    Controls.ToolTip.text: Strings.text("UI_TABLE_FILTER_NOT_UNDERSTOOD")

    function load() {
        const known = field.filterBar && field.column < field.filterBar.rowCount
        const text = known ? field.filterBar.data(field.filterBar.index(field.column, 0), FilterBarModel.ConditionTextRole) : ""
        field.conditionText = text === undefined ? "" : text
        if (!field.activeFocus)
            field.text = field.conditionText
    }
    function apply() {
        if (field.filterBar && field.column < field.filterBar.rowCount)
            field.filterBar.setData(field.filterBar.index(field.column, 0), field.text, FilterBarModel.ConditionTextRole)
    }

    Component.onCompleted: load()
    onColumnChanged: load()
    onFilterBarChanged: load()
    Connections {
        target: field.filterBar
        function onDataChanged() { field.load() }
        function onLayoutChanged() { field.load() }
        function onRowsInserted() { field.load() }
        function onRowsRemoved() { field.load() }
    }
    // A filter applies when the user is done typing it, not on every keystroke.
    onAccepted: { apply(); field.finished() }
    onEditingFinished: apply()
    Keys.onEscapePressed: { field.text = field.conditionText; field.finished() }
}
