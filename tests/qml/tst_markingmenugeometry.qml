import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.MarkingMenu

// The marking menu's hit-testing: first-level sectors and ring slices, boundaries and dead
// zones included. Coordinates are relative to the menu's centre, y downwards.
TestCase {
    name: "MarkingMenuGeometry"

    readonly property int noSection: MarkingMenuGeometry.noSection
    readonly property int topSection: MarkingMenuGeometry.topSection
    readonly property int rightSection: MarkingMenuGeometry.rightSection
    readonly property int bottomSection: MarkingMenuGeometry.bottomSection
    readonly property int leftSection: MarkingMenuGeometry.leftSection
    readonly property var allVisible: [true, true, true, true]
    readonly property var rightHidden: [true, false, true, true]

    function test_firstLevelSelection_data() {
        return [
            { tag: "centre", x: 0, y: 0, current: noSection, visible: allVisible, expected: noSection },
            { tag: "just inside the dead radius", x: 20.99, y: 0, current: topSection, visible: allVisible, expected: noSection },
            { tag: "on the dead radius", x: 21, y: 0, current: noSection, visible: allVisible, expected: rightSection },
            { tag: "up", x: 0, y: -30, current: noSection, visible: allVisible, expected: topSection },
            { tag: "right", x: 30, y: 0, current: noSection, visible: allVisible, expected: rightSection },
            { tag: "down", x: 0, y: 30, current: noSection, visible: allVisible, expected: bottomSection },
            { tag: "left", x: -30, y: 0, current: noSection, visible: allVisible, expected: leftSection },
            { tag: "upper-right diagonal belongs to top", x: 25, y: -25, current: noSection, visible: allVisible, expected: topSection },
            { tag: "lower-right diagonal belongs to bottom", x: 25, y: 25, current: noSection, visible: allVisible, expected: bottomSection },
            { tag: "lower-left diagonal belongs to left", x: -25, y: 25, current: noSection, visible: allVisible, expected: leftSection },
            { tag: "upper-left diagonal belongs to left", x: -25, y: -25, current: noSection, visible: allVisible, expected: leftSection },
            { tag: "hidden section cannot be selected", x: 30, y: 0, current: noSection, visible: rightHidden, expected: noSection },
            { tag: "inside the outer radius the selection follows", x: 30, y: 0, current: topSection, visible: allVisible, expected: rightSection },
            { tag: "on the outer radius it still follows", x: 44, y: 0, current: topSection, visible: allVisible, expected: rightSection },
            { tag: "beyond the outer radius it stays", x: 44.01, y: 0, current: topSection, visible: allVisible, expected: topSection },
            { tag: "beyond it with nothing selected it selects", x: 150, y: 10, current: noSection, visible: allVisible, expected: rightSection },
            { tag: "beyond it a hidden section stays unselected", x: 150, y: 10, current: noSection, visible: rightHidden, expected: noSection }
        ]
    }

    function test_firstLevelSelection(data) {
        compare(MarkingMenuGeometry.firstLevelSelection(data.x, data.y, data.current, data.visible), data.expected)
    }

    function test_ringSlice_data() {
        var inner = MarkingMenuGeometry.ringInnerRadius
        return [
            { tag: "left, below the horizontal: 1", x: -150, y: 30, expected: 1 },
            { tag: "left, above the horizontal: 2", x: -150, y: -30, expected: 2 },
            { tag: "up, left of the vertical: 3", x: -30, y: -150, expected: 3 },
            { tag: "up, right of the vertical: 4", x: 30, y: -150, expected: 4 },
            { tag: "right, above the horizontal: 5", x: 150, y: -30, expected: 5 },
            { tag: "right, below the horizontal: 6", x: 150, y: 30, expected: 6 },
            { tag: "down and left: the empty wedge", x: -30, y: 150, expected: 0 },
            { tag: "down and right: the empty wedge", x: 30, y: 150, expected: 0 },
            { tag: "on the vertical axis", x: 0, y: -150, expected: 0 },
            { tag: "within 1 of the vertical axis", x: 1, y: -150, expected: 0 },
            { tag: "just beyond 1 of the vertical axis", x: 1.01, y: -150, expected: 4 },
            { tag: "within 1 of the horizontal axis", x: -150, y: -0.5, expected: 0 },
            { tag: "on a diagonal", x: 110, y: -110, expected: 0 },
            { tag: "within 1 of a diagonal", x: 110.9, y: -110, expected: 0 },
            { tag: "just beyond 1 of a diagonal", x: 111.1, y: -110, expected: 5 },
            { tag: "inside the inner radius", x: -(inner - 1), y: -10, expected: 0 },
            { tag: "far beyond the outer radius still selects", x: -600, y: 100, expected: 1 }
        ]
    }

    function test_ringSlice(data) {
        compare(MarkingMenuGeometry.ringSlice(data.x, data.y, MarkingMenuGeometry.ringInnerRadius), data.expected)
    }

    function test_ringsTurnWithTheirSection_data() {
        return [
            { tag: "top ring opens upwards", section: topSection, x: 30, y: -150, expected: 4 },
            { tag: "right ring opens to the right", section: rightSection, x: 150, y: 30, expected: 4 },
            { tag: "bottom ring opens downwards", section: bottomSection, x: -30, y: 150, expected: 4 },
            { tag: "left ring opens to the left", section: leftSection, x: -150, y: -30, expected: 4 },
            { tag: "right ring: its first slice is above, to the left", section: rightSection, x: -30, y: -150, expected: 1 },
            { tag: "left ring: the centre side is empty", section: leftSection, x: 150, y: 0.5, expected: 0 },
            { tag: "no section: no slice", section: noSection, x: 30, y: -150, expected: 0 }
        ]
    }

    function test_ringsTurnWithTheirSection(data) {
        compare(MarkingMenuGeometry.sectionSlice(data.x, data.y, data.section, MarkingMenuGeometry.ringInnerRadius),
                data.expected)
    }

    // What is drawn is what is hit: the middle of every drawn slice selects that slice.
    function test_drawnSlicesMatchTheHitTesting() {
        var radius = (MarkingMenuGeometry.ringInnerRadius + MarkingMenuGeometry.ringOuterRadius) / 2
        for (var section = 0; section < MarkingMenuGeometry.sectionCount; ++section) {
            for (var slice = 1; slice <= MarkingMenuGeometry.sliceCount; ++slice) {
                var p = MarkingMenuGeometry.pointAt(MarkingMenuGeometry.sliceMiddleAngle(section, slice), radius)
                compare(MarkingMenuGeometry.sectionSlice(p.x, p.y, section, MarkingMenuGeometry.ringInnerRadius), slice,
                        "section " + section + " slice " + slice)
            }
            var direction = MarkingMenuGeometry.pointAt(MarkingMenuGeometry.sectionAngle(section), 30)
            compare(MarkingMenuGeometry.firstLevelSector(direction.x, direction.y), section)
        }
    }
}
