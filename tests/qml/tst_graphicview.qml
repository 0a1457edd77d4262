import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.GraphicView
import "../common/TestSupport.js" as TestSupport

// The graphic view panel: the rubber band drawn from the viewport's selecting rectangle, whose
// width and height hold the far corner of the drag.
Item {
    id: scene
    width: 400
    height: 300

    TestCase {
        id: testCase
        name: "GraphicView"
        when: windowShown

        Component {
            id: viewComponent
            GraphicView {
                width: 400
                height: 300
            }
        }

        function createView() {
            // TestCase itself is not visible: the view goes beside it.
            var view = createTemporaryObject(viewComponent, scene)
            verify(view)
            tryVerify(() => view.viewport.viewportId !== -1, 5000, "the view drew its first frame")
            return view
        }

        function test_rubberBand_data() {
            return [
                { tag: "rightwards and down", from: Qt.point(60, 50), to: Qt.point(220, 180) },
                { tag: "leftwards and up", from: Qt.point(300, 200), to: Qt.point(120, 90) }
            ]
        }

        function test_rubberBand(data) {
            var view = createView()
            var viewport = view.viewport
            var band = TestSupport.findByObjectName(view, "rubberBand")
            verify(band)
            verify(!band.visible)

            mousePress(viewport, data.from.x, data.from.y, Qt.LeftButton)
            verify(!band.visible, "a press is not a drag")
            mouseMove(viewport, (data.from.x + data.to.x) / 2, (data.from.y + data.to.y) / 2, -1, Qt.LeftButton)
            mouseMove(viewport, data.to.x, data.to.y, -1, Qt.LeftButton)

            verify(band.visible)
            compare(band.x, data.from.x)
            compare(band.y, data.from.y)
            // Signed: a band dragged leftwards or up has a negative extent.
            compare(band.width, data.to.x - data.from.x)
            compare(band.height, data.to.y - data.from.y)
            compare(band.crossing, data.to.x < data.from.x)

            mouseRelease(viewport, data.to.x, data.to.y, Qt.LeftButton)
            verify(!band.visible)
        }

        function test_handleBarShowsTheTitle() {
            var view = createView()
            compare(view.title, Strings.text("UI_GRAPHICVIEW_TITLE"))
            verify(view.viewport.y > 0, "the viewport lies below the handle bar")
        }
    }
}
