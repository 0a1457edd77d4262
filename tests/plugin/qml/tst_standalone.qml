import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Constants

// Run by Qt's qmltestrunner with nothing but the module's import path, as a host's own QML tests
// would: the plugin loads, registers its types and makes its component library importable.
TestCase {
    name: "Standalone"

    TableContentModel {
        id: model
    }

    function test_moduleAndComponentLibrary() {
        verify(model.empty)
        compare(typeof Strings.text("UI_APP_STATUS_READY"), "string")
        verify(UIComponentsConstants.tableColumnWidthStep > 0)
    }
}
