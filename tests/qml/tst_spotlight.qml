import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Spotlight

// The spotlight document driven by its keys.
TestCase {
    id: testCase
    name: "Spotlight"
    width: 700
    height: 500
    when: windowShown
    visible: true

    Component {
        id: spotlightComponent
        Spotlight { width: 560; shortcut: "" }
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

    function type(text) {
        for (const character of text)
            keyClick(character)
    }

    function test_typedTextReachesTheSearch_data() {
        return [
            { tag: "calculation", typed: "=2*3", first: "6", kind: SpotlightModel.Calculation },
            { tag: "command with a typo", typed: "new memebr", first: "New member", kind: SpotlightModel.Command }
        ]
    }

    function test_typedTextReachesTheSearch(data) {
        const spotlight = createTemporaryObject(spotlightComponent, testCase)
        spotlight.open()
        compare(spotlight.visible, true)
        const field = findNamed(spotlight, "spotlightField")
        tryVerify(() => field.activeFocus)
        type(data.typed)
        compare(spotlight.searchText, data.typed)
        verify(spotlight.results.count > 0)
        const list = findNamed(spotlight, "spotlightResults")
        compare(list.currentIndex, 0)
        compare(list.currentItem.title, data.first)
        compare(list.currentItem.kind, data.kind)
    }

    function test_escapeClearsThenCloses() {
        const spotlight = createTemporaryObject(spotlightComponent, testCase)
        spotlight.open()
        const field = findNamed(spotlight, "spotlightField")
        tryVerify(() => field.activeFocus)
        type("zzqx")
        compare(spotlight.results.count, 0)
        keyClick(Qt.Key_Escape)
        compare(field.text, "")
        compare(spotlight.opened, true)
        keyClick(Qt.Key_Escape)
        compare(spotlight.opened, false)
        compare(spotlight.visible, false)
    }

    function test_enterCopiesACalculationAndCloses() {
        const spotlight = createTemporaryObject(spotlightComponent, testCase)
        const copied = createTemporaryObject(spyComponent, testCase, { target: spotlight, signalName: "resultCopied" })
        spotlight.open()
        const field = findNamed(spotlight, "spotlightField")
        tryVerify(() => field.activeFocus)
        type("=1+2")
        keyClick(Qt.Key_Return)
        compare(copied.count, 1)
        compare(copied.signalArguments[0][0], "3")
        compare(spotlight.opened, false)
    }

    Component {
        id: spyComponent
        SignalSpy {}
    }
}
