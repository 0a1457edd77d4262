import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Common
import UIComponents.Spotlight
import Demo

// Command surfaces at work: the spotlight search (Ctrl+Space anywhere; here also open on the
// page), a modelling command that takes the points typed into it, and the searchable and
// multi-select combo boxes over the model's objects.
Item {
    id: page

    CommandMenuHelper {
        id: commandHelper
        componentTrackingID: "CommandsPage"
    }

    SampleObjectsModel {
        id: sectionsModel
        kind: "crossSection"
    }

    SampleObjectsModel {
        id: loadCasesModel
        kind: "loadCase"
    }

    SampleObjectsModel {
        id: chosenKindModel
        kind: sectionsModel.kinds[Math.max(0, kindCombo.currentIndex)]
    }

    RowLayout {
        anchors { fill: parent; margins: 24 }
        spacing: 16

        BasicPanel {
            Layout.fillWidth: true
            Layout.fillHeight: true
            title: Strings.text("UI_APP_COMMANDS_SPOTLIGHT_TITLE")

            ColumnLayout {
                anchors { fill: parent; margins: 12; topMargin: 36 }
                spacing: 10

                BasicLabel {
                    Layout.fillWidth: true
                    wrapMode: Text.WordWrap
                    text: Strings.text("UI_APP_COMMANDS_SPOTLIGHT_TEXT")
                }

                RowLayout {
                    spacing: 8
                    BasicButton {
                        objectName: "newMemberButton"
                        text: commandHelper.getCommandName(ModelingCommands.newMemberUuid)
                        onClicked: commandHelper.executeCommand(ModelingCommands.newMemberUuid)
                    }
                    BasicButton {
                        text: Strings.text("UI_APP_COMMANDS_CANCEL")
                        onClicked: ModelingCommands.cancel()
                    }
                    BasicLabel {
                        objectName: "lastInput"
                        color: BasicConstants.colors.textSecondary
                        text: ModelingCommands.lastInput.length > 0
                              ? Strings.text("UI_APP_COMMANDS_LAST_INPUT").arg(ModelingCommands.lastInput)
                                .arg(ModelingCommands.lastResult)
                              : ""
                    }
                }

                Spotlight {
                    id: spotlight
                    objectName: "pageSpotlight"
                    Layout.fillWidth: true
                    Layout.preferredHeight: implicitHeight
                    // The application's Ctrl+Space spotlight is the shell's; this one is the page's own.
                    shortcut: ""
                    configurationKey: "CommandsPageSpotlight"
                    stayOpen: true
                    Component.onCompleted: spotlight.open()
                }

                Item { Layout.fillHeight: true }
            }
        }

        BasicPanel {
            Layout.preferredWidth: 340
            Layout.fillHeight: true
            title: Strings.text("UI_APP_COMMANDS_COMBOS_TITLE")

            ColumnLayout {
                anchors { fill: parent; margins: 12; topMargin: 36 }
                spacing: 6

                BasicLabel { text: Strings.text("UI_APP_COMMANDS_KIND") }
                SearchableComboBox {
                    id: kindCombo
                    objectName: "kindCombo"
                    Layout.fillWidth: true
                    model: SimpleComboBoxProxyModel {
                        items: sectionsModel.kindNames
                    }
                    currentIndex: 3
                }

                BasicLabel { text: Strings.text("UI_APP_COMMANDS_OBJECT") }
                SearchableComboBox {
                    objectName: "objectCombo"
                    Layout.fillWidth: true
                    model: chosenKindModel
                    textRole: "name"
                }

                BasicLabel { text: Strings.text("UI_APP_COMMANDS_LOAD_CASES") }
                MultiSelectComboBox {
                    id: loadCases
                    objectName: "loadCaseCombo"
                    Layout.fillWidth: true
                    model: loadCasesModel
                    textRole: "name"
                    keyRole: "number"
                }

                BasicLabel {
                    Layout.fillWidth: true
                    wrapMode: Text.WordWrap
                    color: BasicConstants.colors.textSecondary
                    text: Strings.text("UI_APP_COMMANDS_CHOSEN").arg(loadCases.summary)
                }

                BasicLabel { text: Strings.text("UI_APP_COMMANDS_SEARCH") }
                SearchField {
                    id: sectionSearch
                    Layout.fillWidth: true
                }
                Repeater {
                    model: ComboBoxProxyModel {
                        sourceModel: sectionsModel
                        textRole: "name"
                        searchText: sectionSearch.text
                    }
                    BasicLabel {
                        required property string itemText
                        text: itemText
                    }
                }

                Item { Layout.fillHeight: true }
            }
        }
    }
}
