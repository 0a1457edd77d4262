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
        // Every slice's model entry is the ring itself: a delegate sees only what its model gives it.
        model: Array(MarkingMenuGeometry.sliceCount).fill(ring)

        MarkingMenuSlice {
            required property int index
            required property var modelData
            section: modelData.section
            sliceNumber: index + 1
            commandUuid: modelData.sectionConfig && index < modelData.sectionConfig.commandUuids.length
                         ? modelData.sectionConfig.commandUuids[index] : ""
            helper: modelData.helper
            selected: modelData.selectedSlice === sliceNumber
            innerRadius: modelData.innerRadius
            outerRadius: modelData.outerRadius
        }
    }
}
