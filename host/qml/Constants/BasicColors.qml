import QtQuick

// The colours of BasicConstants.colors. A type of its own, so tools know its properties.
QtObject {
    readonly property color background: "#f4f5f7"
    readonly property color panel: "#ffffff"
    readonly property color panelHeader: "#e8ebf0"
    readonly property color border: "#c9ced6"
    readonly property color text: "#1d2330"
    readonly property color textSecondary: "#5c6678"
    readonly property color textDisabled: "#a3abb8"
    readonly property color accent: "#1f6feb"
    readonly property color accentLight: "#d6e4fd"
    readonly property color hover: "#eef3fb"
    readonly property color selection: "#cfe0fc"
    readonly property color error: "#d1242f"
    readonly property color errorLight: "#fde4e4"
    readonly property color warning: "#b7791f"
    readonly property color success: "#1a7f37"
    readonly property color readOnly: "#f0f1f3"
}
