import QtQuick
import Qml.QtComponents

// The input table panel: the host's input tables by workstation, in tabs, each edit a step of
// the host's undo history.
TableInput_Cpp {
    id: panel
    implicitWidth: 900
    implicitHeight: 500

    TablePanelFrame {
        objectName: "inputPanelFrame"
        anchors.fill: parent
        focus: true
        contentModel: panel.contentModel
        tabsModel: panel.tabsModel
        openTabs: panel.tabsFilterModel
        workstationsModel: panel.workstationsModel
        message: panel.message
        emptyText: panel.tableId.length > 0 ? "" : Strings.text("UI_TABLE_NO_TAB_OPEN")
        onCloseRequested: place => panel.closeTab(place)
        onNeighbourRequested: steps => panel.selectNeighbourTab(steps)
    }
}
