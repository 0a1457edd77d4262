import QtQuick
import QtQuick.Shapes
import Qml.QtComponents
import BasicComponents.Constants
import UIComponents.Constants
import "MarkingMenuGeometry.js" as MarkingMenuGeometry

// The marking menu's window: frameless, transparent, on top, centred on the point where the
// host asked for the menu. It follows the pointer while the secondary button is held, selects
// a section and then a slice of its ring, and runs the slice's command when the menu hides; a
// command that cannot run now is named instead, for a moment, before the menu closes. Where the
// window system cannot show transparency, the window shows only what the menu draws.
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
    // The command the user released over while it could not run; shown until the menu closes.
    property string refusedCommand: ""
    readonly property alias timeoutTimer: timeout
    readonly property alias refusalTimer: refusal

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
        refusal.stop()
        refusedCommand = ""
        clearSelection()
        pointer = Qt.point(width / 2, height / 2)
        visible = true
        raise()
        timeout.restart()
    }

    function dismiss() {
        timeout.stop()
        refusal.stop()
        refusedCommand = ""
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
        if (!visible || refusedCommand !== "")
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
            const helper = menuWindow.controller.commandHelper
            menuWindow.clearSelection()
            if (uuid !== "" && !helper.isItemEnabled(uuid) && menuWindow.visible) {
                menuWindow.refusedCommand = uuid
                refusal.restart()
                return
            }
            if (uuid !== "")
                helper.executeCommand(uuid)
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
            menuWindow.selectedCommand = menuWindow.commandAt(menuWindow.selectedSection, menuWindow.selectedSlice)
        }
    }

    Timer {
        id: timeout
        interval: UIComponentsConstants.markingMenuTimeout
        onTriggered: menuWindow.controller.markingMenuTimeout()
    }

    Timer {
        id: refusal
        interval: UIComponentsConstants.markingMenuRefusalTime
        onTriggered: menuWindow.dismiss()
    }

    // Without a compositing window manager the transparent window would be an opaque square over
    // the view: only the first level, the chosen ring, the captions, the mark and the refusal show.
    maskPolygons: visible ? maskOutline() : []

    function maskOutline() {
        const cx = width / 2
        const cy = height / 2
        const polygons = [MarkingMenuGeometry.discPolygon(cx, cy, MarkingMenuGeometry.firstLevelOuterRadius + 1)]
        const ring = rings.itemAt(selectedSection)
        if (ring) {
            for (const slice of ring.shownSlices)
                polygons.push(MarkingMenuGeometry.slicePolygon(cx, cy, selectedSection, slice, ring.innerRadius, ring.outerRadius))
        }
        for (let i = 0; i < captions.count; ++i) {
            const caption = captions.itemAt(i)
            if (caption && caption.visible)
                polygons.push(MarkingMenuGeometry.capsulePolygon(caption.x, caption.y, caption.width, caption.height))
        }
        if (mark.visible)
            polygons.push(MarkingMenuGeometry.linePolygon(cx, cy, pointer.x, pointer.y, 4))
        if (refusalNote.visible)
            polygons.push(MarkingMenuGeometry.capsulePolygon(refusalNote.x, refusalNote.y, refusalNote.width, refusalNote.height))
        return polygons
    }

    Shortcut {
        sequence: "Esc"
        onActivated: {
            menuWindow.clearSelection()
            menuWindow.controller.hideMarkingMenu()
        }
    }

    Item {
        id: content
        anchors.fill: parent

        Repeater {
            id: rings
            // Every ring's model entry is the window itself: a delegate sees only what its model gives it.
            model: Array(MarkingMenuGeometry.sectionCount).fill(menuWindow)

            MarkingMenuRing {
                required property int index
                required property var modelData
                anchors.centerIn: parent
                section: index
                visible: modelData.selectedSection === index
                sectionConfig: index < modelData.sections.length ? modelData.sections[index] : null
                helper: modelData.controller.commandHelper
                selectedSlice: modelData.selectedSection === index ? modelData.selectedSlice
                                                                    : MarkingMenuGeometry.noSlice
            }
        }

        // The mark: where the pointer went since the menu opened.
        Shape {
            id: mark
            anchors.fill: parent
            antialiasing: true
            visible: menuWindow.refusedCommand === ""
                     && MarkingMenuGeometry.distance(menuWindow.pointer.x - width / 2, menuWindow.pointer.y - height / 2)
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
            id: captions
            model: Array(MarkingMenuGeometry.sectionCount).fill(menuWindow)

            MarkingMenuSectionCaption_UI {
                required property int index
                required property var modelData
                readonly property var sectionConfig: index < modelData.sections.length ? modelData.sections[index] : null
                readonly property bool chosen: modelData.selectedSection === index
                readonly property real distanceFromCentre: chosen ? MarkingMenuGeometry.ringOuterRadius + 6
                                                                  : MarkingMenuGeometry.firstLevelOuterRadius + 8
                readonly property var centre: MarkingMenuGeometry.boxBeyond(MarkingMenuGeometry.sectionAngle(index),
                                                                            distanceFromCentre, width, height)
                x: modelData.width / 2 + centre.x - width / 2
                y: modelData.height / 2 + centre.y - height / 2
                visible: sectionConfig !== null && sectionConfig.sectionVisible
                         && (chosen || modelData.selectedSection === MarkingMenuGeometry.noSection)
                highlighted: chosen
                text: sectionConfig ? Strings.text(sectionConfig.lcid) : ""
                iconSource: chosen && sectionConfig ? sectionConfig.icon : ""
            }
        }

        // Why nothing ran: the command under the pointer cannot run now.
        Rectangle {
            id: refusalNote
            objectName: "markingMenuRefusal"
            readonly property alias text: refusalText.text
            x: (content.width - width) / 2
            y: content.height / 2 + MarkingMenuGeometry.firstLevelOuterRadius + 46
            width: Math.min(refusalText.implicitWidth + 24, content.width - 40)
            height: refusalText.implicitHeight + 12
            radius: height / 2
            visible: menuWindow.refusedCommand !== ""
            color: UIComponentsConstants.markingMenuRing
            border.color: UIComponentsConstants.markingMenuSliceDisabledHover

            Text {
                id: refusalText
                anchors.centerIn: parent
                width: Math.min(implicitWidth, parent.width - 24)
                elide: Text.ElideRight
                text: refusalNote.visible ? Strings.text("UI_MARKING_MENU_COMMAND_UNAVAILABLE")
                                            .arg(menuWindow.controller.commandHelper.getCommandName(menuWindow.refusedCommand)) : ""
                color: UIComponentsConstants.markingMenuText
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
            }
        }
    }
}
