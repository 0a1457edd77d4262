import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents
import BasicComponents.Constants

// Puts a modified property back to its default.
Controls.AbstractButton {
    id: root

    objectName: "resetButton"
    Accessible.name: Strings.text("UI_PROPERTIES_RESET_TO_DEFAULT")
    Controls.ToolTip.visible: hovered
    Controls.ToolTip.text: Strings.text("UI_PROPERTIES_RESET_TO_DEFAULT")

    background: Rectangle {
        radius: BasicConstants.sizes.radius
        color: root.down ? BasicConstants.colors.accentLight : root.hovered ? BasicConstants.colors.hover : "transparent"
    }
    contentItem: Text {
        text: "\u21BA"
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.large
        color: root.hovered ? BasicConstants.colors.accent : BasicConstants.colors.textSecondary
    }
}
