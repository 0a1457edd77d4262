import QtQuick
import Qml.QtComponents

// The results table panel: the tables of the last analysis, in tabs, read-only; a table of
// millions of rows reads only what is scrolled to.
TableResult_Cpp {
    id: panel
    implicitWidth: 900
    implicitHeight: 500

    TablePanelFrame {
        objectName: "resultPanelFrame"
        anchors.fill: parent
        focus: true
        contentModel: panel.contentModel
        tabsModel: panel.tabsModel
        openTabs: panel.tabsFilterModel
        workstationsModel: panel.workstationsModel
        emptyText: panel.tableId.length === 0 ? Strings.text("UI_TABLE_NO_TAB_OPEN")
                 : panel.contentModel.rowCountSubmitted === 0 ? Strings.text("UI_TABLE_RESULTS_EMPTY") : ""
        onCloseRequested: place => panel.closeTab(place)
        onNeighbourRequested: steps => panel.selectNeighbourTab(steps)
    }
}
