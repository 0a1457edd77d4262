import QtQuick
import QtQuick.Controls.Basic
import QtQml.Models
import Qml.QtComponents
import BasicComponents.Constants

// The view bar over a model view: presets, framing and what the view shows. Buttons that do not
// fit go to the "more options" menu at the bar's end; a right click pins a button to the bar.
ViewBar_Cpp {
    id: viewBar

    implicitHeight: BasicConstants.sizes.controlHeight + 2 * BasicConstants.sizes.spacing
    availableWidth: width - 2 * BasicConstants.sizes.margin
    buttonWidth: d.buttonWidth + d.spacing
    moreButtonWidth: d.moreWidth + d.spacing

    QtObject {
        id: d
        readonly property int buttonWidth: 84
        readonly property int moreWidth: 32
        readonly property int spacing: 4
    }

    Rectangle {
        anchors.fill: parent
        color: BasicConstants.colors.panel
        Rectangle {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            height: BasicConstants.sizes.borderWidth
            color: BasicConstants.colors.border
        }
    }

    Row {
        anchors { left: parent.left; leftMargin: BasicConstants.sizes.margin; verticalCenter: parent.verticalCenter }
        spacing: d.spacing

        Repeater {
            model: viewBar.buttons
            // The delegates reach the bar through the connections made when they are added.
            onItemAdded: (index, item) => {
                item.width = d.buttonWidth
                item.clickedWith.connect(mouseButton => {
                    if (mouseButton === Qt.RightButton)
                        viewBar.setPinned(item.buttonId, !item.pinned)
                    else
                        viewBar.activate(item.buttonId)
                })
            }
            delegate: ViewBarButton_UI {
                id: barButton
                required property string buttonId
                required property string title
                required property bool checked
                required property bool buttonEnabled
                required property bool pinned
                required property bool inBar
                signal clickedWith(int mouseButton)
                objectName: "viewBar_" + buttonId
                visible: inBar
                text: title
                active: buttonEnabled
                hovered: buttonArea.containsMouse
                MouseArea {
                    id: buttonArea
                    anchors.fill: parent
                    hoverEnabled: true
                    acceptedButtons: Qt.LeftButton | Qt.RightButton
                    onClicked: mouse => barButton.clickedWith(mouse.button)
                }
            }
        }

        ViewBarButton_UI {
            id: moreButton
            objectName: "viewBarMore"
            visible: viewBar.moreOptions.count > 0
            width: d.moreWidth
            text: "\u2026"
            checked: moreMenu.visible
            hovered: moreArea.containsMouse
            MouseArea {
                id: moreArea
                anchors.fill: parent
                hoverEnabled: true
                onClicked: moreMenu.popup(moreButton, 0, moreButton.height)
            }
            Menu {
                id: moreMenu
                objectName: "viewBarMoreMenu"
                Instantiator {
                    model: viewBar.moreOptions.items
                    delegate: MenuItem {
                        id: menuEntry
                        required property var modelData
                        text: menuEntry.modelData.title
                        checkable: menuEntry.modelData.checkable
                        checked: menuEntry.modelData.checked
                        enabled: menuEntry.modelData.enabled
                    }
                    onObjectAdded: (index, object) => {
                        object.triggered.connect(() => viewBar.moreOptions.trigger(object.modelData.buttonId))
                        moreMenu.insertItem(index, object)
                    }
                    onObjectRemoved: (index, object) => moreMenu.removeItem(object)
                }
            }
        }
    }
}
