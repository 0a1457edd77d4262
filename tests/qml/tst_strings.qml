import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Constants
import UIComponents.Utilities

TestCase {
    name: "Strings"

    function test_text_data() {
        return [
            { tag: "known identifier", id: "UI_APP_STATUS_READY", expected: "Ready" },
            { tag: "unknown identifier comes back as itself", id: "UI_NO_SUCH_TEXT", expected: "UI_NO_SUCH_TEXT" },
            { tag: "empty identifier", id: "", expected: "" }
        ]
    }

    function test_text(data) {
        compare(Strings.text(data.id), data.expected)
    }

    function test_componentLibraryIsImportable() {
        compare(UIComponentsConstants.tableColumnWidthStep, 64)
        compare(Geometry.normalizeAngle(-90), 270)
    }
}
