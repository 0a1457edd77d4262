import QtQuick
import BasicComponents.Constants

// A shortcut shown the platform's way ("Ctrl+Shift+S"), dimmed beside a menu text.
Text {
    property string sequence: ""
    text: sequence.length > 0 ? sequence : ""
    visible: sequence.length > 0
    font.family: BasicConstants.fonts.family
    font.pixelSize: BasicConstants.fonts.small
    color: BasicConstants.colors.textSecondary
    verticalAlignment: Text.AlignVCenter
}
