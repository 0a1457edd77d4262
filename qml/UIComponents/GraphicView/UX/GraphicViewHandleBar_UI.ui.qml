import QtQuick
import BasicComponents.Constants

// The bar above a model view: a grip to take the panel by and the view's title.
Rectangle {
    id: bar
    property alias title: titleText.text

    implicitHeight: BasicConstants.sizes.controlHeight
    color: BasicConstants.colors.panelHeader

    Grid {
        id: grip
        anchors { left: parent.left; leftMargin: BasicConstants.sizes.margin; verticalCenter: parent.verticalCenter }
        columns: 2
        spacing: 2

        Repeater {
            model: 6
            Rectangle {
                width: 2
                height: 2
                radius: 1
                color: BasicConstants.colors.textSecondary
            }
        }
    }

    Text {
        id: titleText
        anchors {
            left: grip.right
            leftMargin: BasicConstants.sizes.margin
            right: parent.right
            rightMargin: BasicConstants.sizes.margin
            verticalCenter: parent.verticalCenter
        }
        elide: Text.ElideRight
        color: BasicConstants.colors.text
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        font.bold: true
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: BasicConstants.sizes.borderWidth
        color: BasicConstants.colors.border
    }
}
