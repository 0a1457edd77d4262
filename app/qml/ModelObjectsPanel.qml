import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants
import UIComponents.MenuSystem
import Demo

// Below the model view: the model's objects of one kind, one row each, following the host's
// selection; a click selects (Ctrl toggles, Shift extends) in the model, and so in the view and
// the properties panel as well. A right click opens the menu of the selected objects.
BasicPanel {
    id: panel
    title: Strings.text("UI_APP_OBJECTS_TITLE")

    SampleObjectsModel { id: objects }

    ObjectContextMenu { id: objectMenu }

    // Something selected to begin with, so that the view, this list and the properties panel show
    // one selection.
    Component.onCompleted: {
        if (objects.selectedCount === 0) {
            objects.click(0, Qt.NoModifier)
            objects.click(3, Qt.ShiftModifier)
        }
    }

    readonly property int numberWidth: 110
    readonly property int nameWidth: 160

    ColumnLayout {
        anchors { fill: parent; margins: BasicConstants.sizes.spacing }
        spacing: BasicConstants.sizes.spacing

        RowLayout {
            spacing: BasicConstants.sizes.spacing
            BasicComboBox {
                objectName: "objectKind"
                Layout.preferredWidth: 170
                model: objects.kindNames
                currentIndex: Array.from(objects.kinds).indexOf(objects.kind)
                onActivated: index => objects.kind = objects.kinds[index]
            }
            BasicLabel {
                text: Strings.text("UI_APP_OBJECTS_SELECTED").arg(objects.selectedCount).arg(objectList.count)
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: UIComponentsConstants.tableHeaderHeight
            color: UIComponentsConstants.tableHeader
            RowLayout {
                anchors { fill: parent; leftMargin: BasicConstants.sizes.margin }
                spacing: BasicConstants.sizes.margin
                Repeater {
                    model: [
                        { lcid: "UI_APP_OBJECTS_NUMBER", width: panel.numberWidth },
                        { lcid: "UI_APP_OBJECTS_NAME", width: panel.nameWidth },
                        { lcid: "UI_APP_OBJECTS_VALUES", width: -1 }
                    ]
                    Text {
                        required property var modelData
                        Layout.preferredWidth: modelData.width
                        Layout.fillWidth: modelData.width < 0
                        text: Strings.text(modelData.lcid)
                        font.family: BasicConstants.fonts.family
                        font.pixelSize: BasicConstants.fonts.normal
                        font.bold: true
                        color: BasicConstants.colors.text
                    }
                }
            }
        }

        ModelObjectsList {
            id: objectList
            objectName: "modelObjectsList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: objects
            boundsBehavior: Flickable.StopAtBounds
            numberWidth: panel.numberWidth
            nameWidth: panel.nameWidth
            // A selection made in the view or the tables scrolls into sight; one made here is
            // already in sight, and Contain leaves the list where it is.
            Connections {
                target: objects
                function onLastSelectedRowChanged() {
                    if (objects.lastSelectedRow >= 0 && objectList.height > 0)
                        objectList.positionViewAtIndex(objects.lastSelectedRow, ListView.Contain)
                }
            }
            delegate: Rectangle {
                id: objectRow
                // The list attaches itself only after the row's first bindings.
                readonly property ModelObjectsList list: ListView.view as ModelObjectsList
                required property int index
                required property int number
                required property string typeName
                required property string name
                required property string summary
                required property bool selected

                width: ListView.view.width
                height: UIComponentsConstants.tableRowHeight
                color: objectRow.selected ? UIComponentsConstants.tableSelection
                                : rowMouse.containsMouse ? BasicConstants.colors.hover : BasicConstants.colors.panel

                RowLayout {
                    anchors { fill: parent; leftMargin: BasicConstants.sizes.margin }
                    spacing: BasicConstants.sizes.margin
                    Text {
                        Layout.preferredWidth: objectRow.list ? objectRow.list.numberWidth : 0
                        text: objectRow.typeName + " " + objectRow.number
                        font.family: BasicConstants.fonts.family
                        font.pixelSize: BasicConstants.fonts.normal
                        color: BasicConstants.colors.textSecondary
                    }
                    Text {
                        Layout.preferredWidth: objectRow.list ? objectRow.list.nameWidth : 0
                        text: objectRow.name
                        elide: Text.ElideRight
                        font.family: BasicConstants.fonts.family
                        font.pixelSize: BasicConstants.fonts.normal
                        color: BasicConstants.colors.text
                    }
                    Text {
                        Layout.fillWidth: true
                        text: objectRow.summary
                        elide: Text.ElideRight
                        font.family: BasicConstants.fonts.family
                        font.pixelSize: BasicConstants.fonts.normal
                        color: BasicConstants.colors.text
                    }
                }
                Rectangle {
                    anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                    height: 1
                    color: UIComponentsConstants.tableGrid
                }
                MouseArea {
                    id: rowMouse
                    anchors.fill: parent
                    hoverEnabled: true
                    acceptedButtons: Qt.LeftButton | Qt.RightButton
                    onClicked: mouse => {
                        // A right click acts on the selection, which takes the object first
                        // unless it is part of it already.
                        if (mouse.button === Qt.RightButton) {
                            if (!objectRow.selected)
                                objects.click(objectRow.index, Qt.NoModifier)
                            objectMenu.popup()
                            return
                        }
                        objects.click(objectRow.index, mouse.modifiers)
                    }
                }
            }
        }
    }
}
