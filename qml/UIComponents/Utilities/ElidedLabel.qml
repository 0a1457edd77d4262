import QtQuick
import BasicComponents.Constants

// A single-line label that elides and shows its full text as a tooltip when cut.
Text {
    id: label
    font.family: BasicConstants.fonts.family
    font.pixelSize: BasicConstants.fonts.normal
    color: BasicConstants.colors.text
    elide: Text.ElideRight
    maximumLineCount: 1
    verticalAlignment: Text.AlignVCenter
    readonly property bool isElided: truncated
}
