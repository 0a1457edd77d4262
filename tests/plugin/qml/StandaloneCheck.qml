import QtQuick
import Qml.QtComponents
import UIComponents.Constants

// Run by Qt's qml tool with nothing but the module's import path: exits with 0 when the plugin
// loaded, registered its types and made its component library importable.
Item {
    readonly property TableContentModel model: TableContentModel {}

    function check() {
        const loaded = model.empty && typeof Strings.text("UI_APP_STATUS_READY") === "string"
                     && UIComponentsConstants.tableColumnWidthStep > 0
        if (!loaded)
            console.warn("The module's types or its component library are missing")
        Qt.exit(loaded ? 0 : 1)
    }

    Component.onCompleted: check()
}
