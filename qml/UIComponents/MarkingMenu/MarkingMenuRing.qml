import QtQuick
import "MarkingMenuGeometry.js" as MarkingMenuGeometry

// The second level of one section: six slices fanned around the menu's centre, turned towards
// the section (the top ring opens upwards).
Item {
    id: ring

    required property int section
    property var sectionConfig: null
    property var helper: null
    property int stateRevision: 0
    property int selectedSlice: MarkingMenuGeometry.noSlice
    property real innerRadius: MarkingMenuGeometry.ringInnerRadius
    property real outerRadius: MarkingMenuGeometry.ringOuterRadius

    width: outerRadius * 2
    height: outerRadius * 2

    Repeater {
        model: MarkingMenuGeometry.sliceCount

        MarkingMenuSlice {
            required property int index
            section: ring.section
            sliceNumber: index + 1
            commandUuid: ring.sectionConfig && index < ring.sectionConfig.commandUuids.length
                         ? ring.sectionConfig.commandUuids[index] : ""
            helper: ring.helper
            stateRevision: ring.stateRevision
            selected: ring.selectedSlice === sliceNumber
            innerRadius: ring.innerRadius
            outerRadius: ring.outerRadius
        }
    }
}
