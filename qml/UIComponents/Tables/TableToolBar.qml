import QtQuick
import QtQuick.Controls.Basic as Controls
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The row above a content table: the multi-edit box, column widths, the choice of columns and
// the button that clears every filter.
RowLayout {
    id: bar
    required property TableContentModel contentModel
    readonly property TableContentFilterModel table: bar.contentModel ? bar.contentModel.contentFilterModel : null
    // A tool is done with: the keys can go back to the table.
    signal done()

    spacing: BasicConstants.sizes.spacing

    MultiEditBox {
        Layout.fillWidth: true
        contentModel: bar.contentModel
        visible: bar.table ? bar.table.allowEdit : false
    }
    Item { Layout.fillWidth: true; visible: !(bar.table && bar.table.allowEdit) }
    BasicButton {
        objectName: "narrowColumnsButton"
        text: Strings.text("UI_TABLE_NARROW_COLUMNS")
        onClicked: { bar.table.narrowAllColumns(); bar.done() }
    }
    BasicButton {
        objectName: "extendColumnsButton"
        text: Strings.text("UI_TABLE_EXTEND_COLUMNS")
        onClicked: { bar.table.extendAllColumns(); bar.done() }
    }
    BasicButton {
        id: columnsButton
        objectName: "columnsButton"
        text: Strings.text("UI_TABLE_COLUMNS")
        onClicked: columnsPopup.open()
        Controls.Popup {
            id: columnsPopup
            objectName: "columnsPopup"
            y: columnsButton.height
            // Within the window however near its edge the button is.
            margins: BasicConstants.sizes.spacing
            width: 220
            height: Math.min(360, columnsList.contentHeight + showAll.implicitHeight + 24)
            onClosed: bar.done()
            ColumnLayout {
                anchors.fill: parent
                ListView {
                    id: columnsList
                    objectName: "columnsList"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    clip: true
                    model: bar.contentModel ? bar.contentModel.columnsModel : null
                    // The roles are read through model: "id" and "visible" would clash with the
                    // check box's own properties.
                    delegate: BasicCheckBox {
                        id: toggle
                        required property var model
                        objectName: "columnToggle_" + toggle.model.id
                        width: toggle.ListView.view ? toggle.ListView.view.width : implicitWidth
                        text: toggle.model.label
                        checked: toggle.model.visible
                        // Writes the column's VisibleRole through the model.
                        onToggled: toggle.model.visible = toggle.checked
                    }
                }
                BasicButton {
                    id: showAll
                    objectName: "showAllColumnsButton"
                    Layout.fillWidth: true
                    text: Strings.text("UI_TABLE_SHOW_ALL_COLUMNS")
                    onClicked: bar.contentModel.columnsModel.displayAllColumns()
                }
            }
        }
    }
    BasicButton {
        objectName: "clearFiltersButton"
        text: Strings.text("UI_TABLE_CLEAR_FILTERS")
        enabled: bar.table && bar.table.filterBarModel ? bar.table.filterBarModel.anyCondition : false
        onClicked: { bar.table.filterBarModel.clearAll(); bar.done() }
    }
}
