import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// What the input and results panels show: the workstation switch and the tab bar above the
// table of the selected tab, with its tools, filters and multi-edit box. Ctrl+PageUp and
// Ctrl+PageDown anywhere in the panel select the tab on the left or right.
FocusScope {
    id: frame
    required property TableContentModel contentModel
    required property TableTabsModel tabsModel
    // The open tabs in their order on screen (the panel's tabsFilterModel).
    required property var openTabs
    required property TableWorkstationsModel workstationsModel
    // Shown under the table when not empty: why the last edit was refused.
    property string message
    // Shown instead of the table when no tab is open or the table has no rows.
    property string emptyText

    signal closeRequested(int place)
    signal neighbourRequested(int steps)

    Shortcut {
        sequences: ["Ctrl+PgUp"]
        enabled: frame.activeFocus
        onActivated: frame.neighbourRequested(-1)
    }
    Shortcut {
        sequences: ["Ctrl+PgDown"]
        enabled: frame.activeFocus
        onActivated: frame.neighbourRequested(1)
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: BasicConstants.sizes.spacing

        RowLayout {
            Layout.fillWidth: true
            spacing: BasicConstants.sizes.spacing
            TableWorkstationSwitch {
                Layout.preferredWidth: 160
                Layout.alignment: Qt.AlignBottom
                workstationsModel: frame.workstationsModel
                visible: frame.workstationsModel ? frame.workstationsModel.rowCount() > 1 : false
            }
            TableTabBar {
                objectName: "tabBar"
                Layout.fillWidth: true
                tabsModel: frame.tabsModel
                openTabs: frame.openTabs
                onCloseRequested: place => frame.closeRequested(place)
            }
        }

        ContentTable {
            id: table
            objectName: "contentTable"
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentModel: frame.contentModel
            focus: true

            BasicLabel {
                objectName: "emptyText"
                anchors.centerIn: parent
                visible: frame.emptyText.length > 0
                text: frame.emptyText
                color: BasicConstants.colors.textSecondary
            }
        }

        BasicLabel {
            objectName: "panelMessage"
            Layout.fillWidth: true
            visible: frame.message.length > 0
            text: frame.message
            color: BasicConstants.colors.error
        }
    }
}
