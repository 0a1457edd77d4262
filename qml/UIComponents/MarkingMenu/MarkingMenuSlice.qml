import QtQuick
import QtQuick.Shapes
import UIComponents.Constants
import "MarkingMenuGeometry.js" as MarkingMenuGeometry

// One slice of a ring: an annular sector with its command's icon and name. Its item covers the
// whole ring, centred on the menu, so that every slice shares the menu's centre. A slot without a
// command the user can see is drawn as an outline only: plainly empty, never a blank button.
Item {
    id: sliceItem

    required property int section
    required property int sliceNumber
    property string commandUuid: ""
    property var helper: null
    property bool selected: false
    property real innerRadius: MarkingMenuGeometry.ringInnerRadius
    property real outerRadius: MarkingMenuGeometry.ringOuterRadius

    // What the host says of the command, asked again whenever it announces a change of states.
    property bool commandVisible: false
    property bool commandEnabled: false
    property string commandIcon: ""
    property string commandName: ""

    function refresh() {
        commandVisible = commandUuid !== "" && helper !== null && helper.isItemVisible(commandUuid)
        commandEnabled = commandVisible && helper.isItemEnabled(commandUuid)
        commandIcon = commandVisible ? helper.getCommandIcon(commandUuid) : ""
        commandName = commandVisible ? helper.getCommandName(commandUuid) : ""
    }

    onCommandUuidChanged: refresh()
    onHelperChanged: refresh()
    Component.onCompleted: refresh()

    Connections {
        target: sliceItem.helper
        function onCommandStateChanged() {
            sliceItem.refresh()
        }
    }

    readonly property real startAngle: MarkingMenuGeometry.sliceStartAngle(section, sliceNumber)
                                       + MarkingMenuGeometry.sliceGapAngle
    readonly property real sweepAngle: MarkingMenuGeometry.sliceSweep - 2 * MarkingMenuGeometry.sliceGapAngle

    width: outerRadius * 2
    height: outerRadius * 2

    Shape {
        anchors.fill: parent
        antialiasing: true

        ShapePath {
            strokeColor: sliceItem.commandVisible ? "transparent" : UIComponentsConstants.markingMenuSliceEmpty
            strokeWidth: 1
            strokeStyle: ShapePath.DashLine
            fillColor: !sliceItem.commandVisible ? "transparent"
                     : !sliceItem.selected ? UIComponentsConstants.markingMenuSlice
                     : sliceItem.commandEnabled ? UIComponentsConstants.markingMenuSliceHover
                                                : UIComponentsConstants.markingMenuSliceDisabledHover

            PathAngleArc {
                centerX: sliceItem.outerRadius
                centerY: sliceItem.outerRadius
                radiusX: sliceItem.outerRadius
                radiusY: sliceItem.outerRadius
                startAngle: sliceItem.startAngle
                sweepAngle: sliceItem.sweepAngle
            }
            PathAngleArc {
                centerX: sliceItem.outerRadius
                centerY: sliceItem.outerRadius
                radiusX: sliceItem.innerRadius
                radiusY: sliceItem.innerRadius
                startAngle: sliceItem.startAngle + sliceItem.sweepAngle
                sweepAngle: -sliceItem.sweepAngle
                moveToStart: false
            }
        }
    }

    MarkingMenuSliceContent_UI {
        readonly property var centre: MarkingMenuGeometry.pointAt(
                                          MarkingMenuGeometry.sliceMiddleAngle(sliceItem.section, sliceItem.sliceNumber),
                                          (sliceItem.innerRadius + sliceItem.outerRadius) / 2)
        x: sliceItem.outerRadius + centre.x - width / 2
        y: sliceItem.outerRadius + centre.y - height / 2
        visible: sliceItem.commandVisible
        iconSource: sliceItem.commandIcon
        text: sliceItem.commandName
        dimmed: !sliceItem.commandEnabled
    }
}
