import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import Demo

// Over the model view: the camera's presets and framing, and what the view shows.
Rectangle {
    id: toolbar

    required property ViewControls controls

    implicitHeight: row.implicitHeight + 2 * BasicConstants.sizes.spacing
    color: BasicConstants.colors.panel

    // Wraps onto a second line where the view is narrow.
    Flow {
        id: row
        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            margins: BasicConstants.sizes.spacing
            leftMargin: BasicConstants.sizes.margin
        }
        spacing: BasicConstants.sizes.spacing

        Repeater {
            model: [
                { preset: ViewControls.Isometric, lcid: "UI_APP_VIEW_ISOMETRIC" },
                { preset: ViewControls.Top, lcid: "UI_APP_VIEW_TOP" },
                { preset: ViewControls.Front, lcid: "UI_APP_VIEW_FRONT" },
                { preset: ViewControls.Side, lcid: "UI_APP_VIEW_SIDE" }
            ]
            onItemAdded: (index, item) => item.clicked.connect(() => toolbar.controls.showPreset(item.modelData.preset))
            BasicButton {
                id: presetButton
                required property var modelData
                text: Strings.text(presetButton.modelData.lcid)
            }
        }
        BasicButton {
            objectName: "fitAll"
            text: Strings.text("UI_APP_VIEW_FIT")
            onClicked: toolbar.controls.fitAll()
        }
        Item { width: BasicConstants.sizes.margin; height: 1 }
        BasicCheckBox {
            objectName: "showSections"
            text: Strings.text("UI_APP_VIEW_SECTIONS")
            checked: toolbar.controls.extrudedSections
            onToggled: toolbar.controls.extrudedSections = checked
        }
        BasicCheckBox {
            text: Strings.text("UI_APP_VIEW_LOADS")
            checked: toolbar.controls.loads
            onToggled: toolbar.controls.loads = checked
        }
        BasicCheckBox {
            objectName: "showDeformedShape"
            text: Strings.text("UI_APP_VIEW_DEFORMED")
            enabled: toolbar.controls.resultsAvailable
            checked: toolbar.controls.deformedShape
            onToggled: toolbar.controls.deformedShape = checked
        }
        BasicCheckBox {
            text: Strings.text("UI_APP_VIEW_MOMENTS")
            enabled: toolbar.controls.resultsAvailable
            checked: toolbar.controls.momentDiagram
            onToggled: toolbar.controls.momentDiagram = checked
        }
        BasicButton {
            objectName: "runAnalysis"
            text: DemoShell.analysis.running ? Strings.text("UI_APP_VIEW_ANALYSING") : Strings.text("UI_APP_VIEW_ANALYSE")
            enabled: !DemoShell.analysis.running
            onClicked: DemoShell.analysis.start()
        }
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: BasicConstants.sizes.borderWidth
        color: BasicConstants.colors.border
    }
}
