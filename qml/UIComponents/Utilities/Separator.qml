import QtQuick
import BasicComponents.Constants

// A one-pixel line, horizontal unless vertical is set.
Rectangle {
    property bool vertical: false
    implicitWidth: vertical ? BasicConstants.sizes.borderWidth : 1
    implicitHeight: vertical ? 1 : BasicConstants.sizes.borderWidth
    color: BasicConstants.colors.border
}
