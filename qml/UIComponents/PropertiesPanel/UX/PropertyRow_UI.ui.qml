import QtQuick
import BasicComponents.Constants
import UIComponents.Constants

// One property: a marker for modified or invalid values, the name, the editor area and a
// small button slot at the end.
Rectangle {
    id: root

    property string name: ""
    property bool richTextName: false
    // 0 default, 1 modified, 3 invalid
    property int highlightState: 0
    property bool hovered: false
    property real nameWidth: width * 0.42
    default property alias editor: editorArea.data
    property alias trailing: trailingArea.data

    implicitHeight: BasicConstants.sizes.controlHeight + 4
    color: hovered ? BasicConstants.colors.hover : BasicConstants.colors.panel

    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom; margins: 3 }
        width: 3
        radius: 1
        visible: root.highlightState !== 0
        color: root.highlightState === 3 ? BasicConstants.colors.error : BasicConstants.colors.accent
    }

    Text {
        id: nameText
        anchors { left: parent.left; leftMargin: BasicConstants.sizes.margin + UIComponentsConstants.propertiesIndent; verticalCenter: parent.verticalCenter }
        width: root.nameWidth - anchors.leftMargin
        text: root.name
        textFormat: root.richTextName ? Text.RichText : Text.PlainText
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        color: BasicConstants.colors.text
    }

    Item {
        id: editorArea
        anchors { left: nameText.right; leftMargin: BasicConstants.sizes.spacing; right: trailingArea.left; rightMargin: 2; verticalCenter: parent.verticalCenter }
        height: BasicConstants.sizes.controlHeight
    }

    Item {
        id: trailingArea
        anchors { right: parent.right; rightMargin: BasicConstants.sizes.spacing; verticalCenter: parent.verticalCenter }
        width: 22
        height: BasicConstants.sizes.controlHeight
    }
}
