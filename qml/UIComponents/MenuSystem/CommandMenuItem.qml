import QtQuick
import QtQuick.Controls.Basic
import BasicComponents.Constants

// A command (or a recent file, or a variant of a command) in a menu. What it shows follows the
// model row it stands for; choosing it calls run() with the row, so that the model runs the
// command and a disabled one stays refused there too.
MenuItem {
    id: item

    property string label: ""
    property string iconSource: ""
    property string shortcut: ""
    property bool available: true
    property bool isChecked: false
    property bool opensSubmenu: false
    // The row's number in the model that runs it.
    property int row: -1

    // Chosen: the holder runs the row's command.
    signal run(int row)

    objectName: "menuItem:" + item.label
    enabled: item.available
    text: item.label
    implicitWidth: entry.implicitWidth + item.leftPadding + item.rightPadding
    implicitHeight: entry.implicitHeight

    contentItem: MenuEntry_UI {
        id: entry
        labelText: item.label
        iconSource: item.iconSource
        shortcutSequence: item.opensSubmenu ? "" : item.shortcut
        checked: item.isChecked
        dimmed: !item.enabled
        opensSubmenu: item.opensSubmenu
    }

    background: Rectangle {
        color: item.highlighted ? BasicConstants.colors.hover : "transparent"
    }

    onTriggered: item.run(item.row)
}
