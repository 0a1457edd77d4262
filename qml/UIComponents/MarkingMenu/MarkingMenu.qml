import QtQuick
import Qml.QtComponents

// The radial marking menu. Put it anywhere in the application: it has no size of its own and
// opens its own window when the host asks for the menu (a secondary-button hold over a view).
MarkingMenu_Cpp {
    id: markingMenu

    // The host hands the menu its user configuration under this key.
    configurationKey: "MarkingMenu"

    readonly property alias menuWindow: menuWindow

    MarkingMenuWindow {
        id: menuWindow
        controller: markingMenu
    }
}
