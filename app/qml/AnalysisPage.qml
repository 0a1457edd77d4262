import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants
import Demo

// The host's analysis of the one structural model: started here, followed by its progress bar,
// and summarised per load case and combination once its results are written.
Item {
    id: page

    // The first visit analyses the model, so that there is something to see at once.
    Component.onCompleted: if (!DemoShell.analysis.hasResults && !DemoShell.analysis.running) DemoShell.analysis.start()

    component Label: Text {
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        color: BasicConstants.colors.text
        elide: Text.ElideRight
    }

    ColumnLayout {
        anchors { fill: parent; margins: 16 }
        spacing: 16

        BasicPanel {
            Layout.fillWidth: true
            Layout.preferredHeight: 200
            title: Strings.text("UI_DEMO_ANALYSIS")

            ColumnLayout {
                anchors { fill: parent; margins: 10 }
                spacing: 8

                Label {
                    Layout.fillWidth: true
                    wrapMode: Text.WordWrap
                    elide: Text.ElideNone
                    text: Strings.text("UI_DEMO_ANALYSIS_HINT")
                    color: BasicConstants.colors.textSecondary
                }

                Label {
                    objectName: "modelDescription"
                    Layout.fillWidth: true
                    text: DemoShell.analysis.modelDescription
                    font.bold: true
                }

                RowLayout {
                    spacing: 8
                    BasicButton {
                        objectName: "analyseButton"
                        text: Strings.text("UI_DEMO_ANALYSE")
                        enabled: !DemoShell.analysis.running
                        onClicked: DemoShell.analysis.start()
                    }
                    BasicButton {
                        objectName: "stopButton"
                        text: Strings.text("UI_DEMO_STOP")
                        enabled: DemoShell.analysis.running && !DemoShell.analysis.stopping
                        onClicked: DemoShell.analysis.cancel()
                    }
                    Rectangle {
                        objectName: "progressBar"
                        Layout.preferredWidth: 320
                        Layout.preferredHeight: 10
                        radius: 5
                        color: BasicConstants.colors.panelHeader
                        border.color: BasicConstants.colors.border
                        Rectangle {
                            anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
                            width: parent.width * DemoShell.analysis.progress
                            radius: parent.radius
                            color: BasicConstants.colors.accent
                        }
                    }
                    Label {
                        Layout.fillWidth: true
                        text: DemoShell.analysis.running ? DemoShell.analysis.stageText : DemoShell.analysis.statusText
                    }
                }

                Label {
                    Layout.fillWidth: true
                    visible: DemoShell.analysis.hasResults && !DemoShell.analysis.resultsUpToDate
                    text: Strings.text("UI_DEMO_RESULTS_OUT_OF_DATE")
                    color: BasicConstants.colors.error
                }

                Item { Layout.fillHeight: true }
            }
        }

        BasicPanel {
            Layout.fillWidth: true
            Layout.fillHeight: true
            title: Strings.text("UI_DEMO_RESULTS_SUMMARY")

            ColumnLayout {
                anchors { fill: parent; margins: 10 }
                spacing: 4

                Label {
                    Layout.fillWidth: true
                    text: DemoShell.analysis.hasResults ? Strings.text("UI_DEMO_RESULTS_SUMMARY_HINT") : Strings.text("UI_DEMO_NO_RESULTS")
                    color: BasicConstants.colors.textSecondary
                }

                SummaryRow {
                    Layout.fillWidth: true
                    visible: DemoShell.analysis.hasResults
                    header: true
                    name: Strings.text("UI_DEMO_SUMMARY_SET")
                    displacement: Strings.text("UI_DEMO_SUMMARY_DISPLACEMENT")
                    reactions: Strings.text("UI_DEMO_SUMMARY_REACTIONS")
                    moment: Strings.text("UI_DEMO_SUMMARY_MOMENT")
                }

                ListView {
                    objectName: "summaryList"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    clip: true
                    model: DemoShell.analysis.summary
                    delegate: SummaryRow {
                        required property var modelData
                        width: ListView.view.width
                        name: modelData.name
                        displacement: modelData.displacement
                        reactions: modelData.reactions
                        moment: modelData.moment
                    }
                }
            }
        }
    }

    component SummaryRow: Rectangle {
        id: summaryRow
        property bool header: false
        property string name
        property string displacement
        property string reactions
        property string moment

        implicitHeight: 28
        color: header ? BasicConstants.colors.panelHeader : "transparent"
        RowLayout {
            anchors { fill: parent; leftMargin: 8; rightMargin: 8 }
            spacing: 12
            Label { Layout.preferredWidth: 220; text: summaryRow.name; font.bold: summaryRow.header }
            Label { Layout.preferredWidth: 200; text: summaryRow.displacement; font.bold: summaryRow.header }
            Label { Layout.preferredWidth: 260; text: summaryRow.reactions; font.bold: summaryRow.header }
            Label { Layout.fillWidth: true; text: summaryRow.moment; font.bold: summaryRow.header }
        }
        Rectangle {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            height: 1
            color: UIComponentsConstants.tableGrid
        }
    }
}
