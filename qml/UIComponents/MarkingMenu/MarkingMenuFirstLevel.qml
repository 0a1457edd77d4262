import QtQuick
import QtQuick.Shapes
import UIComponents.Constants
import "MarkingMenuGeometry.js" as MarkingMenuGeometry

// The first level: four sectors around a dead centre, one per section, each with the
// section's icon. Sections that are not offered stay dark.
Item {
    id: firstLevel

    property var sections: []
    property int selectedSection: MarkingMenuGeometry.noSection

    readonly property real outerRadius: MarkingMenuGeometry.firstLevelOuterRadius
    readonly property real deadRadius: MarkingMenuGeometry.firstLevelDeadRadius

    width: outerRadius * 2
    height: outerRadius * 2

    Repeater {
        // Every sector's model entry is the first level itself: a delegate sees only what its
        // model gives it.
        model: Array(MarkingMenuGeometry.sectionCount).fill(firstLevel)

        Item {
            id: sector
            required property int index
            required property var modelData
            readonly property var level: modelData
            readonly property var config: index < level.sections.length ? level.sections[index] : null
            readonly property bool offered: config !== null && config.sectionVisible
            readonly property real startAngle: MarkingMenuGeometry.sectionAngle(index) - 45 + 1.5

            anchors.fill: parent

            Shape {
                anchors.fill: parent
                antialiasing: true

                ShapePath {
                    strokeColor: "transparent"
                    fillColor: !sector.offered ? UIComponentsConstants.markingMenuSliceEmpty
                             : sector.level.selectedSection === sector.index ? UIComponentsConstants.markingMenuSliceHover
                                                                           : UIComponentsConstants.markingMenuSlice

                    PathAngleArc {
                        centerX: sector.level.outerRadius
                        centerY: sector.level.outerRadius
                        radiusX: sector.level.outerRadius
                        radiusY: sector.level.outerRadius
                        startAngle: sector.startAngle
                        sweepAngle: 87
                    }
                    PathAngleArc {
                        centerX: sector.level.outerRadius
                        centerY: sector.level.outerRadius
                        radiusX: sector.level.deadRadius
                        radiusY: sector.level.deadRadius
                        startAngle: sector.startAngle + 87
                        sweepAngle: -87
                        moveToStart: false
                    }
                }
            }

            Image {
                readonly property var centre: MarkingMenuGeometry.pointAt(
                                                  MarkingMenuGeometry.sectionAngle(sector.index),
                                                  (sector.level.outerRadius + sector.level.deadRadius) / 2)
                x: sector.level.outerRadius + centre.x - width / 2
                y: sector.level.outerRadius + centre.y - height / 2
                width: 16
                height: 16
                sourceSize.width: 16
                sourceSize.height: 16
                visible: sector.offered && source != ""
                source: sector.offered ? sector.config.icon : ""
            }
        }
    }

    Rectangle {
        anchors.centerIn: parent
        width: firstLevel.deadRadius * 2 - 4
        height: width
        radius: width / 2
        color: UIComponentsConstants.markingMenuCentre
        border.color: UIComponentsConstants.markingMenuSlice
        border.width: 1
    }
}
