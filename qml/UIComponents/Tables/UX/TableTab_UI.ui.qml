import QtQuick
import BasicComponents.Constants

// The look of one table tab: its title, a mark when the table holds values with errors, and
// the close button. The behaviour (select, close, drag) is the tab bar's.
Rectangle {
    id: tab
    property alias text: title.text
    property bool selected: false
    property bool alerted: false
    property bool hovered: false
    // The tab a dragged tab would be dropped before.
    property bool dropTarget: false
    // The width of the close button and its margin, at the right end of the tab.
    readonly property int closeAreaWidth: closeButton.width + 2 * BasicConstants.sizes.spacing

    implicitWidth: title.implicitWidth + alertMark.width + closeButton.width + 4 * BasicConstants.sizes.spacing
    implicitHeight: BasicConstants.sizes.controlHeight + BasicConstants.sizes.spacing
    color: tab.selected ? BasicConstants.colors.panel : tab.hovered ? BasicConstants.colors.hover : BasicConstants.colors.panelHeader
    border.color: BasicConstants.colors.border
    border.width: BasicConstants.sizes.borderWidth

    Rectangle {
        // The selected tab opens into the table below it.
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 2
        visible: tab.selected
        color: tab.alerted ? BasicConstants.colors.error : BasicConstants.colors.accent
    }

    Rectangle {
        id: alertMark
        objectName: "alertMark"
        anchors { left: parent.left; leftMargin: BasicConstants.sizes.spacing; verticalCenter: parent.verticalCenter }
        width: tab.alerted ? BasicConstants.sizes.spacing + 2 : 0
        height: width
        radius: width / 2
        visible: tab.alerted
        color: BasicConstants.colors.error
    }

    Text {
        id: title
        anchors {
            left: alertMark.right
            leftMargin: BasicConstants.sizes.spacing
            right: closeButton.left
            verticalCenter: parent.verticalCenter
        }
        elide: Text.ElideRight
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        font.bold: tab.selected
        color: tab.alerted ? BasicConstants.colors.error : BasicConstants.colors.text
    }

    Rectangle {
        id: closeButton
        objectName: "closeButton"
        anchors { right: parent.right; rightMargin: BasicConstants.sizes.spacing; verticalCenter: parent.verticalCenter }
        width: BasicConstants.sizes.iconSize
        height: BasicConstants.sizes.iconSize
        radius: BasicConstants.sizes.radius
        color: "transparent"
        Text {
            anchors.centerIn: parent
            text: "\u00d7"
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            color: BasicConstants.colors.textSecondary
        }
    }

    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: 2
        visible: tab.dropTarget
        color: BasicConstants.colors.accent
    }
}
