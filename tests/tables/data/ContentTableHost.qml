import QtQuick
import Qml.QtComponents
import UIComponents.Tables

Item {
    width: 1000
    height: 480
    ContentTable {
        objectName: "contentTable"
        anchors.fill: parent
        contentModel: testModel
        focus: true
    }
}
