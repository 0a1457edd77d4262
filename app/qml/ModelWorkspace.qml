import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import BasicComponents.Constants
import Orvo.QtExtensions
import UIComponents.GraphicView
import UIComponents.ProcessToolbar
import UIComponents.PropertiesPanel
import UIComponents.Tables
import UIComponents.ViewBar
import Demo

// The application's workspace on the one structural model: the model view in the centre, the
// properties panel beside it, the model's objects and the input tables below. A selection made in
// the view, the objects list or the properties panel shows in all three; holding the secondary
// button over the view opens the marking menu.
Item {
    id: workspace

    // The application's bar of the model view (made by the application) follows
    // this view.
    Binding {
        target: DemoShell.viewControls
        property: "viewportId"
        value: graphicView.viewport.viewportId
    }

    SplitView {
        anchors.fill: parent
        orientation: Qt.Horizontal

        SplitView {
            SplitView.fillWidth: true
            orientation: Qt.Vertical

            ColumnLayout {
                SplitView.fillHeight: true
                SplitView.minimumHeight: 200
                spacing: 0

                // The project's steps; the centre button runs the current one's main action.
                ProcessToolbar {
                    objectName: "processToolbar"
                    Layout.fillWidth: true
                    onTablesRequested: bottomTabs.currentIndex = 1
                    onResultsRequested: {
                        viewBar.setChecked("deformed", true)
                        viewBar.setChecked("moments", true)
                    }
                }

                // Presets, framing and what the view shows; narrow, it folds into a menu.
                ViewBar {
                    id: viewBar
                    objectName: "viewBar"
                    Layout.fillWidth: true
                    viewportId: graphicView.viewport.viewportId
                }

                // What the view does not take (the secondary button) falls through to the area,
                // which asks for the marking menu.
                ViewInputArea {
                    objectName: "modelView"
                    Layout.fillWidth: true
                    Layout.fillHeight: true

                    GraphicView {
                        id: graphicView
                        objectName: "graphicView"
                        anchors.fill: parent
                    }
                }
            }

            // The panels below the view, one at a time.
            ColumnLayout {
                SplitView.preferredHeight: 260
                SplitView.minimumHeight: 150
                spacing: 0

                TabBar {
                    id: bottomTabs
                    objectName: "bottomPanels"
                    Layout.fillWidth: true
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                    // The shown tab has the panel's colour, the others the colour of panel headers.
                    palette.window: BasicConstants.colors.panel
                    palette.windowText: BasicConstants.colors.text
                    palette.dark: BasicConstants.colors.panelHeader
                    palette.brightText: BasicConstants.colors.textSecondary
                    // The tables are made when first shown: nothing asks the host for rows before.
                    onCurrentIndexChanged: {
                        if (currentItem === tablesTab)
                            tablesPanel.active = true
                    }

                    TabButton {
                        objectName: "objectsTab"
                        width: implicitWidth
                        text: Strings.text("UI_APP_OBJECTS_TITLE")
                    }
                    TabButton {
                        id: tablesTab
                        objectName: "tablesTab"
                        width: implicitWidth
                        text: Strings.text("UI_APP_PAGE_TABLES")
                    }
                }

                StackLayout {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    currentIndex: bottomTabs.currentIndex

                    ModelObjectsPanel {
                        objectName: "modelObjects"
                        // The tab names it.
                        title: ""
                    }

                    // The model's input tables alone: the properties panel beside the view already
                    // shows the rows selected here.
                    Loader {
                        id: tablesPanel
                        objectName: "tablesPanel"
                        active: false
                        sourceComponent: TableInput {
                            objectName: "workspaceInputTables"
                            configurationKey: "WorkspaceTableInput"
                        }
                    }
                }
            }
        }

        PropertiesPanel {
            objectName: "propertiesPanel"
            SplitView.preferredWidth: 360
            SplitView.minimumWidth: 260
        }
    }
}
