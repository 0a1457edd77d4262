import QtQuick
import QtTest
import Qml.QtComponents

// The demo's pages keep what the user typed on them while other pages are shown.
TestCase {
    id: testCase
    name: "PageStack"
    width: 1089
    height: 736
    when: windowShown
    visible: true

    Component {
        id: stackComponent
        Item {
            anchors.fill: parent
            property alias stack: loader.item
            // The overview lists the shortcuts bound by the application's hotkey handler.
            Loader { source: "qrc:/UIComponents/HotkeyHandler/HotkeyHandler.qml" }
            Loader {
                id: loader
                anchors.fill: parent
                source: Qt.resolvedUrl("../../app/qml/PageStack.qml")
                onLoaded: item.pages = [
                    { name: "valueentry", source: Qt.resolvedUrl("../../app/qml/ValueEntryPage.qml") },
                    { name: "overview", source: Qt.resolvedUrl("../../app/qml/OverviewPage.qml") }
                ]
            }
        }
    }

    Component { id: spyComponent; SignalSpy {} }

    // A page's request for another page (the overview's links) reaches the stack's owner.
    function test_aPageAsksForAnotherPageThroughTheStack() {
        const holder = createTemporaryObject(stackComponent, testCase)
        const stack = holder.stack
        stack.currentIndex = 1
        tryVerify(() => stack.pageItem(1) !== null)
        const spy = createTemporaryObject(spyComponent, testCase, { target: stack, signalName: "pageRequested" })
        stack.pageItem(1).pageRequested("valueentry")
        compare(spy.count, 1)
        compare(spy.signalArguments[0][0], "valueentry")
    }

    function test_aPageKeepsWhatWasTypedOnIt() {
        const holder = createTemporaryObject(stackComponent, testCase)
        const stack = holder.stack
        verify(stack)
        tryVerify(() => stack.pageItem(0) !== null)
        const lengthInput = findChild(stack.pageItem(0), "lengthField").input
        lengthInput.startEdit("=30cm")
        verify(lengthInput.accept())
        fuzzyCompare(lengthInput.value, 0.3, 1e-12)
        lengthInput.startEdit("=2*")

        stack.currentIndex = 1
        tryVerify(() => stack.pageItem(1) !== null)
        stack.currentIndex = 0

        const shownAgain = findChild(stack.pageItem(0), "lengthField").input
        fuzzyCompare(shownAgain.value, 0.3, 1e-12)
        compare(shownAgain.editText, "=2*", "an edit in progress is still there")
    }
}
