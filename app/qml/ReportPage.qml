import QtQuick
import Qml.QtComponents
import UIComponents.ReportPreview
import Demo

// The report of the demo's model: its input tables, a picture of the model as the model view
// shows it, and the analysis's results once the analysis has run (the analysis page or the
// process toolbar runs it; the report follows).
Item {
    id: page

    ReportPreview {
        objectName: "reportPreview"
        anchors.fill: parent
        projectName: Strings.text("UI_APP_REPORT_PROJECT")
        viewportId: DemoShell.viewControls ? DemoShell.viewControls.viewportId : -1
        fitWidth: true
    }
}
