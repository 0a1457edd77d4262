import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import BasicComponents.Constants

// The application's menu bar: the menus of the shipped definition, each command with its icon,
// shortcut and state as the command repository has them, and at the right a search over every
// command of the menus.
MenuSystem_Cpp {
    id: menus

    // A command ran from the menus or their search.
    signal commandRun()

    implicitHeight: bar.implicitHeight
    implicitWidth: bar.implicitWidth + search.implicitWidth + 16

    Rectangle {
        anchors.fill: parent
        color: BasicConstants.colors.panelHeader
    }

    RowLayout {
        anchors.fill: parent
        anchors.rightMargin: 8
        spacing: 8

        MenuBar {
            id: bar
            objectName: "menuBar"
            Layout.fillWidth: true
            background: null

            Instantiator {
                model: menus.menuBar
                delegate: CommandMenu {
                    required property string submenuId
                    required property string label
                    objectName: "menu:" + submenuId
                    menuId: submenuId
                    title: label
                }
                // Wired here: a delegate that takes its row's roles sees nothing of this document.
                onObjectAdded: (index, object) => {
                    object.menuSystem = menus
                    object.commandRun.connect(menus.commandRun)
                    bar.insertMenu(index, object)
                }
                onObjectRemoved: (index, object) => bar.removeMenu(object)
            }
        }

        MenuSearch {
            id: search
            Layout.preferredWidth: 240
            menuSystem: menus
            onCommandRun: menus.commandRun()
        }
    }
}
