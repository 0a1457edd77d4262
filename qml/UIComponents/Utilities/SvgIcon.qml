import QtQuick
import BasicComponents.Constants

// An SVG or raster icon rendered crisply at its display size.
Image {
    property int size: BasicConstants.sizes.iconSize
    width: size
    height: size
    sourceSize.width: size
    sourceSize.height: size
    fillMode: Image.PreserveAspectFit
    smooth: true
    asynchronous: false
}
