import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Tables
import UIComponents.PropertiesPanel
import Demo

// The host's table panels over the one structural model: the input tables of every kind of
// object beside the properties panel (the selected rows show there, and an edit in either shows
// in the other), the results tables of the last analysis, and generated members (100,000 unless
// --table-rows says otherwise) fed by
// the demo's own controller. A self-contained page: everything it shows comes from the host.
Item {
    id: page

    StructuralMembersFeeder { id: feeder }

    // Shows the input or results table of that identifier (a table chosen in the spotlight).
    function showTable(tableId) {
        let input = false
        for (let i = 0; i < inputPanel.tableIds.length; ++i)
            input = input || inputPanel.tableIds[i] === tableId
        source.currentIndex = input ? d.inputTables : d.resultTables
        if (input)
            inputPanel.openTable(tableId)
        else
            resultPanel.openTable(tableId)
    }

    QtObject {
        id: d
        readonly property int inputTables: 0
        readonly property int resultTables: 1
        readonly property int generated: 2
        readonly property int propertiesWidth: 340
        readonly property var hints: ["UI_DEMO_TABLES_MODEL_HINT", "UI_DEMO_TABLES_RESULTS_HINT", "UI_DEMO_TABLES_HINT"]
    }

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
                model: [Strings.text("UI_DEMO_TABLES_INPUT"), Strings.text("UI_DEMO_TABLES_RESULTS"),
                    Strings.text("UI_DEMO_TABLES_GENERATED")]
            }
        }

        BasicLabel {
            Layout.fillWidth: true
            text: Strings.text(d.hints[source.currentIndex])
            wrapMode: Text.WordWrap
            elide: Text.ElideNone
            color: BasicConstants.colors.textSecondary
        }

        StackLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: source.currentIndex

            RowLayout {
                spacing: 8
                TableInput {
                    id: inputPanel
                    objectName: "inputTables"
                    configurationKey: "DemoTableInput"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    focus: source.currentIndex === d.inputTables
                }
                PropertiesPanel {
                    objectName: "tablesPropertiesPanel"
                    Layout.preferredWidth: d.propertiesWidth
                    Layout.fillHeight: true
                }
            }

            TableResult {
                id: resultPanel
                objectName: "resultTables"
                configurationKey: "DemoTableResult"
                focus: source.currentIndex === d.resultTables
            }

            ContentTable {
                id: members
                objectName: "membersTable"
                contentModel: feeder.model
                focus: source.currentIndex === d.generated
            }
        }

        BasicLabel {
            objectName: "membersStatus"
            readonly property TableContentModel shown: source.currentIndex === d.inputTables ? inputPanel.contentModel
                                                     : source.currentIndex === d.resultTables ? resultPanel.contentModel
                                                     : feeder.model
            text: Strings.text("UI_DEMO_TABLES_ROWS").arg(shown.contentFilterModel.rowCountSubmitted).arg(shown.rowCountSubmitted)
        }
    }

    // Start the generated table with something to see: a selection, so the multi-edit box has work.
    Component.onCompleted: {
        const table = feeder.model.contentFilterModel
        table.selectionModel.select(table.index(2, 4), TableSelectionModel.CleanSelect)
        table.selectionModel.selectRegion(table.index(6, 5), TableSelectionModel.CleanSelect)
    }
}
