import QtQuick
import UIComponents.StatusBar
import Demo

// The application's status bar: it follows the model view's pointer and scale.
StatusBar {
    viewportId: DemoShell.viewControls.viewportId
}
