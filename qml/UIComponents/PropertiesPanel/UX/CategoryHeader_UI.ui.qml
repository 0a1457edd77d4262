import QtQuick
import BasicComponents.Constants

// A category's header bar: a fold arrow and the category's name.
Rectangle {
    id: root

    property string title: ""
    property bool collapsed: false
    property bool hovered: false

    implicitHeight: BasicConstants.sizes.controlHeight + 2
    color: hovered ? BasicConstants.colors.hover : BasicConstants.colors.panelHeader

    Text {
        id: arrow
        anchors { left: parent.left; leftMargin: BasicConstants.sizes.margin; verticalCenter: parent.verticalCenter }
        width: BasicConstants.sizes.iconSize
        text: root.collapsed ? "\u25B8" : "\u25BE"
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.large
        color: BasicConstants.colors.textSecondary
    }

    Text {
        anchors { left: arrow.right; right: parent.right; rightMargin: BasicConstants.sizes.margin; verticalCenter: parent.verticalCenter }
        text: root.title
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        font.bold: true
        color: BasicConstants.colors.text
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: BasicConstants.sizes.borderWidth
        color: BasicConstants.colors.border
    }
}
