import QtQuick
import QtQuick.Controls.Basic
import Qml.QtComponents
import BasicComponents.Constants
import UIComponents.Common

// A search over every command of the menus: typing lists the commands whose name or menu path
// holds every word, with where they live and their shortcuts; Up and Down move, Enter or a click
// runs the highlighted one, Escape clears and then leaves.
SearchField {
    id: search

    property MenuSystem_Cpp menuSystem: null
    // How many commands the text finds.
    readonly property int resultCount: list.count

    // A command found here ran.
    signal commandRun()

    function run(row) {
        if (row < 0 || row >= list.count || !search.menuSystem
                || !search.menuSystem.allCommands.trigger(results.mapToSource(results.index(row, 0)).row))
            return
        search.clear()
        search.commandRun()
    }

    objectName: "menuSearch"
    placeholderText: Strings.text("UI_MENU_SEARCH")
    implicitWidth: 220

    MenuItemsFilterModel {
        id: results
        sourceModel: search.menuSystem ? search.menuSystem.allCommands : null
    }

    onTextChanged: {
        results.setFilterFixedString(search.text)
        list.currentIndex = 0
    }
    Keys.onDownPressed: list.currentIndex = Math.min(list.currentIndex + 1, list.count - 1)
    Keys.onUpPressed: list.currentIndex = Math.max(list.currentIndex - 1, 0)
    Keys.onReturnPressed: search.run(list.currentIndex)
    Keys.onEnterPressed: search.run(list.currentIndex)

    Popup {
        id: popup
        // Opens towards the window: the field sits at the right end of the menu bar.
        x: search.width - popup.width
        y: search.height + 2
        width: Math.max(search.width, 360)
        padding: 4
        visible: search.activeFocus && search.text.length > 0
        closePolicy: Popup.NoAutoClose

        background: Rectangle {
            color: BasicConstants.colors.panel
            border.color: BasicConstants.colors.border
            radius: BasicConstants.sizes.radius
        }

        contentItem: Item {
            implicitHeight: list.count > 0 ? list.contentHeight : empty.implicitHeight + 8

            Text {
                id: empty
                anchors.centerIn: parent
                visible: list.count === 0
                text: Strings.text("UI_MENU_SEARCH_EMPTY")
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: BasicConstants.colors.textSecondary
            }

            ListView {
                id: list
                objectName: "menuSearchResults"
                anchors.fill: parent
                implicitHeight: contentHeight
                model: results
                currentIndex: 0
                clip: true
                delegate: MenuSearchResult {
                    width: ListView.view.width
                    onChosen: row => search.run(row)
                }
            }
        }
    }
}
