import QtQuick
import QtTest
import Qml.QtComponents
import Orvo.QtExtensions
import "../common/TestSupport.js" as TestSupport

// The demo's front door at the size the demo gives it: what the module holds, live pieces of each
// part, and links to their pages.
TestCase {
    id: testCase
    name: "OverviewPage"
    width: 1089
    height: 736
    when: windowShown
    visible: true

    Component {
        id: spyComponent
        SignalSpy { signalName: "pageRequested" }
    }

    function openPage() {
        TestSupport.createHotkeyHandler(testCase)
        return TestSupport.createDocument(testCase, Qt.resolvedUrl("../../app/qml/OverviewPage.qml"),
                                          { width: testCase.width, height: testCase.height })
    }

    function fact(page, name) {
        return findChild(findChild(page, name), "factValue").text
    }

    function test_showsWhatTheModuleHolds() {
        const page = openPage()
        const types = Number(fact(page, "registeredTypes"))
        verify(types >= 26, "the registered types, singleton included: " + types)
        compare(types, QmlModuleInfo.typeCount("Qml.QtComponents"))
        compare(fact(page, "componentModules"), String(QmlModuleInfo.resourceModules("UIComponents").length))
        verify(QmlModuleInfo.resourceModules("UIComponents").indexOf("UIComponents.MarkingMenu") >= 0)
        compare(fact(page, "stringTableLanguage"), "English (en)")
    }

    function test_anUnknownModuleHasNoTypes() {
        compare(QmlModuleInfo.typeCount("No.Such.Module"), 0)
        compare(QmlModuleInfo.resourceModules("NoSuchFolder"), [])
    }

    function test_aPartsLinkAsksForItsPage_data() {
        return ["valueentry", "markingmenu", "properties", "tables", "shortcuts"].map(name => ({ tag: name, page: name }))
    }

    function test_aPartsLinkAsksForItsPage(data) {
        const page = openPage()
        const spy = createTemporaryObject(spyComponent, testCase, { target: page })
        const link = findChild(page, "openPage_" + data.page)
        verify(link)
        mouseClick(link)
        compare(spy.count, 1)
        compare(spy.signalArguments[0][0], data.page)
    }

    function test_theMarkingMenuMiniatureIsTheShippedModelRing() {
        const page = openPage()
        const ring = findChild(page, "overviewMarkingMenuRing")
        tryVerify(() => ring.sectionConfig !== null)
        tryCompare(ring, "shownSlices", [1, 2, 3, 4, 5, 6])
    }
}
