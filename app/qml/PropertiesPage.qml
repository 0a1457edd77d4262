import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants
import UIComponents.PropertiesPanel
import Demo

// The structural model beside the properties panel: the panel shows what is selected in the
// list, and every edit in the panel shows in the list at once.
Item {
    id: page

    SampleObjectsModel { id: objects }

    Component.onCompleted: if (objects.selectedCount === 0) objects.click(0, Qt.NoModifier)

    RowLayout {
        anchors { fill: parent; margins: 16 }
        spacing: 16

        BasicPanel {
            Layout.fillWidth: true
            Layout.fillHeight: true
            title: Strings.text("UI_DEMO_OBJECTS")

            ColumnLayout {
                anchors { fill: parent; margins: 10 }
                spacing: 8

                Text {
                    Layout.fillWidth: true
                    wrapMode: Text.WordWrap
                    text: Strings.text("UI_DEMO_OBJECTS_HINT")
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                    color: BasicConstants.colors.textSecondary
                }

                RowLayout {
                    spacing: 6
                    BasicLabel { text: Strings.text("UI_DEMO_SHOW") }
                    BasicComboBox {
                        objectName: "objectKindBox"
                        Layout.preferredWidth: 170
                        model: objects.kindNames
                        currentIndex: Array.from(objects.kinds).indexOf(objects.kind)
                        onActivated: (index) => objects.kind = objects.kinds[index]
                    }
                    BasicLabel { text: Strings.text("UI_DEMO_SELECT") }
                    BasicButton { text: Strings.text("UI_DEMO_SELECT_ALL"); onClicked: objects.selectAll() }
                    BasicButton { text: Strings.text("UI_DEMO_SELECT_NONE"); onClicked: objects.clearSelection() }
                    BasicLabel { text: Strings.text("UI_DEMO_OBJECT_COUNT").arg(objectList.count) }
                }

                ListView {
                    id: objectList
                    objectName: "sampleObjectsList"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    clip: true
                    model: objects
                    boundsBehavior: Flickable.StopAtBounds
                    delegate: Rectangle {
                        id: objectRow
                        required property int index
                        required property int number
                        required property string typeName
                        required property string name
                        required property string summary
                        required property color objectColor
                        required property bool selected

                        width: ListView.view.width
                        height: 30
                        color: objectRow.selected ? BasicConstants.colors.selection
                                        : rowMouse.containsMouse ? BasicConstants.colors.hover : "transparent"

                        RowLayout {
                            anchors { fill: parent; leftMargin: 8; rightMargin: 8 }
                            spacing: 10
                            Rectangle {
                                Layout.preferredWidth: 12
                                Layout.preferredHeight: 12
                                radius: 6
                                color: objectRow.objectColor
                                border.color: BasicConstants.colors.border
                            }
                            Text {
                                Layout.preferredWidth: 110
                                text: objectRow.typeName + " " + objectRow.number
                                font.family: BasicConstants.fonts.family
                                font.pixelSize: BasicConstants.fonts.normal
                                color: BasicConstants.colors.textSecondary
                            }
                            Text {
                                Layout.preferredWidth: 130
                                text: objectRow.name
                                elide: Text.ElideRight
                                font.family: BasicConstants.fonts.family
                                font.pixelSize: BasicConstants.fonts.normal
                                font.bold: objectRow.selected
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
                            onClicked: (mouse) => objects.click(index, mouse.modifiers)
                        }
                    }
                }
            }
        }

        PropertiesPanel {
            objectName: "propertiesPanel"
            Layout.preferredWidth: 380
            Layout.fillHeight: true
        }
    }
}
