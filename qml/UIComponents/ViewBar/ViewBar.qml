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
            delegate: ViewBarButton_UI {
                id: barButton
                required property string buttonId
                required property string title
                required property bool checked
                required property bool buttonEnabled
                required property bool pinned
                required property bool inBar
                objectName: "viewBar_" + buttonId
                visible: inBar
                width: d.buttonWidth
                text: title
                active: buttonEnabled
                hovered: buttonArea.containsMouse
                MouseArea {
                    id: buttonArea
                    anchors.fill: parent
                    hoverEnabled: true
                    acceptedButtons: Qt.LeftButton | Qt.RightButton
                    onClicked: mouse => {
                        if (mouse.button === Qt.RightButton)
                            viewBar.setPinned(barButton.buttonId, !barButton.pinned)
                        else
                            viewBar.activate(barButton.buttonId)
                    }
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
                        required property var modelData
                        text: modelData.title
                        checkable: modelData.checkable
                        checked: modelData.checked
                        enabled: modelData.enabled
                        onTriggered: viewBar.moreOptions.trigger(modelData.buttonId)
                    }
                    onObjectAdded: (index, object) => moreMenu.insertItem(index, object)
                    onObjectRemoved: (index, object) => moreMenu.removeItem(object)
                }
            }
        }
    }
}
