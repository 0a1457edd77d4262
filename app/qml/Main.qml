import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants

ApplicationWindow {
    id: window
    width: 1280
    height: 800
    visible: true
    title: Strings.text("UI_APP_TITLE")
    color: BasicConstants.colors.background

    // One entry per demo page; each page shows one area of the component library at work.
    readonly property var pages: [
        { name: "overview", lcid: "UI_APP_PAGE_OVERVIEW", source: "OverviewPage.qml" },
        { name: "valueentry", lcid: "UI_APP_PAGE_VALUE_ENTRY", source: "ValueEntryPage.qml" },
        { name: "markingmenu", lcid: "UI_APP_PAGE_MARKING_MENU", source: "MarkingMenuPage.qml" },
        { name: "properties", lcid: "UI_APP_PAGE_PROPERTIES", source: "PropertiesPage.qml" },
        { name: "tables", lcid: "UI_APP_PAGE_TABLES", source: "TablesPage.qml" },
        { name: "shortcuts", lcid: "UI_APP_PAGE_SHORTCUTS", source: "ShortcutsPage.qml" }
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
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        ListView {
            id: pageList
            Layout.fillHeight: true
            Layout.preferredWidth: 190
            model: window.pages
            currentIndex: window.pageIndex(initialPage)
            clip: true
            delegate: Rectangle {
                required property var modelData
                required property int index
                width: ListView.view.width
                height: 34
                color: ListView.isCurrentItem ? BasicConstants.colors.selection
                                              : mouse.containsMouse ? BasicConstants.colors.hover : "transparent"
                Text {
                    anchors { fill: parent; leftMargin: 14 }
                    verticalAlignment: Text.AlignVCenter
                    text: Strings.text(modelData.lcid)
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                    color: BasicConstants.colors.text
                }
                MouseArea {
                    id: mouse
                    anchors.fill: parent
                    hoverEnabled: true
                    onClicked: pageList.currentIndex = index
                }
            }
        }

        Rectangle {
            Layout.fillHeight: true
            width: 1
            color: BasicConstants.colors.border
        }

        Loader {
            id: pageLoader
            objectName: "pageLoader"
            Layout.fillWidth: true
            Layout.fillHeight: true
            source: window.pages[Math.max(0, pageList.currentIndex)].source
        }
    }

    footer: Rectangle {
        height: 24
        color: BasicConstants.colors.panelHeader
        Text {
            anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
            text: commandActivity.runCount > 0
                  ? Strings.text("UI_APP_STATUS_LAST_COMMAND").arg(commandActivity.lastCommandName).arg(commandActivity.lastOrigin)
                  : Strings.text("UI_APP_STATUS_READY")
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            color: BasicConstants.colors.textSecondary
        }
    }
}
