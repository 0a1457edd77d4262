import QtQuick
import QtQuick.Shapes
import Qml.QtComponents
import UIComponents.Constants

// The graphic view panel: a handle bar over the engine's view of the model, and the rubber
// band of a selection by rectangle drawn over the view while the user drags it.
GraphicView_Cpp {
    id: root

    // The view's title in the handle bar.
    property string title: Strings.text("UI_GRAPHICVIEW_TITLE")
    // The engine's view: its viewportId reaches the view through the host's graphics service.
    readonly property alias viewport: viewport

    GraphicViewHandleBar_UI {
        id: handleBar
        anchors { left: parent.left; right: parent.right; top: parent.top }
        title: root.title
    }

    Viewport {
        id: viewport
        objectName: "viewport"
        anchors { left: parent.left; right: parent.right; top: handleBar.bottom; bottom: parent.bottom }
        clip: true

        // The band runs from where the drag began (x, y) to the pointer, whose corner the
        // rectangle's width and height carry: a drag to the left or up has a negative extent,
        // which the path draws as it is.
        Shape {
            id: rubberBand
            objectName: "rubberBand"
            visible: viewport.displaySelectingRect
            x: viewport.selectingRect.x
            y: viewport.selectingRect.y
            width: viewport.selectingRect.width - x
            height: viewport.selectingRect.height - y

            // Leftwards the band selects whatever it touches, rightwards only what lies inside:
            // the fill tells the two apart.
            readonly property bool crossing: width < 0

            ShapePath {
                strokeColor: UIComponentsConstants.rubberBandStroke
                strokeWidth: 1
                strokeStyle: ShapePath.DashLine
                dashPattern: [4, 3]
                fillColor: rubberBand.crossing ? UIComponentsConstants.rubberBandCrossing
                                               : UIComponentsConstants.rubberBandWindow
                startX: 0
                startY: 0
                PathLine { x: rubberBand.width; y: 0 }
                PathLine { x: rubberBand.width; y: rubberBand.height }
                PathLine { x: 0; y: rubberBand.height }
                PathLine { x: 0; y: 0 }
            }
        }
    }
}
