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
