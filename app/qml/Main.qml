import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants
import Orvo.QtExtensions
import UIComponents.MarkingMenu
import UIComponents.Spotlight
import UIComponents.MenuSystem
import UIComponents.Notifications
import UIComponents.TutorialToolTip
import UIComponents.InputPanel
import UIComponents.StatusBar
import Demo

ApplicationWindow {
    id: window
    width: 1280
    height: 800
    visible: true
    title: Strings.text("UI_APP_TITLE")
    color: BasicConstants.colors.background

    // One entry per demo page; each page shows one area of the component library at work.
    readonly property var pages: [
        { name: "model", lcid: "UI_APP_PAGE_MODEL", source: "ModelWorkspace.qml" },
        { name: "overview", lcid: "UI_APP_PAGE_OVERVIEW", source: "OverviewPage.qml" },
        { name: "valueentry", lcid: "UI_APP_PAGE_VALUE_ENTRY", source: "ValueEntryPage.qml" },
        { name: "markingmenu", lcid: "UI_APP_PAGE_MARKING_MENU", source: "MarkingMenuPage.qml" },
        { name: "properties", lcid: "UI_APP_PAGE_PROPERTIES", source: "PropertiesPage.qml" },
        { name: "tables", lcid: "UI_APP_PAGE_TABLES", source: "TablesPage.qml" },
        { name: "analysis", lcid: "UI_APP_PAGE_ANALYSIS", source: "AnalysisPage.qml" },
        { name: "shortcuts", lcid: "UI_APP_PAGE_SHORTCUTS", source: "ShortcutsPage.qml" },
        { name: "commands", lcid: "UI_APP_PAGE_COMMANDS", source: "CommandsPage.qml" },
        { name: "report", lcid: "UI_APP_PAGE_REPORT", source: "ReportPage.qml" }
    ]

    function pageIndex(name) {
        for (var i = 0; i < pages.length; ++i) {
            if (pages[i].name === name)
                return i
        }
        return 0
    }

    // The application's keyboard shortcuts, active on every page.
    Loader {
        objectName: "hotkeyHandler"
        source: "qrc:/UIComponents/HotkeyHandler/HotkeyHandler.qml"
    }

    // The application's marking menu: it opens over whichever view asks for it.
    MarkingMenu {
        objectName: "markingMenu"
    }

    // The spotlight search over every page (Ctrl+Space).
    Spotlight {
        objectName: "spotlight"
        // A table chosen in the search opens on the tables page.
        onTableRequested: (workstationId, tableId) => {
            pageList.currentIndex = window.pageIndex("tables")
            const page = pageStack.pageItem(pageList.currentIndex) as TablesPage
            if (page)
                page.showTable(tableId)
        }
        // A setting chosen in the search opens where it is edited; the demo edits the profile's.
        onSettingRequested: key => {
            if (key.startsWith("Account/"))
                accountButton.openSettings(key)
        }
        parent: window.contentItem
        z: 100
        width: Math.min(620, window.width - 40)
        anchors.horizontalCenter: parent.horizontalCenter
        y: 60
    }

    // The running command's inputs (New member, Move), docked at the left of the page beside
    // the page list while the command runs, on whichever page it was started; the user may drag
    // it elsewhere, and it opens there next time.
    InputPanel {
        id: inputPanel
        objectName: "inputPanel"
        parent: window.contentItem
        z: 80
        x: pageList.width + 12
        y: 84
        width: 300
    }

    // The host's messages over every page: the centre opens from the bell in the header, toasts
    // show new ones in the bottom right corner.
    Notifications {
        id: notifications
        objectName: "notifications"
        parent: window.contentItem
        anchors.fill: parent
        z: 90
        onResultsRequested: pageList.currentIndex = window.pageIndex("analysis")
        onObjectSelected: pageList.currentIndex = window.pageIndex("model")
    }

    // Files dropped on the window: a model file opens, anything else is refused with a message.
    // Over the whole window, menus and header included; it never takes the pointer.
    Loader {
        objectName: "fileDropLoader"
        parent: window.contentItem.parent
        anchors.fill: parent
        z: 200
        source: "qrc:/UIComponents/FileDrop/FileDrop.qml"
    }

    // The guided tour of the workspace: it starts on the model page, once, and again from the
    // Help menu.
    TutorialToolTip {
        objectName: "tutorial"
        parent: window.contentItem.parent
        anchors.fill: parent
        z: 95
        autoStart: pageList.currentIndex === window.pageIndex("model")
    }

    // The file a file command needs when it ran without one (Open, Save as, the first Save).
    FilePrompt {
        id: filePrompt
        onFileChosen: (path, saving) => {
            if (saving)
                DemoShell.commandActivity.saveFileAs(path)
            else
                DemoShell.commandActivity.openFile(path)
        }
    }
    // File commands that need a file ask for it; the Report command of the File menu opens the
    // report page.
    Connections {
        target: DemoShell.commandActivity
        function onFileNameNeeded(save: bool, suggestedPath: string) {
            filePrompt.ask(save, suggestedPath)
        }
        function onReportRequested() {
            pageList.currentIndex = window.pageIndex("report")
        }
    }

    // The application's menus, built from the shipped menu definition.
    menuBar: MenuSystem {
        objectName: "menuSystem"
    }

    header: Rectangle {
        height: 40
        color: UIComponentsConstants.markingMenuRing
        Text {
            anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter }
            text: window.title
            color: "white"
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.title
            font.bold: true
        }

        // The host's number setting: how every field, table cell and filter writes numbers.
        RowLayout {
            anchors { right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
            spacing: 8
            Text {
                text: Strings.text("UI_APP_NUMBER_FORMAT")
                color: "white"
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
            }
            BasicComboBox {
                objectName: "numberFormat"
                Layout.preferredWidth: 190
                model: [Strings.text("UI_APP_NUMBER_FORMAT_POINT"), Strings.text("UI_APP_NUMBER_FORMAT_COMMA")]
                currentIndex: NumberFormat.decimalComma ? 1 : 0
                onActivated: index => NumberFormat.decimalComma = index === 1
            }
            BasicButton {
                objectName: "reportButton"
                text: Strings.text("UI_APP_REPORT")
                onClicked: pageList.currentIndex = window.pageIndex("report")
            }
            NotificationsButton {
                objectName: "notificationsButton"
                centre: notifications
            }
            AccountButton {
                id: accountButton
                objectName: "accountButton"
            }
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        ListView {
            id: pageList
            Layout.fillHeight: true
            Layout.preferredWidth: 190
            model: window.pages
            currentIndex: window.pageIndex(DemoShell.initialPage)
            clip: true
            delegate: Rectangle {
                id: pageEntry
                required property var modelData
                required property int index
                width: ListView.view.width
                height: 34
                color: ListView.isCurrentItem ? BasicConstants.colors.selection
                                              : mouse.containsMouse ? BasicConstants.colors.hover : "transparent"
                Text {
                    anchors { fill: parent; leftMargin: 14 }
                    verticalAlignment: Text.AlignVCenter
                    text: Strings.text(pageEntry.modelData.lcid)
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                    color: BasicConstants.colors.text
                }
                MouseArea {
                    id: mouse
                    anchors.fill: parent
                    hoverEnabled: true
                    onClicked: pageEntry.ListView.view.currentIndex = pageEntry.index
                }
            }
        }

        Rectangle {
            Layout.fillHeight: true
            width: 1
            color: BasicConstants.colors.border
        }

        PageStack {
            id: pageStack
            objectName: "pageStack"
            Layout.fillWidth: true
            Layout.fillHeight: true
            pages: window.pages
            currentIndex: Math.max(0, pageList.currentIndex)
            onPageRequested: name => pageList.currentIndex = window.pageIndex(name)
        }
    }

    footer: ShellStatusBar {
        objectName: "statusBar"
    }
}
