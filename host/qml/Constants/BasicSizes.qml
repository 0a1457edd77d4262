import QtQuick

// The sizes of BasicConstants.sizes. A type of its own, so tools know its properties.
QtObject {
    readonly property int controlHeight: 26
    readonly property int rowHeight: 24
    readonly property int spacing: 6
    readonly property int margin: 8
    readonly property int radius: 3
    readonly property int iconSize: 16
    readonly property int borderWidth: 1
}
