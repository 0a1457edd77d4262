import QtQuick
import QtQuick.Controls.Basic as Controls
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The tabs of a table panel: one tab per open table in its order on screen. A click selects a
// tab, its cross closes it, a drag along the bar moves it, and the button at the end lists every
// table of the workstation to open or close one. A tab whose table holds values with errors is
// alerted. The pointer is handled for the whole bar at once, so the tabs themselves only show.
Item {
    id: bar
    // Every table of the workstation, open or not.
    required property TableTabsModel tabsModel
    // The open tabs in their order on screen (the panel's tabsFilterModel).
    required property var openTabs

    signal closeRequested(int place)

    implicitHeight: BasicConstants.sizes.controlHeight + BasicConstants.sizes.spacing
    implicitWidth: 400

    QtObject {
        id: d
        // How far a press must travel before it is a drag rather than a click.
        readonly property int dragThreshold: 6
        property int pressedPlace: -1
        property real pressX: 0
        property bool dragging: false
        property int dropBefore: -1
        property int hoveredPlace: -1

        function placeAt(x) {
            return tabList.indexAt(x + tabList.contentX, tabList.height / 2)
        }
        // The place a tab dropped at x lands before.
        function dropPlaceAt(x) {
            for (let place = 0; place < tabList.count; ++place) {
                const tab = tabList.itemAtIndex(place)
                if (tab && x + tabList.contentX < tab.x + tab.width / 2)
                    return place
            }
            return tabList.count
        }
        function isOnCloseButton(place, x) {
            const tab = tabList.itemAtIndex(place)
            const closeAreaWidth = BasicConstants.sizes.iconSize + 2 * BasicConstants.sizes.spacing
            return tab !== null && x + tabList.contentX >= tab.x + tab.width - closeAreaWidth
        }
        function alerted(place) {
            return place >= 0 && bar.openTabs.data(bar.openTabs.index(place, 0), TableTabsModel.AlertedRole) === true
        }
        function dropMarkX() {
            if (d.dropBefore < 0)
                return 0
            const tab = tabList.itemAtIndex(Math.min(d.dropBefore, tabList.count - 1))
            if (!tab)
                return 0
            return (d.dropBefore < tabList.count ? tab.x : tab.x + tab.width) - tabList.contentX
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ListView {
                id: tabList
                objectName: "tabList"
                anchors.fill: parent
                orientation: ListView.Horizontal
                clip: true
                interactive: false
                model: bar.openTabs
                currentIndex: bar.openTabs ? bar.openTabs.selectedIndex : -1
                onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

                delegate: TableTab_UI {
                    // The roles are read through model: "id" cannot be a property of a delegate.
                    required property var model
                    objectName: "tab_" + model.id
                    width: Math.min(200, implicitWidth)
                    height: ListView.view.height
                    text: model.label
                    alerted: model.alerted
                    selected: ListView.isCurrentItem
                }
            }

            MouseArea {
                id: pointer
                objectName: "tabBarPointer"
                anchors.fill: parent
                hoverEnabled: true
                onPressed: mouse => {
                    d.pressedPlace = d.placeAt(mouse.x)
                    d.pressX = mouse.x
                    d.dragging = false
                    if (d.pressedPlace >= 0 && !d.isOnCloseButton(d.pressedPlace, mouse.x))
                        bar.openTabs.selectedIndex = d.pressedPlace
                }
                onPositionChanged: mouse => {
                    d.hoveredPlace = d.placeAt(mouse.x)
                    if (!pressed || d.pressedPlace < 0)
                        return
                    if (!d.dragging && Math.abs(mouse.x - d.pressX) >= d.dragThreshold)
                        d.dragging = true
                    if (d.dragging)
                        d.dropBefore = d.dropPlaceAt(mouse.x)
                }
                onReleased: mouse => {
                    if (d.dragging) {
                        if (d.dropBefore >= 0 && d.dropBefore !== d.pressedPlace && d.dropBefore !== d.pressedPlace + 1)
                            bar.openTabs.move(d.pressedPlace, d.dropBefore)
                    } else if (d.pressedPlace >= 0 && d.pressedPlace === d.placeAt(mouse.x)
                               && d.isOnCloseButton(d.pressedPlace, mouse.x)) {
                        bar.closeRequested(d.pressedPlace)
                    }
                    d.dragging = false
                    d.dropBefore = -1
                    d.pressedPlace = -1
                }
                onCanceled: {
                    d.dragging = false
                    d.dropBefore = -1
                    d.pressedPlace = -1
                }
                onExited: d.hoveredPlace = -1

                Controls.ToolTip.visible: pointer.containsMouse && d.alerted(d.hoveredPlace)
                Controls.ToolTip.text: Strings.text("UI_TABLE_TAB_ALERTED")
                Controls.ToolTip.delay: 500
            }

            // Where a dragged tab would land.
            Rectangle {
                objectName: "tabDropMark"
                x: d.dropMarkX()
                width: 2
                height: parent.height
                visible: d.dragging && d.dropBefore >= 0
                color: BasicConstants.colors.accent
            }
        }

        BasicButton {
            id: openButton
            objectName: "openTableButton"
            Layout.preferredWidth: implicitHeight
            text: "+"
            Controls.ToolTip.visible: hovered
            Controls.ToolTip.text: Strings.text("UI_TABLE_TAB_OPEN")
            Controls.ToolTip.delay: 500
            onClicked: tablesPopup.open()

            Controls.Popup {
                id: tablesPopup
                objectName: "tablesPopup"
                y: openButton.height
                x: openButton.width - width
                margins: BasicConstants.sizes.spacing
                width: 220
                height: Math.min(360, tablesList.contentHeight + 2 * padding)
                ListView {
                    id: tablesList
                    objectName: "tablesList"
                    anchors.fill: parent
                    clip: true
                    model: bar.tabsModel
                    // Checking a table opens its tab (and shows it), unchecking closes it.
                    delegate: BasicCheckBox {
                        required property var model
                        objectName: "openTable_" + model.id
                        width: ListView.view.width
                        text: model.label
                        checked: model.enabled
                        onToggled: model.enabled = checked
                    }
                }
            }
        }
    }
}
