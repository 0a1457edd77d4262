import QtQuick

// A category header that folds its category: a click, or Space/Enter with focus, collapses
// or expands it through the panel, which remembers the choice for the user.
CategoryHeader_UI {
    id: root

    required property var rowModel
    required property var panel

    objectName: "categoryHeader_" + rowModel.categoryRole
    title: rowModel.nameRole
    collapsed: rowModel.isCollapsedRole
    hovered: mouse.containsMouse
    activeFocusOnTab: true

    function toggle() {
        panel.toggleCategory(rowModel.categoryRole)
    }

    Keys.onSpacePressed: toggle()
    Keys.onReturnPressed: toggle()

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: root.toggle()
    }
}
