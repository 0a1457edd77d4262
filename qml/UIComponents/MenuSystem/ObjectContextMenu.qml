import QtQuick
import Qml.QtComponents

// The menu of the selected objects of a view (right click on an object): the commands that act
// on a selection, as the shipped definition's context menu lists them.
CommandMenu {
    id: contextMenu

    objectName: "objectContextMenu"
    menuId: "context.object"
    menuSystem: ownMenus

    // The context menu's own models: it may open in a view far from the menu bar.
    property MenuSystem_Cpp ownMenus: MenuSystem_Cpp {}
}
