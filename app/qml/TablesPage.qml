import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Tables
import Demo

// 100,000 structural members fed by the demo's table controller: filter in the bar under the titles
// ("<=5", "[2;4]", "S355"; a filter applies on Enter), sort by clicking a title, resize and drag
// titles, select like in a spreadsheet, type into cells (numbers may be expressions with units),
// add members in the "*" line, copy and paste with Ctrl+C / Ctrl+V, and edit every selected cell at
// once in the box above the table.
Item {
    id: page

    StructuralMembersFeeder { id: feeder }

    ColumnLayout {
        anchors { fill: parent; margins: 12 }
        spacing: 8

        BasicLabel {
            Layout.fillWidth: true
            text: Strings.text("UI_DEMO_TABLES_HINT")
            wrapMode: Text.WordWrap
            elide: Text.ElideNone
            color: BasicConstants.colors.textSecondary
        }

        ContentTable {
            id: members
            objectName: "membersTable"
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentModel: feeder.model
            focus: true
        }

        BasicLabel {
            objectName: "membersStatus"
            text: Strings.text("UI_DEMO_TABLES_STATUS").arg(feeder.model.contentFilterModel.rowCountSubmitted)
                  .arg(feeder.model.rowCountSubmitted)
        }
    }

    // Start with something to see: a selection, so the multi-edit box has work to do.
    Component.onCompleted: {
        const table = feeder.model.contentFilterModel
        table.selectionModel.select(table.index(2, 4), TableSelectionModel.CleanSelect)
        table.selectionModel.selectRegion(table.index(6, 5), TableSelectionModel.CleanSelect)
    }
}
