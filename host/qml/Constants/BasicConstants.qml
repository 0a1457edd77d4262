pragma Singleton
import QtQuick

// The host's visual vocabulary: every basic control and every panel takes its colours,
// fonts and sizes from here so the application looks like one piece.
QtObject {
    readonly property QtObject colors: QtObject {
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
    readonly property QtObject fonts: QtObject {
        readonly property string family: "DejaVu Sans"
        readonly property int small: 10
        readonly property int normal: 12
        readonly property int large: 14
        readonly property int title: 16
    }
    readonly property QtObject sizes: QtObject {
        readonly property int controlHeight: 26
        readonly property int rowHeight: 24
        readonly property int spacing: 6
        readonly property int margin: 8
        readonly property int radius: 3
        readonly property int iconSize: 16
        readonly property int borderWidth: 1
    }
}
