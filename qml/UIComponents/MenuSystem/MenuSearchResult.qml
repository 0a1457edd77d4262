import QtQuick
import BasicComponents.Constants

// A command the menu search found: its name and where it lives in the menus, its icon and
// shortcut. Hovering highlights it, a click chooses it.
Rectangle {
    id: result

    required property int index
    required property string label
    required property string path
    required property string shortcut
    required property string iconSource
    required property bool available

    signal chosen(int row)

    height: entry.implicitHeight + 4
    color: result.ListView.isCurrentItem ? BasicConstants.colors.selection : "transparent"
    radius: BasicConstants.sizes.radius

    MenuEntry_UI {
        id: entry
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        labelText: result.path.length > 0 ? result.label + "   \u2014 " + result.path : result.label
        iconSource: result.iconSource
        shortcutSequence: result.shortcut
        dimmed: !result.available
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onEntered: result.ListView.view.currentIndex = result.index
        onClicked: result.chosen(result.index)
    }
}
