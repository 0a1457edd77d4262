import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.MarkingMenu
import Orvo.QtExtensions

// The marking menu's window driven as the host drives it. The menu reads the shipped
// configuration beside the test runner (the application directory): four sections, the
// Model section's fourth slice "New support", the Edit section's first slice "Move".
TestCase {
    id: testCase
    name: "MarkingMenuWindow"
    when: windowShown

    readonly property string newSupport: "efb152f0-7a09-44c1-ab5e-badb457fb2f8"
    readonly property string move: "34ecfcf1-2343-4e3d-adcb-722902af15fd"
    // The shipped layout with the Loads ring's sixth slot left empty.
    readonly property string loadsWithAGap: '<marking_menu>'
        + '<section id="TOP" visible="true"><tool uuid="' + newSupport + '" slice="4"/></section>'
        + '<section id="RIGHT" visible="true"><tool uuid="493c3f28-14df-494b-98d1-a15b222635c6" slice="1"/></section>'
        + '<section id="BOTTOM" visible="true"/><section id="LEFT" visible="true"/></marking_menu>'

    Component {
        id: menuComponent
        MarkingMenu {}
    }

    SignalSpy {
        id: hideSpy
        signalName: "hideMarkingMenu"
    }

    CommandListModel {
        id: commandControl
    }

    CommandExecutionMonitor {
        id: executionMonitor
    }

    SignalSpy {
        id: executedSpy
        target: executionMonitor
        signalName: "commandExecuted"
    }

    function createOpenMenu() {
        var menu = createTemporaryObject(menuComponent, testCase)
        verify(menu)
        verify(menu.mmConfig.topSection.sectionVisible, "the shipped default user configuration is loaded")
        hideSpy.target = menu
        hideSpy.clear()
        menu.showMarkingMenu()
        tryVerify(() => menu.menuWindow.visible && menu.menuWindow.contentItem.width > 0)
        return menu
    }

    // Window coordinates of a point given relative to the menu's centre.
    function at(menu, dx, dy) {
        return Qt.point(menu.menuWindow.width / 2 + dx, menu.menuWindow.height / 2 + dy)
    }

    function cleanup() {
        // Leave no button held for the next test.
        var windowItem = testCase
        mouseRelease(windowItem, 1, 1, Qt.RightButton)
    }

    function test_opensWithTheConfigurationAndTheTimeout() {
        var menu = createOpenMenu()
        compare(menu.menuWindow.width, 700)
        compare(menu.menuWindow.height, 700)
        compare(menu.menuWindow.config, menu.mmConfig)
        compare(menu.menuWindow.selectedSection, MarkingMenuGeometry.noSection)
        verify(menu.menuWindow.timeoutTimer.running)
        compare(menu.menuWindow.timeoutTimer.interval, 20000)
    }

    function test_runsTheCommandUnderThePointerOnRelease() {
        var menu = createOpenMenu()
        var content = menu.menuWindow.contentItem
        mousePress(content, 350, 350, Qt.RightButton)
        mouseMove(content, at(menu, 0, -30).x, at(menu, 0, -30).y)
        compare(menu.menuWindow.selectedSection, MarkingMenuGeometry.topSection)
        mouseMove(content, at(menu, 40, -150).x, at(menu, 40, -150).y)
        compare(menu.menuWindow.selectedSlice, 4)
        compare(menu.menuWindow.selectedCommand, newSupport)

        mouseRelease(content, at(menu, 40, -150).x, at(menu, 40, -150).y, Qt.RightButton)
        compare(hideSpy.count, 1)
        verify(!menu.menuWindow.visible)
        compare(menu.menuWindow.selectedCommand, "")
    }

    function test_anEmptySliceSelectsNoCommand() {
        var menu = createTemporaryObject(menuComponent, testCase)
        menu.loadConfiguration(loadsWithAGap)
        hideSpy.target = menu
        hideSpy.clear()
        menu.showMarkingMenu()
        tryVerify(() => menu.menuWindow.visible && menu.menuWindow.contentItem.width > 0)
        var content = menu.menuWindow.contentItem
        mousePress(content, 350, 350, Qt.RightButton)
        mouseMove(content, at(menu, 30, 0).x, at(menu, 30, 0).y)
        compare(menu.menuWindow.selectedSection, MarkingMenuGeometry.rightSection)
        // The right ring is the top ring turned clockwise: its sixth slice lies below the centre.
        mouseMove(content, at(menu, -30, 150).x, at(menu, -30, 150).y)
        compare(menu.menuWindow.selectedSection, MarkingMenuGeometry.rightSection)
        compare(menu.menuWindow.selectedSlice, 6)
        compare(menu.menuWindow.selectedCommand, "")
    }

    // Releasing over a command that cannot run now runs nothing and says so before closing.
    function test_aDisabledCommandIsNamedInsteadOfRun() {
        var menu = createOpenMenu()
        var content = menu.menuWindow.contentItem
        verify(commandControl.setCommandEnabled(move, false))
        try {
            mousePress(content, 350, 350, Qt.RightButton)
            mouseMove(content, at(menu, -30, 0).x, at(menu, -30, 0).y)
            compare(menu.menuWindow.selectedSection, MarkingMenuGeometry.leftSection)
            // The left ring is the top ring turned three quarters clockwise: its first slice lies
            // below the centre.
            mouseMove(content, at(menu, 40, 150).x, at(menu, 40, 150).y)
            compare(menu.menuWindow.selectedCommand, move)
            executedSpy.clear()
            mouseRelease(content, at(menu, 40, 150).x, at(menu, 40, 150).y, Qt.RightButton)

            compare(executedSpy.count, 0, "nothing ran")
            verify(menu.menuWindow.visible, "the menu stays to say why")
            const note = findChild(menu.menuWindow.contentItem, "markingMenuRefusal")
            verify(note.visible)
            compare(note.text, "Move cannot run now")
            verify(menu.menuWindow.refusalTimer.running)
            menu.menuWindow.refusalTimer.triggered()
            verify(!menu.menuWindow.visible)
        } finally {
            commandControl.setCommandEnabled(move, true)
        }
    }

    // Where the window system cannot show transparency, only what the menu draws is shown.
    function test_masksEverythingButWhatItDraws() {
        var menu = createOpenMenu()
        var window = menu.menuWindow
        window.maskPolicy = FramelessWindow.MaskAlways
        try {
            verify(window.masked)
            var content = window.contentItem
            mousePress(content, 350, 350, Qt.RightButton)
            mouseMove(content, at(menu, 0, -30).x, at(menu, 0, -30).y)
            mouseMove(content, at(menu, 40, -150).x, at(menu, 40, -150).y)
            compare(window.selectedSection, MarkingMenuGeometry.topSection)
            verify(window.isShownAt(at(menu, 0, 0)), "the first level")
            verify(window.isShownAt(at(menu, 40, -150)), "a slice of the chosen ring")
            verify(!window.isShownAt(at(menu, 0, 150)), "the wedge of the top ring that holds no slice")
            verify(!window.isShownAt(Qt.point(5, 5)), "a corner of the window")
            verify(!window.isShownAt(at(menu, 0, -70)), "between the first level and the ring")
        } finally {
            window.maskPolicy = FramelessWindow.MaskWhenOpaque
        }
    }

    function test_suddenReleaseHidesWithoutRunning() {
        var menu = createOpenMenu()
        ignoreWarning(">>> Hiding Marking menu as sudenly no RMB is detected.")
        mouseMove(menu.menuWindow.contentItem, at(menu, 0, -30).x, at(menu, 0, -30).y)
        compare(hideSpy.count, 1)
        verify(!menu.menuWindow.visible)
        compare(menu.menuWindow.selectedSection, MarkingMenuGeometry.noSection)
    }

    function test_timeoutClosesTheMenu() {
        var menu = createOpenMenu()
        menu.markingMenuTimeout()
        verify(!menu.menuWindow.visible)
        verify(!menu.menuWindow.timeoutTimer.running)
        compare(hideSpy.count, 0)
    }
}
