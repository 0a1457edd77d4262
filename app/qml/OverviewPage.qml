import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants
import UIComponents.Utilities

Item {
    ColumnLayout {
        anchors { fill: parent; margins: 24 }
        spacing: 16

        BasicPanel {
            Layout.fillWidth: true
            Layout.preferredHeight: 120
            title: Strings.text("UI_APP_PAGE_OVERVIEW")
            Text {
                anchors { fill: parent; margins: 12 }
                wrapMode: Text.WordWrap
                text: Strings.text("UI_APP_OVERVIEW_TEXT")
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.large
                color: BasicConstants.colors.text
            }
        }

        Separator { Layout.fillWidth: true }

        Item { Layout.fillHeight: true }
    }
}
