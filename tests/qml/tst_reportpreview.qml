import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.ReportPreview
import "../common/TestSupport.js" as TestSupport

// The report preview document: its pages come from the native half's image provider and its
// buttons page and zoom through the report.
Item {
    id: scene
    width: 900
    height: 700

    TestCase {
        id: testCase
        name: "ReportPreview"
        when: windowShown

        Component {
            id: previewComponent
            ReportPreview {
                width: 900
                height: 700
            }
        }

        function createPreview() {
            const preview = createTemporaryObject(previewComponent, scene)
            verify(preview)
            verify(preview.pageCount > 1)
            return preview
        }

        function test_pagesAreShown() {
            const preview = createPreview()
            const image = TestSupport.findByObjectName(preview, "pageImage")
            tryCompare(image, "status", Image.Ready)
            compare(image.sourceSize.width, Math.round(preview.pageWidth))
            compare(TestSupport.findByObjectName(preview, "pageText").text, "Page 1 of " + preview.pageCount)
        }

        function test_buttonsPageAndZoom() {
            const preview = createPreview()
            const previous = TestSupport.findByObjectName(preview, "previousPageButton")
            const next = TestSupport.findByObjectName(preview, "nextPageButton")
            verify(!previous.enabled)
            mouseClick(next)
            compare(preview.currentPage, 1)
            verify(previous.enabled)
            const zoom = preview.zoom
            mouseClick(TestSupport.findByObjectName(preview, "zoomInButton"))
            verify(preview.zoom > zoom)
            mouseClick(TestSupport.findByObjectName(preview, "fitWidthButton"))
            verify(preview.fitWidth)
            const image = TestSupport.findByObjectName(preview, "pageImage")
            tryCompare(image, "status", Image.Ready)
            // Fitted, the page and its margins take the width beside the outline
            verify(image.width <= TestSupport.findByObjectName(preview, "pageFlickable").width)
        }

        function test_ctrlWheelZooms() {
            const preview = createPreview()
            const area = TestSupport.findByObjectName(preview, "pageFlickable")
            const zoom = preview.zoom
            mouseWheel(area, 100, 100, 0, 120, Qt.NoButton, Qt.ControlModifier)
            verify(preview.zoom > zoom)
            mouseWheel(area, 100, 100, 0, -120, Qt.NoButton, Qt.ControlModifier)
            mouseWheel(area, 100, 100, 0, -120, Qt.NoButton, Qt.ControlModifier)
            verify(preview.zoom < zoom)
            // The wheel alone scrolls the page
            const before = preview.zoom
            mouseWheel(area, 100, 100, 0, -120)
            compare(preview.zoom, before)
        }

        function test_keysTurnThePages_data() {
            return [
                { tag: "page down", keys: [Qt.Key_PageDown], expected: 1 },
                { tag: "page down, page up", keys: [Qt.Key_PageDown, Qt.Key_PageUp], expected: 0 },
                { tag: "end", keys: [Qt.Key_End], expected: -1 },
                { tag: "end, home", keys: [Qt.Key_End, Qt.Key_Home], expected: 0 }
            ]
        }

        function test_keysTurnThePages(data) {
            const preview = createPreview()
            const area = TestSupport.findByObjectName(preview, "pageFlickable")
            mouseClick(area, 50, 50)
            verify(area.activeFocus)
            for (const key of data.keys)
                keyClick(key)
            compare(preview.currentPage, data.expected < 0 ? preview.pageCount - 1 : data.expected)
        }

        function test_headingsNameTheirPages() {
            // Without results the results section is the report's last page
            const preview = createPreview()
            const headings = preview.headings
            const results = headings[headings.length - 1]
            compare(results.text, "Results")
            compare(results.page, preview.pageCount - 1)
            preview.currentPage = results.page
            compare(TestSupport.findByObjectName(preview, "pageText").text,
                    "Page " + preview.pageCount + " of " + preview.pageCount)
        }
    }
}
