import QtQuick
import QtQuick.Controls.Basic as Controls
import BasicComponents.Constants

Controls.TextField {
    id: control
    // Marks the text as not acceptable (red frame), independent of the validator's verdict.
    property bool invalid: false
    implicitHeight: BasicConstants.sizes.controlHeight
    font.family: BasicConstants.fonts.family
    font.pixelSize: BasicConstants.fonts.normal
    color: BasicConstants.colors.text
    selectByMouse: true
    leftPadding: 6
    rightPadding: 6
    topPadding: 2
    bottomPadding: 2
    background: Rectangle {
        radius: BasicConstants.sizes.radius
        color: control.invalid ? BasicConstants.colors.errorLight
                               : control.readOnly ? BasicConstants.colors.readOnly : BasicConstants.colors.panel
        border.color: control.invalid ? BasicConstants.colors.error
                                      : control.activeFocus ? BasicConstants.colors.accent : BasicConstants.colors.border
    }
}
