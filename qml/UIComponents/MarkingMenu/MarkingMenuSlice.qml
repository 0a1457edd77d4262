import QtQuick
import QtQuick.Shapes
import UIComponents.Constants
import "MarkingMenuGeometry.js" as MarkingMenuGeometry

// One slice of a ring: an annular sector with its command's icon and name. Its item covers the
// whole ring, centred on the menu, so that every slice shares the menu's centre.
Item {
    id: sliceItem

    required property int section
    required property int sliceNumber
    property string commandUuid: ""
    property var helper: null
    // Bumped when the host's command states change, so the queries below are asked again.
    property int stateRevision: 0
    property bool selected: false
    property real innerRadius: MarkingMenuGeometry.ringInnerRadius
    property real outerRadius: MarkingMenuGeometry.ringOuterRadius

    readonly property bool commandVisible: stateRevision >= 0 && commandUuid !== "" && helper !== null
                                           && helper.isItemVisible(commandUuid)
    readonly property bool commandEnabled: commandVisible && stateRevision >= 0 && helper.isItemEnabled(commandUuid)

    readonly property real gapAngle: 0.8
    readonly property real startAngle: MarkingMenuGeometry.sliceStartAngle(section, sliceNumber) + gapAngle
    readonly property real sweepAngle: MarkingMenuGeometry.sliceSweep - 2 * gapAngle

    width: outerRadius * 2
    height: outerRadius * 2

    Shape {
        anchors.fill: parent
        antialiasing: true

        ShapePath {
            strokeColor: "transparent"
            fillColor: !sliceItem.commandVisible ? UIComponentsConstants.markingMenuSliceEmpty
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
        iconSource: sliceItem.commandVisible ? sliceItem.helper.getCommandIcon(sliceItem.commandUuid) : ""
        text: sliceItem.commandVisible ? sliceItem.helper.getCommandName(sliceItem.commandUuid) : ""
        dimmed: !sliceItem.commandEnabled
    }
}
