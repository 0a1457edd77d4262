import QtQuick
import QtQuick.Controls.Basic as Controls
import BasicComponents.Constants

Controls.CheckBox {
    font.family: BasicConstants.fonts.family
    font.pixelSize: BasicConstants.fonts.normal
    implicitHeight: BasicConstants.sizes.controlHeight
}
