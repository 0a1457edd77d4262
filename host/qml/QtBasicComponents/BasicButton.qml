import QtQuick
import QtQuick.Controls.Basic as Controls
import BasicComponents.Constants

Controls.Button {
    id: control
    implicitHeight: BasicConstants.sizes.controlHeight
    font.family: BasicConstants.fonts.family
    font.pixelSize: BasicConstants.fonts.normal
    background: Rectangle {
        radius: BasicConstants.sizes.radius
        color: control.down ? BasicConstants.colors.accentLight
                            : control.hovered ? BasicConstants.colors.hover : BasicConstants.colors.panel
        border.color: control.activeFocus ? BasicConstants.colors.accent : BasicConstants.colors.border
    }
    contentItem: Text {
        text: control.text
        font: control.font
        color: control.enabled ? BasicConstants.colors.text : BasicConstants.colors.textDisabled
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
