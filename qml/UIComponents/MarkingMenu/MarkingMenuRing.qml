import QtQuick
import "MarkingMenuGeometry.js" as MarkingMenuGeometry

// The second level of one section: six slices fanned around the menu's centre, turned towards
// the section (the top ring opens upwards).
Item {
    id: ring

    required property int section
    property var sectionConfig: null
    property var helper: null
    property int selectedSlice: MarkingMenuGeometry.noSlice
    property real innerRadius: MarkingMenuGeometry.ringInnerRadius
    property real outerRadius: MarkingMenuGeometry.ringOuterRadius

    // The numbers of the slices that show a command, in order.
    readonly property var shownSlices: {
        const shown = []
        for (let i = 0; i < slices.count; ++i) {
            const slice = slices.itemAt(i)
            if (slice && slice.commandVisible)
                shown.push(slice.sliceNumber)
        }
        return shown
    }

    width: outerRadius * 2
    height: outerRadius * 2

    Repeater {
        id: slices
        model: MarkingMenuGeometry.sliceCount

        MarkingMenuSlice {
            required property int index
            section: ring.section
            sliceNumber: index + 1
            commandUuid: ring.sectionConfig && index < ring.sectionConfig.commandUuids.length
                         ? ring.sectionConfig.commandUuids[index] : ""
            helper: ring.helper
            selected: ring.selectedSlice === sliceNumber
            innerRadius: ring.innerRadius
            outerRadius: ring.outerRadius
        }
    }
}
