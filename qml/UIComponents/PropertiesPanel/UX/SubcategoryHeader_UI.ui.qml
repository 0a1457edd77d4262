import QtQuick
import BasicComponents.Constants
import UIComponents.Constants

// A subcategory's caption with a rule running to the right edge. Property names line up
// whatever their depth; nested captions step in by half an indent per level.
Item {
    id: root

    property string title: ""
    property int level: 1

    implicitHeight: BasicConstants.sizes.rowHeight

    Text {
        id: caption
        anchors { left: parent.left; leftMargin: BasicConstants.sizes.margin + UIComponentsConstants.propertiesIndent * (root.level + 1) / 2; verticalCenter: parent.verticalCenter }
        text: root.title
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.small
        font.bold: true
        font.capitalization: Font.AllUppercase
        color: BasicConstants.colors.textSecondary
    }

    Rectangle {
        anchors { left: caption.right; leftMargin: BasicConstants.sizes.spacing; right: parent.right; rightMargin: BasicConstants.sizes.margin; verticalCenter: parent.verticalCenter }
        height: BasicConstants.sizes.borderWidth
        color: UIComponentsConstants.tableGrid
    }
}
