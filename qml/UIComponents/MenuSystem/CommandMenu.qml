import QtQuick
import QtQuick.Controls.Basic
import Qml.QtComponents
import BasicComponents.Constants

// One menu of the application (menuId names it in the shipped menu definition): its commands
// with their icons, shortcuts and states, separators, sub-menus, the variants of a command as a
// sub-menu of their own, and the recently used files. The entries follow the commands: a
// command disabled or hidden while the menu is open changes at once.
Menu {
    id: commandMenu

    // The application's menus, which share one definition; menus without one make their own.
    property MenuSystem_Cpp menuSystem: null
    property string menuId: ""

    // What the menu shows: the hidden commands and the separators they would leave are left out.
    readonly property MenuItemsModel items: commandMenu.menuSystem ? commandMenu.menuSystem.menuItems(commandMenu.menuId) : null
    readonly property MenuItemsFilterModel shownItems: MenuItemsFilterModel {
        sourceModel: commandMenu.items
    }

    // A command of the menu ran.
    signal commandRun()

    implicitWidth: Math.max(200, d.widest + commandMenu.leftPadding + commandMenu.rightPadding)

    // The entries that open sub-menus look like the commands beside them.
    delegate: CommandMenuItem {
        label: subMenu ? subMenu.title : ""
        available: subMenu ? subMenu.enabled : true
        opensSubmenu: true
        arrow: null
        Component.onCompleted: d.remember(this)
    }

    QtObject {
        id: d
        property real widest: 0

        function remember(control) {
            d.widest = Math.max(d.widest, control.implicitWidth)
        }

        // Sub-menus are menus of this same document, made when the row appears (a document
        // cannot hold itself).
        function makeSubmenu(entry) {
            const component = Qt.createComponent("CommandMenu.qml")
            if (component.status !== Component.Ready) {
                console.warn("CommandMenu: cannot make a sub-menu:", component.errorString())
                return null
            }
            const submenu = component.createObject(commandMenu, { menuSystem: commandMenu.menuSystem, menuId: entry.submenuId,
                                                           title: entry.label })
            submenu.commandRun.connect(commandMenu.commandRun)
            return submenu
        }

        function makeControl(entry) {
            // Items are made in the menu's list, which the menu then places them in.
            if (entry.itemType === MenuItemsModel.SeparatorItem)
                return separatorComponent.createObject(commandMenu.contentItem)
            if (entry.itemType === MenuItemsModel.SubmenuItem)
                return d.makeSubmenu(entry)
            if (entry.hasSubcommands)
                return subcommandsComponent.createObject(commandMenu, {
                    entry: entry,
                    subcommands: commandMenu.menuSystem ? commandMenu.menuSystem.subcommands(entry.uuid) : null
                })
            return commandComponent.createObject(commandMenu.contentItem, { entry: entry })
        }

        function place(index, entry) {
            const control = d.makeControl(entry)
            if (!control)
                return
            entry.control = control
            if (control instanceof Menu) {
                commandMenu.insertMenu(index, control)
            } else {
                commandMenu.insertItem(index, control)
                d.remember(control)
            }
        }

        function unplace(entry) {
            const control = entry.control
            if (!control)
                return
            entry.control = null
            if (control instanceof Menu)
                commandMenu.removeMenu(control)
            else
                commandMenu.removeItem(control)
        }
    }

    Instantiator {
        model: commandMenu.shownItems
        // Each row's data, by role name; the controls that show them are made apart because a
        // separator, a command and a sub-menu are different kinds of menu content.
        delegate: QtObject {
            required property int index
            required property int itemType
            required property string label
            required property string iconSource
            required property string shortcut
            required property bool available
            required property bool isChecked
            required property bool hasSubcommands
            required property string uuid
            required property string submenuId
            property var control: null
        }
        onObjectAdded: (index, object) => d.place(index, object)
        onObjectRemoved: (index, object) => d.unplace(object)
    }

    Component {
        id: separatorComponent
        MenuSeparator {
            contentItem: Rectangle {
                implicitHeight: 1
                color: BasicConstants.colors.border
            }
        }
    }

    Component {
        id: commandComponent
        CommandMenuItem {
            property var entry
            label: entry.label
            iconSource: entry.iconSource
            shortcut: entry.shortcut
            available: entry.available
            isChecked: entry.isChecked
            row: entry.index
            onRun: row => {
                const shown = commandMenu.shownItems
                if (commandMenu.items && commandMenu.items.trigger(shown.mapToSource(shown.index(row, 0)).row))
                    commandMenu.commandRun()
            }
        }
    }

    // A command with variants (New member: line, polyline, arc) opens them as a sub-menu.
    Component {
        id: subcommandsComponent
        Menu {
            id: variants
            property var entry
            property SubcommandsModel subcommands: null
            title: entry.label
            enabled: entry.available

            Instantiator {
                model: variants.subcommands
                delegate: CommandMenuItem {
                    required property int index
                    required label
                    required iconSource
                    row: index
                }
                // Wired here: a delegate that takes its row's roles sees nothing of this document.
                onObjectAdded: (index, object) => {
                    object.run.connect(row => {
                        if (variants.subcommands.trigger(row))
                            commandMenu.commandRun()
                    })
                    variants.insertItem(index, object)
                }
                onObjectRemoved: (index, object) => variants.removeItem(object)
            }
        }
    }
}
