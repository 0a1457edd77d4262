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
        // Narrower than this, the steps show their marks only (their titles are in the tooltips).
        readonly property int compactBelow: 760

        function stateColor(stateName) {
            switch (stateName) {
            case "done": return BasicConstants.colors.success
            case "needsUpdate": return BasicConstants.colors.warning
            case "error": return BasicConstants.colors.error
            case "running": return BasicConstants.colors.accent
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

    // The delegates reach the toolbar through the connections made when they are added.
    component StepButton: ProcessStep_UI {
        id: stepButton
        required property int index
        required property string stepId
        required property string title
        required property string shortcut
        required property string stateName
        // Each step has a button in both halves of the bar; only the shown one takes its key,
        // since Qt runs neither of two shortcuts on the same key.
        property bool shown: false
        signal chosen()
        signal hoverChanged(bool inside)
        objectName: "step_" + stepId
        text: title
        current: false
        stateColor: stateName === "done" ? BasicConstants.colors.success
                  : stateName === "needsUpdate" ? BasicConstants.colors.warning
                  : stateName === "error" ? BasicConstants.colors.error
                  : stateName === "running" ? BasicConstants.colors.accent
                  : BasicConstants.colors.border
        hovered: stepArea.containsMouse
        MouseArea {
            id: stepArea
            anchors.fill: parent
            hoverEnabled: true
            onClicked: stepButton.chosen()
            onContainsMouseChanged: stepButton.hoverChanged(containsMouse)
        }
        Shortcut {
            sequence: stepButton.shortcut
            context: Qt.ApplicationShortcut
            enabled: stepButton.shown
            onActivated: stepButton.chosen()
        }
    }

    function connectStep(index, item, shown) {
        item.visible = shown
        item.shown = shown
        item.compact = Qt.binding(() => toolbar.width < d.compactBelow)
        item.current = Qt.binding(() => toolbar.currentStep === index)
        item.chosen.connect(() => toolbar.currentStep = index)
        item.hoverChanged.connect(inside => {
            if (inside) {
                toolbar.showTooltip(index)
                tip.parent = item
                tip.y = item.height + 4
                tip.open()
            } else {
                tip.close()
            }
        })
    }

    RowLayout {
        id: row
        anchors.centerIn: parent
        spacing: 2

        Repeater {
            model: toolbar.steps
            delegate: StepButton {}
            onItemAdded: (index, item) => toolbar.connectStep(index, item, index < d.firstHalf)
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
            delegate: StepButton {}
            onItemAdded: (index, item) => toolbar.connectStep(index, item, index >= d.firstHalf)
        }
    }
}
