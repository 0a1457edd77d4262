import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Common

// The searchable and the multi-select combo boxes driven by keys and clicks.
TestCase {
    id: testCase
    name: "ComboBoxes"
    width: 400
    height: 400
    when: windowShown
    visible: true

    ListModel {
        id: sections
        ListElement { name: "HEA 200"; key: "hea200" }
        ListElement { name: "IPE 200"; key: "ipe200" }
        ListElement { name: "IPE 300"; key: "ipe300" }
        ListElement { name: "Rectangular hollow 200x100"; key: "rhs" }
    }

    Component {
        id: searchableComponent
        SearchableComboBox { width: 200; model: sections; textRole: "name" }
    }

    Component {
        id: multiComponent
        MultiSelectComboBox { width: 200; model: sections; textRole: "name"; keyRole: "key" }
    }

    function type(text) {
        for (const character of text)
            keyClick(character)
    }

    function findNamed(item, name) {
        if (!item)
            return null
        if (item.objectName === name)
            return item
        const children = item.children || []
        for (let i = 0; i < children.length; ++i) {
            const found = findNamed(children[i], name)
            if (found)
                return found
        }
        if (item.contentItem && item.contentItem !== item)
            return findNamed(item.contentItem, name)
        return null
    }

    function test_searchAndChoose_data() {
        return [
            { tag: "first match", typed: "300", keys: [], expected: 2 },
            { tag: "down to the second", typed: "ipe", keys: [Qt.Key_Down], expected: 2 },
            { tag: "words in any order", typed: "hollow rect", keys: [], expected: 3 }
        ]
    }

    function test_searchAndChoose(data) {
        const combo = createTemporaryObject(searchableComponent, testCase)
        const activated = createTemporaryObject(spyComponent, testCase, { target: combo, signalName: "activated" })
        combo.popup.open()
        tryVerify(() => combo.popup.opened)
        const search = findNamed(combo.popup.contentItem, "comboSearch")
        verify(search)
        tryVerify(() => search.activeFocus)
        type(data.typed)
        compare(search.text, data.typed)
        for (const key of data.keys)
            keyClick(key)
        keyClick(Qt.Key_Return)
        compare(combo.currentIndex, data.expected)
        compare(activated.count, 1)
        tryVerify(() => !combo.popup.visible)
    }

    function test_multiSelect() {
        const combo = createTemporaryObject(multiComponent, testCase)
        verify(combo.selection.model !== null)
        compare(combo.summary, Strings.text("UI_COMMON_NONE_SELECTED"))
        combo.selection.setSelected("ipe300", true)
        compare(combo.summary, "IPE 300")
        combo.selection.setKeysSelected(["hea200", "rhs"], true)
        compare(combo.summary, Strings.text("UI_COMMON_N_SELECTED").arg(3))
        compare(combo.selectedKeys, ["hea200", "ipe300", "rhs"])
        combo.selection.selectAll()
        compare(combo.summary, Strings.text("UI_COMMON_ALL_SELECTED"))
    }

    function test_selectAllActsOnWhatTheSearchFound() {
        const combo = createTemporaryObject(multiComponent, testCase)
        mouseClick(combo)
        tryVerify(() => combo.popup.opened)
        const selectAll = findNamed(combo.popup.contentItem, "selectAll")
        verify(selectAll)
        type("ipe")
        tryCompare(selectAll, "checkState", Qt.Unchecked)
        mouseClick(selectAll)
        compare(combo.selectedKeys, ["ipe200", "ipe300"])
        compare(selectAll.checkState, Qt.Checked)
        mouseClick(selectAll)
        compare(combo.selectedKeys, [])
    }

    Component {
        id: spyComponent
        SignalSpy {}
    }
}
