import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import BasicComponents.Constants
import UIComponents.Utilities

// A rich tooltip: title, description, the state line and the shortcut.
ToolTip {
    id: tip

    required property TooltipData data

    delay: 400
    padding: BasicConstants.sizes.margin
    background: Rectangle {
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.border
        radius: BasicConstants.sizes.radius
    }
    contentItem: ColumnLayout {
        spacing: 2
        RowLayout {
            spacing: BasicConstants.sizes.margin
            Text {
                text: tip.data.title
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                font.bold: true
                color: BasicConstants.colors.text
            }
            Text {
                visible: tip.data.shortcut !== ""
                text: tip.data.shortcut
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.small
                color: BasicConstants.colors.textSecondary
            }
        }
        Text {
            Layout.maximumWidth: 280
            wrapMode: Text.WordWrap
            text: tip.data.description
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            color: BasicConstants.colors.text
        }
        Text {
            visible: tip.data.status !== ""
            text: tip.data.status
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            font.italic: true
            color: BasicConstants.colors.textSecondary
        }
    }
}
