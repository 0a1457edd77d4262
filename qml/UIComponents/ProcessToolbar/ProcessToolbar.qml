import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import BasicComponents.Constants

// The process toolbar: the steps of the project, left and right of the centre button that runs
// the current step's main action ("Calculate" in the analysis step). Each step shows its state;
// hovering one shows a rich tooltip.
ProcessToolbar_Cpp {
    id: toolbar

    implicitHeight: 44
    implicitWidth: row.implicitWidth + 2 * BasicConstants.sizes.margin

    QtObject {
        id: d
        // Steps before the centre button, the others after it.
        readonly property int firstHalf: 3

        function stateColor(stepState) {
            switch (stepState) {
            case WorkflowStepsModel.Done: return BasicConstants.colors.success
            case WorkflowStepsModel.NeedsUpdate: return BasicConstants.colors.warning
            case WorkflowStepsModel.Error: return BasicConstants.colors.error
            case WorkflowStepsModel.Running: return BasicConstants.colors.accent
            default: return BasicConstants.colors.border
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        color: BasicConstants.colors.panel
        Rectangle {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            height: BasicConstants.sizes.borderWidth
            color: BasicConstants.colors.border
        }
    }

    ProcessToolTip {
        id: tip
        data: toolbar.tooltip
    }

    component StepButton: ProcessStep_UI {
        id: stepButton
        required property int index
        required property string stepId
        required property string title
        required property string shortcut
        required property int stepState
        required property bool current
        objectName: "step_" + stepId
        stateColor: d.stateColor(stepState)
        hovered: stepArea.containsMouse
        MouseArea {
            id: stepArea
            anchors.fill: parent
            hoverEnabled: true
            onClicked: toolbar.currentStep = stepButton.index
            onContainsMouseChanged: {
                if (containsMouse) {
                    toolbar.showTooltip(stepButton.index)
                    tip.parent = stepButton
                    tip.y = stepButton.height + 4
                    tip.open()
                } else {
                    tip.close()
                }
            }
        }
        Shortcut {
            sequence: stepButton.shortcut
            context: Qt.ApplicationShortcut
            onActivated: toolbar.currentStep = stepButton.index
        }
    }

    RowLayout {
        id: row
        anchors.centerIn: parent
        spacing: 2

        Repeater {
            model: toolbar.steps
            delegate: StepButton {
                visible: index < d.firstHalf
            }
        }

        Button {
            id: centerButton
            objectName: "centerButton"
            Layout.leftMargin: BasicConstants.sizes.margin
            Layout.rightMargin: BasicConstants.sizes.margin
            implicitHeight: 34
            implicitWidth: Math.max(130, contentItem.implicitWidth + 2 * BasicConstants.sizes.margin)
            enabled: toolbar.centerButton.enabled
            text: toolbar.centerButton.text
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            font.bold: true
            onClicked: toolbar.centerButton.trigger()
            background: Rectangle {
                radius: height / 2
                color: !centerButton.enabled ? BasicConstants.colors.readOnly
                     : centerButton.down ? Qt.darker(BasicConstants.colors.accent, 1.2)
                     : BasicConstants.colors.accent
            }
            contentItem: RowLayout {
                spacing: BasicConstants.sizes.spacing
                BusyIndicator {
                    Layout.preferredWidth: 18
                    Layout.preferredHeight: 18
                    visible: toolbar.centerButton.running
                    running: visible
                }
                Text {
                    Layout.alignment: Qt.AlignHCenter
                    text: centerButton.text
                    font: centerButton.font
                    color: centerButton.enabled ? "white" : BasicConstants.colors.textDisabled
                }
            }
            HoverHandler {
                onHoveredChanged: {
                    if (hovered) {
                        toolbar.showTooltip(-1)
                        tip.parent = centerButton
                        tip.y = centerButton.height + 4
                        tip.open()
                    } else {
                        tip.close()
                    }
                }
            }
            Shortcut {
                sequence: toolbar.centerButton.shortcut
                context: Qt.ApplicationShortcut
                onActivated: toolbar.centerButton.trigger()
            }
        }

        Repeater {
            model: toolbar.steps
            delegate: StepButton {
                visible: index >= d.firstHalf
            }
        }
    }
}
