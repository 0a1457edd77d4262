import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.ProcessToolbar

// The process toolbar's keys, pressed the way a user does: Ctrl and a step's place choose the
// step, F5 runs its action, whichever half of the bar the step's button is in.
TestCase {
    id: testCase
    name: "ProcessToolbarKeys"
    width: 900
    height: 200
    when: windowShown
    visible: true

    Component {
        id: toolbarComponent
        ProcessToolbar { width: 900 }
    }

    SignalSpy {
        id: tablesSpy
        signalName: "tablesRequested"
    }

    function test_stepKeys_data() {
        return [
            { tag: "a step left of the centre", sequence: "Ctrl+2", step: 1 },
            { tag: "a step right of the centre", sequence: "Ctrl+5", step: 4 },
            { tag: "back to the first", sequence: "Ctrl+1", step: 0 }
        ]
    }

    function test_stepKeys(data) {
        const toolbar = createTemporaryObject(toolbarComponent, testCase)
        toolbar.currentStep = 2
        keySequence(data.sequence)
        compare(toolbar.currentStep, data.step)
    }

    function test_f5RunsTheCurrentStep() {
        const toolbar = createTemporaryObject(toolbarComponent, testCase)
        tablesSpy.target = toolbar
        tablesSpy.clear()
        keySequence("Ctrl+2")
        keyClick(Qt.Key_F5)
        compare(tablesSpy.count, 1)
    }
}
