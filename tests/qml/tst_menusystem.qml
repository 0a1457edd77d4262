import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Qml.QtComponents
import Orvo.QtExtensions
import UIComponents.MenuSystem

// The application's menu bar driven as a person does: menus open, their entries follow the
// commands, choosing one runs it.
TestCase {
    id: testCase
    name: "MenuSystem"
    width: 900
    height: 500
    when: windowShown
    visible: true

    readonly property string moveUuid: "34ecfcf1-2343-4e3d-adcb-722902af15fd"
    readonly property string zoomAllUuid: "9375e6e1-781e-4a76-8f09-31123e44a56e"

    CommandListModel { id: commands }

    Component {
        id: menusComponent
        MenuSystem { width: 900 }
    }

    SignalSpy {
        id: runSpy
        signalName: "commandRun"
    }

    function findNamed(item, name) {
        if (!item)
            return null
        if (item.objectName === name)
            return item
        for (let i = 0; i < item.children.length; ++i) {
            const found = findNamed(item.children[i], name)
            if (found)
                return found
        }
        return null
    }

    function openMenu(menus, menuId) {
        const bar = findNamed(menus, "menuBar")
        for (let i = 0; i < bar.count; ++i) {
            const menu = bar.menuAt(i)
            if (menu.objectName === "menu:" + menuId) {
                menu.open()
                tryVerify(() => menu.opened)
                // Clicks land where the entries are once the menu has laid them out.
                waitForItemPolished(menu.contentItem)
                return menu
            }
        }
        fail("no menu " + menuId)
        return null
    }

    function itemOf(menu, label) {
        for (let i = 0; i < menu.count; ++i) {
            const item = menu.itemAt(i)
            if (item && item.objectName === "menuItem:" + label)
                return item
        }
        return null
    }

    function makeMenus() {
        const menus = createTemporaryObject(menusComponent, testCase)
        runSpy.clear()
        runSpy.target = menus
        return menus
    }

    function cleanup() {
        commands.setCommandEnabled(moveUuid, true)
        commands.setCommandEnabled(zoomAllUuid, true)
    }

    function test_entryFollowsItsCommand_data() {
        return [
            { tag: "Move in Edit", menu: "edit", label: "Move", uuid: moveUuid },
            { tag: "Zoom all in View", menu: "view", label: "Zoom all", uuid: zoomAllUuid }
        ]
    }

    function test_entryFollowsItsCommand(data) {
        const menus = makeMenus()
        const menu = openMenu(menus, data.menu)
        const item = itemOf(menu, data.label)
        verify(item)
        verify(item.enabled)
        commands.setCommandEnabled(data.uuid, false)
        compare(item.enabled, false)
        // A disabled entry does nothing when clicked, and the menu stays open.
        mouseClick(item)
        compare(runSpy.count, 0)
        commands.setCommandEnabled(data.uuid, true)
        compare(item.enabled, true)
        mouseClick(item)
        compare(runSpy.count, 1)
        tryVerify(() => !menu.opened)
    }

    function test_entriesShowShortcutsAndSubmenus() {
        const menus = makeMenus()
        const edit = openMenu(menus, "edit")
        compare(itemOf(edit, "Move").shortcut, "Ctrl+M")
        edit.close()
        const model = openMenu(menus, "model")
        const newMember = itemOf(model, "New member")
        verify(newMember && newMember.subMenu)
        const variants = newMember.subMenu
        compare(variants.count, 3)
        compare(variants.itemAt(0).label, "Line")
        compare(variants.itemAt(2).label, "Arc")
        const supports = itemOf(model, "Supports and hinges")
        verify(supports && supports.subMenu)
        compare(supports.subMenu.count, 2)
    }

    function test_aVariantRunsItsCommand() {
        const menus = makeMenus()
        const model = openMenu(menus, "model")
        const variants = itemOf(model, "New member").subMenu
        variants.open()
        tryVerify(() => variants.opened)
        waitForItemPolished(variants.contentItem)
        mouseClick(variants.itemAt(1))
        compare(runSpy.count, 1)
    }

    function test_searchRunsWhatItFinds() {
        const menus = makeMenus()
        const field = findNamed(menus, "menuSearch")
        field.forceActiveFocus()
        for (const character of "zoom all")
            keyClick(character)
        tryCompare(field, "resultCount", 1)
        keyClick(Qt.Key_Return)
        compare(runSpy.count, 1)
        compare(field.text, "")
    }
}
