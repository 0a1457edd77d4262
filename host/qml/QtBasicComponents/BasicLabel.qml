import QtQuick
import QtQuick.Controls.Basic as Controls
import BasicComponents.Constants

Controls.Label {
    font.family: BasicConstants.fonts.family
    font.pixelSize: BasicConstants.fonts.normal
    color: enabled ? BasicConstants.colors.text : BasicConstants.colors.textDisabled
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
}
