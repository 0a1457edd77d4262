import QtQuick
import QtQuick.Shapes
import Qml.QtComponents
import UIComponents.Constants
import "MarkingMenuGeometry.js" as MarkingMenuGeometry

// The marking menu's window: frameless, transparent, on top, centred on the point where the
// host asked for the menu. It follows the pointer while the secondary button is held, selects
// a section and then a slice of its ring, and runs the slice's command when the menu hides.
FramelessWindow {
    id: menuWindow

    required property var controller

    // Read when the menu opens: the controller replaces its configuration without a signal.
    property var config: null
    readonly property var sections: config ? [config.topSection, config.rightSection, config.bottomSection,
                                              config.leftSection] : []
    readonly property var sectionVisible: sections.map(section => section !== null && section.sectionVisible)

    property int selectedSection: MarkingMenuGeometry.noSection
    property int selectedSlice: MarkingMenuGeometry.noSlice
    property string selectedCommand: ""
    property point pointer: Qt.point(width / 2, height / 2)
    property int stateRevision: 0
    readonly property alias timeoutTimer: timeout

    width: UIComponentsConstants.markingMenuSize
    height: UIComponentsConstants.markingMenuSize
    x: controller.cx - width / 2
    y: controller.cy - height / 2
    flags: Qt.Window | Qt.FramelessWindowHint | Qt.NoDropShadowWindowHint | Qt.WindowStaysOnTopHint
    modality: Qt.ApplicationModal
    color: "transparent"
    grabsPointer: true
    visible: false

    function clearSelection() {
        selectedSection = MarkingMenuGeometry.noSection
        selectedSlice = MarkingMenuGeometry.noSlice
        selectedCommand = ""
    }

    function open() {
        config = controller.mmConfig
        clearSelection()
        pointer = Qt.point(width / 2, height / 2)
        visible = true
        raise()
        timeout.restart()
    }

    function dismiss() {
        timeout.stop()
        visible = false
    }

    // The command of a slice, when it has one the user can see.
    function commandAt(section, slice) {
        if (section === MarkingMenuGeometry.noSection || slice === MarkingMenuGeometry.noSlice)
            return ""
        const uuids = sections[section].commandUuids
        const uuid = slice - 1 < uuids.length ? uuids[slice - 1] : ""
        return uuid !== "" && controller.commandHelper.isItemVisible(uuid) ? uuid : ""
    }

    function track(position) {
        if (!visible)
            return
        if (!controller.getPrimaryMouseButtonStatus()) {
            console.warn(">>> Hiding Marking menu as sudenly no RMB is detected.")
            clearSelection()
            controller.hideMarkingMenu()
            return
        }
        pointer = position
        const dx = position.x - width / 2
        const dy = position.y - height / 2
        selectedSection = MarkingMenuGeometry.firstLevelSelection(dx, dy, selectedSection, sectionVisible)
        selectedSlice = MarkingMenuGeometry.sectionSlice(dx, dy, selectedSection, MarkingMenuGeometry.ringInnerRadius)
        selectedCommand = commandAt(selectedSection, selectedSlice)
    }

    onPointerMoved: position => track(position)
    // The gesture ends over the menu: the release belongs to the menu's window now.
    onPointerReleased: (position, button) => {
        if (visible && button === Qt.RightButton)
            controller.hideMarkingMenu()
    }

    Connections {
        target: menuWindow.controller

        function onShowMarkingMenu() {
            menuWindow.open()
        }

        function onHideMarkingMenu() {
            const uuid = menuWindow.selectedCommand
            if (uuid !== "" && menuWindow.controller.commandHelper.isItemEnabled(uuid))
                menuWindow.controller.commandHelper.executeCommand(uuid)
            menuWindow.clearSelection()
            menuWindow.dismiss()
        }

        function onMarkingMenuTimeout() {
            menuWindow.clearSelection()
            menuWindow.dismiss()
        }
    }

    Connections {
        target: menuWindow.controller.commandHelper

        function onCommandStateChanged() {
            ++menuWindow.stateRevision
            menuWindow.selectedCommand = menuWindow.commandAt(menuWindow.selectedSection, menuWindow.selectedSlice)
        }
    }

    Timer {
        id: timeout
        interval: UIComponentsConstants.markingMenuTimeout
        onTriggered: menuWindow.controller.markingMenuTimeout()
    }

    Shortcut {
        sequences: [StandardKey.Cancel]
        onActivated: {
            menuWindow.clearSelection()
            menuWindow.controller.hideMarkingMenu()
        }
    }

    Item {
        id: content
        anchors.fill: parent

        Repeater {
            model: MarkingMenuGeometry.sectionCount

            MarkingMenuRing {
                required property int index
                anchors.centerIn: parent
                section: index
                visible: menuWindow.selectedSection === index
                sectionConfig: index < menuWindow.sections.length ? menuWindow.sections[index] : null
                helper: menuWindow.controller.commandHelper
                stateRevision: menuWindow.stateRevision
                selectedSlice: menuWindow.selectedSection === index ? menuWindow.selectedSlice
                                                                     : MarkingMenuGeometry.noSlice
            }
        }

        // The mark: where the pointer went since the menu opened.
        Shape {
            anchors.fill: parent
            antialiasing: true
            visible: MarkingMenuGeometry.distance(menuWindow.pointer.x - width / 2, menuWindow.pointer.y - height / 2)
                     > MarkingMenuGeometry.firstLevelDeadRadius

            ShapePath {
                strokeColor: UIComponentsConstants.markingMenuMark
                strokeWidth: 2
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap
                startX: content.width / 2
                startY: content.height / 2

                PathLine {
                    x: menuWindow.pointer.x
                    y: menuWindow.pointer.y
                }
            }
        }

        MarkingMenuFirstLevel {
            anchors.centerIn: parent
            sections: menuWindow.sections
            selectedSection: menuWindow.selectedSection
        }

        // Section captions: around the first level while none is chosen, then only the chosen
        // one, beyond the end of its ring.
        Repeater {
            model: MarkingMenuGeometry.sectionCount

            MarkingMenuSectionCaption_UI {
                required property int index
                readonly property var sectionConfig: index < menuWindow.sections.length ? menuWindow.sections[index] : null
                readonly property bool chosen: menuWindow.selectedSection === index
                readonly property real distanceFromCentre: chosen ? MarkingMenuGeometry.ringOuterRadius + 6
                                                                  : MarkingMenuGeometry.firstLevelOuterRadius + 8
                readonly property var centre: MarkingMenuGeometry.boxBeyond(MarkingMenuGeometry.sectionAngle(index),
                                                                            distanceFromCentre, width, height)
                x: content.width / 2 + centre.x - width / 2
                y: content.height / 2 + centre.y - height / 2
                visible: sectionConfig !== null && sectionConfig.sectionVisible
                         && (chosen || menuWindow.selectedSection === MarkingMenuGeometry.noSection)
                highlighted: chosen
                text: sectionConfig ? Strings.text(sectionConfig.lcid) : ""
                iconSource: chosen && sectionConfig ? sectionConfig.icon : ""
            }
        }
    }
}
