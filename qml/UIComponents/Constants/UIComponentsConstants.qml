pragma Singleton
import QtQuick
import BasicComponents.Constants

// Sizes and colours shared by the component library, on top of the host's basic constants.
QtObject {
    readonly property color tableHeader: BasicConstants.colors.panelHeader
    readonly property color tableGrid: "#dde1e7"
    readonly property color tableSelection: BasicConstants.colors.selection
    readonly property color tableHighlight: "#fff4c2"
    readonly property color tableReadOnly: BasicConstants.colors.readOnly
    readonly property color tableNewRow: "#f7faff"
    readonly property color filterActive: "#fff8dc"
    readonly property color invalidInput: BasicConstants.colors.errorLight
    readonly property color markingMenuRing: "#2b3445"
    readonly property color markingMenuSlice: "#3a4660"
    readonly property color markingMenuSliceHover: BasicConstants.colors.accent
    readonly property color markingMenuText: "#ffffff"
    readonly property color markingMenuSliceEmpty: "#802b3445"
    readonly property color markingMenuSliceDisabledHover: "#5b6478"
    readonly property color markingMenuCentre: "#1b2130"
    readonly property color markingMenuMark: "#b0ffffff"
    readonly property color rubberBandStroke: BasicConstants.colors.textSecondary
    // A band that selects what lies inside it, and one that selects whatever it touches.
    readonly property color rubberBandWindow: "#141f6feb"
    readonly property color rubberBandCrossing: "#141a7f37"

    readonly property int tableRowHeight: BasicConstants.sizes.rowHeight
    readonly property int tableHeaderHeight: 28
    readonly property int tableColumnWidthStep: 64
    readonly property int tableMinimumColumnWidth: 64
    readonly property int propertiesIndent: 14
    readonly property int markingMenuSize: 700
    readonly property int markingMenuTimeout: 20000
    // How long the marking menu names a command that could not run before it closes.
    readonly property int markingMenuRefusalTime: 1500
    // Decimals offered by numeric inputs that accept expressions.
    readonly property int calculatorDecimals: 4
}
