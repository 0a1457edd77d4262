import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.InputPanel
import Demo

// The input panel of the demo's modelling commands, edited as a user does: typing into its
// fields, removing picked objects, switching kinds off, Apply and Cancel.
TestCase {
    id: testCase
    name: "InputPanel"
    width: 400
    height: 600
    when: windowShown
    visible: true

    Component {
        id: panelComponent
        InputPanel { width: 320 }
    }

    Component {
        id: spyComponent
        SignalSpy {}
    }

    CommandMenuHelper {
        id: commands
        componentTrackingID: "InputPanelTest"
    }

    function cleanup() {
        ModelingCommands.cancel()
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

    function findAllNamed(item, name, found) {
        if (item.objectName === name)
            found.push(item)
        for (let i = 0; i < item.children.length; ++i)
            findAllNamed(item.children[i], name, found)
        return found
    }

    // The field of inputId as the panel's model describes it.
    function fieldOf(panel, inputId) {
        const containers = panel.containerModel
        for (let row = 0; row < containers.count; ++row) {
            const fields = containers.data(containers.index(row, 0), InputPanelContainerModel.FieldsRole)
            for (const field of fields) {
                if (field.inputId === inputId)
                    return field
            }
        }
        return null
    }

    function startedPanel(commandUuid) {
        const panel = createTemporaryObject(panelComponent, testCase)
        verify(commands.executeCommand(commandUuid))
        tryCompare(panel, "visible", true)
        // The layouts place the fields before the next frame: click where they are then.
        waitForRendering(panel)
        return panel
    }

    function typeInto(panel, inputId, text) {
        const input = findNamed(panel, "inputNumber_" + inputId)
        verify(input, "no field for " + inputId)
        const field = findNamed(input, "numericInputField")
        mouseClick(field)
        tryVerify(() => field.activeFocus)
        field.selectAll()
        for (const character of text)
            keyClick(character)
        keyClick(Qt.Key_Return)
    }

    function test_typedNumberReachesTheCommand_data() {
        return [
            { tag: "a number", typed: "4", expected: 4 },
            { tag: "an expression", typed: "=2*3", expected: 6 },
            { tag: "an expression in other units", typed: "=250cm", expected: 2.5 }
        ]
    }

    function test_typedNumberReachesTheCommand(data) {
        const panel = startedPanel(ModelingCommands.newMemberUuid)
        typeInto(panel, "length", data.typed)
        tryVerify(() => fieldOf(panel, "length").number === data.expected)
        // The field shows the command's value, and keeps showing it when others change.
        const input = findNamed(panel, "inputNumber_length")
        compare(input.value, data.expected)
        typeInto(panel, "x", "=1+1")
        compare(fieldOf(panel, "x").number, 2)
        compare(input.value, data.expected)
    }

    function test_aChoiceReachesTheCommand() {
        const panel = startedPanel(ModelingCommands.newMemberUuid)
        const combo = findNamed(panel, "inputChoice_direction")
        verify(combo)
        compare(combo.currentIndex, 0)
        combo.activated(2)
        compare(fieldOf(panel, "direction").choice, 2)
        compare(combo.currentIndex, 2)
    }

    function test_removingATagDropsTheObject() {
        TestStructure.selectNewNodes(3)
        const panel = startedPanel(ModelingCommands.moveUuid)
        const tags = panel.containerModel.tags("objects")
        compare(tags.count, 3)
        const secondText = tags.data(tags.index(1, 0), TagModel.TagTextRole)
        const thirdText = tags.data(tags.index(2, 0), TagModel.TagTextRole)
        const shown = findAllNamed(findNamed(panel, "inputTags_objects"), "inputTag", [])
        compare(shown.length, 3)
        mouseClick(findNamed(shown.find(tag => tag.index === 1), "removeTag"))
        compare(tags.count, 2)
        verify(tags.data(tags.index(0, 0), TagModel.TagTextRole) !== secondText)
        compare(tags.data(tags.index(1, 0), TagModel.TagTextRole), thirdText)
        tryVerify(() => findAllNamed(findNamed(panel, "inputTags_objects"), "inputTag", []).length === 2)
    }

    function test_applyAndCancelActOnTheCommand_data() {
        return [
            { tag: "apply draws a member and goes on", button: "applyButton", signalName: "applied", members: 1, running: true },
            { tag: "cancel ends without a member", button: "cancelButton", signalName: "cancelled", members: 0, running: false }
        ]
    }

    function test_applyAndCancelActOnTheCommand(data) {
        TestStructure.addMemberMakings()
        const panel = startedPanel(ModelingCommands.newMemberUuid)
        const spy = createTemporaryObject(spyComponent, testCase, { target: panel, signalName: data.signalName })
        const membersBefore = TestStructure.count("member")
        typeInto(panel, "length", "=2+3")
        mouseClick(findNamed(panel, data.button))
        compare(spy.count, 1)
        compare(TestStructure.count("member"), membersBefore + data.members)
        compare(panel.commandRunning, data.running)
        compare(panel.visible, data.running)
        if (data.running) {
            // The next member starts where this one ended, 5 m along X.
            compare(fieldOf(panel, "x").number, 5)
        }
    }

    function test_escapeDropsAnEditAndThenCancels() {
        const panel = startedPanel(ModelingCommands.newMemberUuid)
        const spy = createTemporaryObject(spyComponent, testCase, { target: panel, signalName: "cancelled" })
        const input = findNamed(panel, "inputNumber_length")
        const field = findNamed(input, "numericInputField")
        const shown = field.text
        mouseClick(field)
        tryVerify(() => field.activeFocus)
        field.selectAll()
        keyClick("7")
        keyClick(Qt.Key_Escape)
        compare(field.text, shown)
        compare(panel.commandRunning, true)
        compare(spy.count, 0)
        keyClick(Qt.Key_Escape)
        compare(spy.count, 1)
        compare(panel.commandRunning, false)
    }

    function test_applyMovesTheSelection() {
        TestStructure.selectNewNodes(2)
        const nodes = TestStructure.count("node")
        const firstX = TestStructure.nodeX(nodes - 2)
        const panel = startedPanel(ModelingCommands.moveUuid)
        typeInto(panel, "dx", "=500mm")
        mouseClick(findNamed(panel, "applyButton"))
        compare(TestStructure.nodeX(nodes - 2), firstX + 0.5)
        compare(TestStructure.count("node"), nodes)
        // Moved once, the command is done.
        compare(panel.commandRunning, false)
    }

    function test_theFilterBarHidesAKind() {
        TestStructure.selectNewNodes(1)
        const panel = startedPanel(ModelingCommands.moveUuid)
        compare(panel.containers.count, 3)
        const geometry = findNamed(panel, "filterItem_0")
        verify(geometry.checked)
        mouseClick(geometry)
        compare(panel.containers.count, 2)
        verify(!geometry.checked)
        verify(findNamed(panel, "inputNumber_dx") === null)
        mouseClick(geometry)
        compare(panel.containers.count, 3)
        verify(geometry.checked)
    }
}
