pragma Singleton
import QtQuick

// The host's visual vocabulary: every basic control and every panel takes its colours,
// fonts and sizes from here so the application looks like one piece.
QtObject {
    readonly property BasicColors colors: BasicColors {}
    readonly property BasicFonts fonts: BasicFonts {}
    readonly property BasicSizes sizes: BasicSizes {}
}
