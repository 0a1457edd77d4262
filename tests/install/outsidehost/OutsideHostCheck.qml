import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

Item {
    readonly property string textId: "UI_APP_STATUS_READY"
    readonly property string text: Strings.text(textId)
    readonly property TableContentModel model: TableContentModel {}
    readonly property bool modelReady: model !== null && model.empty && model.rowCount === 0
    // The host's basic modules lie beside the plugin's.
    readonly property bool basicModulesReady: BasicConstants.colors !== null

    // Run by Qt's qml tool, which links none of the project's libraries, the exit code tells; the
    // outside host reads the properties instead.
    Component.onCompleted: Qt.exit(modelReady && basicModulesReady && text !== textId ? 0 : 1)
}
