import QtQuick
import QtQuick.Controls.Basic as Controls
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants

// The properties panel: the selected objects' properties by category, each category folding
// at its header, an editor per value type, mixed values marked as such, a switch between the
// basic and every property, the host's actions for the objects, and an illustration of the
// property under the pointer.
PropertiesPanel_Cpp {
    id: propertiesPanel

    // A fixed key: the host stores the user's folded categories and mode under it, and a
    // class name can change with every document that extends the panel.
    configurationKey: "PropertiesPanel"
    implicitWidth: 360
    implicitHeight: 640
    clip: true

    Rectangle {
        anchors.fill: parent
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.border
    }

    ColumnLayout {
        anchors { fill: parent; margins: BasicConstants.sizes.borderWidth }
        spacing: 0

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: headerColumn.implicitHeight + 2 * BasicConstants.sizes.margin
            color: BasicConstants.colors.panel

            ColumnLayout {
                id: headerColumn
                anchors { fill: parent; margins: BasicConstants.sizes.margin }
                spacing: BasicConstants.sizes.spacing

                RowLayout {
                    Layout.fillWidth: true
                    spacing: BasicConstants.sizes.spacing

                    Text {
                        objectName: "propertiesTitle"
                        Layout.fillWidth: true
                        text: propertiesPanel.title
                        elide: Text.ElideRight
                        font.family: BasicConstants.fonts.family
                        font.pixelSize: BasicConstants.fonts.large
                        font.bold: true
                        color: BasicConstants.colors.text
                    }

                    BasicComboBox {
                        id: entityChoice
                        objectName: "entityChoice"
                        Layout.preferredWidth: 150
                        visible: propertiesPanel.entityModel.count > 1
                        model: propertiesPanel.entityModel
                        textRole: "nameRole"
                        onActivated: (index) => propertiesPanel.entityModel.currentIndex = index
                        delegate: Controls.ItemDelegate {
                            required property var model
                            required property int index
                            width: ListView.view.width
                            text: model.nameRole + "  (" + model.countRole + ")"
                            font.family: BasicConstants.fonts.family
                            font.pixelSize: BasicConstants.fonts.normal
                            // The pop-up list follows the combo box's highlighted entry.
                            highlighted: ListView.isCurrentItem
                        }
                        Binding {
                            target: entityChoice
                            property: "currentIndex"
                            value: propertiesPanel.entityModel.currentIndex
                        }
                    }
                }

                RowLayout {
                    Layout.fillWidth: true
                    spacing: BasicConstants.sizes.spacing

                    BasicAdvancedSwitch {
                        basic: propertiesPanel.inBasicMode
                        onSwitched: (basic) => propertiesPanel.inBasicMode = basic
                    }
                    Item { Layout.fillWidth: true }
                    BasicButton {
                        objectName: "expandAllButton"
                        visible: propertiesPanel.userConfiguration.collapsedCategories.length > 0
                        text: Strings.text("UI_PROPERTIES_EXPAND_ALL")
                        onClicked: propertiesPanel.expandAll()
                    }
                    BasicCheckBox {
                        objectName: "illustrationSwitch"
                        text: Strings.text("UI_PROPERTIES_ILLUSTRATIONS")
                        checked: propertiesPanel.userConfiguration.illustrationVisible
                        onToggled: propertiesPanel.userConfiguration.illustrationVisible = checked
                    }
                }
            }

            Rectangle {
                anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                height: BasicConstants.sizes.borderWidth
                color: BasicConstants.colors.border
            }
        }

        // Why the host refused the last value, until the next accepted one.
        Rectangle {
            objectName: "refusalMessage"
            Layout.fillWidth: true
            Layout.preferredHeight: refusalText.implicitHeight + 12
            visible: propertiesPanel.message.length > 0
            color: BasicConstants.colors.panelHeader
            border.color: BasicConstants.colors.error
            Text {
                id: refusalText
                anchors { fill: parent; margins: 6 }
                text: propertiesPanel.message
                wrapMode: Text.WordWrap
                color: BasicConstants.colors.error
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
            }
        }

        PropertiesList {
            id: list
            objectName: "propertiesList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: propertiesPanel.propertiesModel
            boundsBehavior: Flickable.StopAtBounds
            reuseItems: false
            panel: propertiesPanel
            delegate: PropertiesListDelegate {
                width: ListView.view.width
                // The view attaches itself only after the delegate's first bindings.
                panel: ListView.view ? (ListView.view as PropertiesList).panel : null
            }
            Controls.ScrollBar.vertical: Controls.ScrollBar { }

            Text {
                objectName: "propertiesEmptyText"
                anchors { fill: parent; margins: 2 * BasicConstants.sizes.margin }
                visible: list.count === 0
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                wrapMode: Text.WordWrap
                text: propertiesPanel.selectedCount === 0 ? Strings.text("UI_PROPERTIES_EMPTY")
                                                : Strings.text("UI_PROPERTIES_NOTHING_IN_BASIC_MODE")
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: BasicConstants.colors.textSecondary
            }
        }

        IllustrationView {
            objectName: "illustrationView"
            Layout.fillWidth: true
            visible: propertiesPanel.userConfiguration.illustrationVisible && propertiesPanel.illustration.available
            illustration: propertiesPanel.illustration
        }

        Rectangle {
            Layout.fillWidth: true
            visible: propertiesPanel.actionsModel.count > 0
            implicitHeight: actionsFlow.implicitHeight + 2 * BasicConstants.sizes.margin
            color: BasicConstants.colors.panelHeader

            Flow {
                id: actionsFlow
                anchors { fill: parent; margins: BasicConstants.sizes.margin }
                spacing: BasicConstants.sizes.spacing
                Repeater {
                    model: propertiesPanel.actionsModel
                    // By the button's current row: actions before it may come and go.
                    onItemAdded: (index, item) => item.clicked.connect(() => propertiesPanel.runAction(item.index))
                    BasicButton {
                        required property var model
                        required property int index
                        objectName: "action_" + model.keyRole
                        text: model.nameRole
                    }
                }
            }
        }
    }
}
