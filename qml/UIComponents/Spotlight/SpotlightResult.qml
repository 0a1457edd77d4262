import QtQuick
import Qml.QtComponents

// A row of the spotlight's results, bound to its roles; a click chooses it.
SpotlightResult_UI {
    id: row

    required property int index
    required property int kind
    required property string title
    required property string detail
    required property string icon
    required property string shortcut
    required property bool available

    // Chose this row with the pointer.
    signal chosen(int index)

    current: row.ListView.isCurrentItem
    titleText: row.title
    detailText: row.detail
    shortcutSequence: row.shortcut
    dimmed: !row.available
    iconSource: row.icon
    hint: row.kind === SpotlightModel.Calculation ? Strings.text("UI_SPOTLIGHT_ENTER_COPIES")
        : row.kind === SpotlightModel.Coordinates ? Strings.text("UI_SPOTLIGHT_ENTER_OFFERS") : ""

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onEntered: row.ListView.view.currentIndex = row.index
        onClicked: row.chosen(row.index)
    }
}
