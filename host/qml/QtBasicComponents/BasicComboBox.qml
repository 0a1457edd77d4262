import QtQuick
import QtQuick.Controls.Basic as Controls
import BasicComponents.Constants

Controls.ComboBox {
    id: control
    implicitHeight: BasicConstants.sizes.controlHeight
    font.family: BasicConstants.fonts.family
    font.pixelSize: BasicConstants.fonts.normal
    background: Rectangle {
        radius: BasicConstants.sizes.radius
        color: control.hovered ? BasicConstants.colors.hover : BasicConstants.colors.panel
        border.color: control.activeFocus ? BasicConstants.colors.accent : BasicConstants.colors.border
    }
}
