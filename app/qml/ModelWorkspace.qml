import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import Orvo.QtExtensions
import UIComponents.GraphicView
import UIComponents.PropertiesPanel
import Demo

// The application's workspace on the one structural model: the model view in the centre, the
// properties panel beside it, the model's objects below. A selection made in any of them shows
// in all three; holding the secondary button over the view opens the marking menu.
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

                ViewToolbar {
                    Layout.fillWidth: true
                    controls: DemoShell.viewControls
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

            ModelObjectsPanel {
                objectName: "modelObjects"
                SplitView.preferredHeight: 230
                SplitView.minimumHeight: 120
            }
        }

        PropertiesPanel {
            objectName: "propertiesPanel"
            SplitView.preferredWidth: 360
            SplitView.minimumWidth: 260
        }
    }
}
