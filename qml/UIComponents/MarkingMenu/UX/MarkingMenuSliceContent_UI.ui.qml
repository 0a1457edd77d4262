import QtQuick
import BasicComponents.Constants
import UIComponents.Constants

// What a slice shows: the command's icon over its name.
Column {
    id: content
    property alias iconSource: icon.source
    property alias text: label.text
    property bool dimmed: false

    width: 96
    spacing: 4
    opacity: content.dimmed ? 0.4 : 1.0

    Image {
        id: icon
        anchors.horizontalCenter: parent.horizontalCenter
        width: 28
        height: 28
        sourceSize.width: 28
        sourceSize.height: 28
        fillMode: Image.PreserveAspectFit
        visible: icon.source != ""
    }

    Text {
        id: label
        width: content.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        elide: Text.ElideRight
        color: UIComponentsConstants.markingMenuText
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
    }
}
