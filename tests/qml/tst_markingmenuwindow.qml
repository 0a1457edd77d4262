import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.MarkingMenu

// The marking menu's window driven as the host drives it. The menu reads the shipped
// configuration beside the test runner (the application directory): four sections, the
// Model section's fourth slice "New support", the Loads section's sixth slice empty.
TestCase {
    id: testCase
    name: "MarkingMenuWindow"
    when: windowShown

    readonly property string newSupport: "efb152f0-7a09-44c1-ab5e-badb457fb2f8"

    Component {
        id: menuComponent
        MarkingMenu {}
    }

    SignalSpy {
        id: hideSpy
        signalName: "hideMarkingMenu"
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
        var menu = createOpenMenu()
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
