import QtQuick

// The fonts of BasicConstants.fonts. A type of its own, so tools know its properties.
QtObject {
    readonly property string family: "DejaVu Sans"
    readonly property int small: 10
    readonly property int normal: 12
    readonly property int large: 14
    readonly property int title: 16
}
