import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Tables
import Demo

// One table view, two kinds of feeder. First 100,000 structural members fed by the demo's table
// controller: filter in the bar under the titles ("<=5", "[2;4]", "S355"; a filter applies on
// Enter), sort by clicking a title, resize and drag titles, select like in a spreadsheet, type into
// cells (numbers may be expressions with units), add members in the "*" line, copy and paste with
// Ctrl+C / Ctrl+V, and edit every selected cell at once in the box above the table. Then each input
// table of the host's structural model, where every change is a step of the undo history.
Item {
    id: page

    StructuralMembersFeeder { id: feeder }

    TableInput_Cpp {
        id: modelTable
        objectName: "modelTable"
        visible: false
    }

    readonly property bool showsModel: source.currentIndex > 0

    ColumnLayout {
        anchors { fill: parent; margins: 12 }
        spacing: 8

        RowLayout {
            spacing: 8
            BasicLabel { text: Strings.text("UI_DEMO_TABLES_SOURCE") }
            BasicComboBox {
                id: source
                objectName: "tableSource"
                Layout.preferredWidth: 240
                model: [Strings.text("UI_DEMO_TABLES_GENERATED"), ...modelTable.tableLabels]
                onActivated: index => {
                    if (index > 0) {
                        modelTable.tableId = modelTable.tableIds[index - 1]
                    }
                }
            }
        }

        BasicLabel {
            Layout.fillWidth: true
            text: Strings.text(page.showsModel ? "UI_DEMO_TABLES_MODEL_HINT" : "UI_DEMO_TABLES_HINT")
            wrapMode: Text.WordWrap
            elide: Text.ElideNone
            color: BasicConstants.colors.textSecondary
        }

        // A table view per feeder, so that each keeps its own filters, layout and place.
        StackLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: page.showsModel ? 1 : 0

            ContentTable {
                id: members
                objectName: "membersTable"
                contentModel: feeder.model
                focus: !page.showsModel
            }

            ContentTable {
                objectName: "modelTableView"
                contentModel: modelTable.contentModel
                focus: page.showsModel
            }
        }

        RowLayout {
            spacing: 16
            BasicLabel {
                objectName: "membersStatus"
                text: page.showsModel
                      ? Strings.text("UI_DEMO_TABLES_ROWS").arg(modelTable.contentModel.contentFilterModel.rowCountSubmitted)
                            .arg(modelTable.contentModel.rowCountSubmitted)
                      : Strings.text("UI_DEMO_TABLES_STATUS").arg(feeder.model.contentFilterModel.rowCountSubmitted)
                            .arg(feeder.model.rowCountSubmitted)
            }
            // Why the host did not take the last edit in full.
            BasicLabel {
                objectName: "modelTableMessage"
                Layout.fillWidth: true
                visible: page.showsModel && modelTable.message.length > 0
                text: modelTable.message
                color: BasicConstants.colors.error
            }
        }
    }

    // Start with something to see: a selection, so the multi-edit box has work to do.
    Component.onCompleted: {
        const table = feeder.model.contentFilterModel
        table.selectionModel.select(table.index(2, 4), TableSelectionModel.CleanSelect)
        table.selectionModel.selectRegion(table.index(6, 5), TableSelectionModel.CleanSelect)
    }
}
