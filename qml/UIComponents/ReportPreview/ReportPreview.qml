import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The report preview: the report of the model and its results a page at a time, with the
// report's outline beside it, page and zoom controls above it and an export to PDF. The pages
// are drawn by the native half at the zoom shown; the report follows the model while shown.
ReportPreview_Cpp {
    id: preview

    // Where an export goes; the user may change it before exporting.
    property alias exportPath: pathField.text

    availableWidth: Math.max(0, pageArea.width - 2 * d.pageMargin)

    // One heading of the outline, indented by its level; the outline's current one stands out.
    component OutlineEntry: Rectangle {
        id: entry
        required property var modelData
        signal chosen(int page)

        height: BasicConstants.sizes.rowHeight
        color: entryMouse.containsMouse ? BasicConstants.colors.hover : "transparent"

        BasicLabel {
            anchors { fill: parent; rightMargin: BasicConstants.sizes.margin }
            leftPadding: BasicConstants.sizes.margin * entry.modelData.level
            text: entry.modelData.text
            font.bold: entry.modelData.level === 1
            color: entry.ListView.isCurrentItem ? BasicConstants.colors.accent : BasicConstants.colors.text
        }
        MouseArea {
            id: entryMouse
            anchors.fill: parent
            hoverEnabled: true
            onClicked: entry.chosen(entry.modelData.page)
        }
    }

    QtObject {
        id: d
        readonly property int pageMargin: 16
        readonly property int outlineWidth: 200
        readonly property color pageAreaColor: "#8a939f"
        // What the last export said: empty, where it went, or why it failed.
        property string exportMessage: ""
        property bool exportFailed: false
    }

    Component.onCompleted: pathField.text = preview.suggestedFilePath()

    onExported: filePath => {
        d.exportFailed = false
        d.exportMessage = Strings.text("UI_REPORT_EXPORTED").arg(filePath)
    }

    onExportErrorChanged: {
        if (preview.exportError.length > 0) {
            d.exportFailed = true
            d.exportMessage = preview.exportError
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: toolbar.implicitHeight + 2 * BasicConstants.sizes.margin
            color: BasicConstants.colors.panelHeader

            RowLayout {
                id: toolbar
                anchors { fill: parent; margins: BasicConstants.sizes.margin }
                spacing: BasicConstants.sizes.spacing

                BasicButton {
                    objectName: "previousPageButton"
                    text: Strings.text("UI_REPORT_PREVIOUS_PAGE")
                    enabled: preview.currentPage > 0
                    onClicked: preview.previousPage()
                }
                BasicLabel {
                    objectName: "pageText"
                    Layout.preferredWidth: 100
                    horizontalAlignment: Text.AlignHCenter
                    text: preview.pageText
                }
                BasicButton {
                    objectName: "nextPageButton"
                    text: Strings.text("UI_REPORT_NEXT_PAGE")
                    enabled: preview.currentPage + 1 < preview.pageCount
                    onClicked: preview.nextPage()
                }
                Item { Layout.preferredWidth: BasicConstants.sizes.margin }
                BasicButton {
                    objectName: "zoomOutButton"
                    text: Strings.text("UI_REPORT_ZOOM_OUT")
                    onClicked: preview.zoomOut()
                }
                BasicLabel {
                    objectName: "zoomText"
                    Layout.preferredWidth: 50
                    horizontalAlignment: Text.AlignHCenter
                    text: preview.zoomText
                }
                BasicButton {
                    objectName: "zoomInButton"
                    text: Strings.text("UI_REPORT_ZOOM_IN")
                    onClicked: preview.zoomIn()
                }
                BasicButton {
                    objectName: "fitWidthButton"
                    text: Strings.text("UI_REPORT_FIT_WIDTH")
                    checkable: true
                    checked: preview.fitWidth
                    onToggled: preview.fitWidth = checked
                }
                BasicButton {
                    objectName: "refreshButton"
                    text: Strings.text("UI_REPORT_REFRESH")
                    onClicked: preview.refresh()
                }
                Item { Layout.fillWidth: true }
                BasicLabel {
                    text: Strings.text("UI_REPORT_EXPORT_PATH")
                }
                BasicTextField {
                    id: pathField
                    objectName: "exportPath"
                    Layout.preferredWidth: 260
                    invalid: d.exportFailed
                    onTextEdited: d.exportFailed = false
                    onAccepted: preview.exportPdf(pathField.text)
                }
                BasicButton {
                    objectName: "exportButton"
                    text: Strings.text("UI_REPORT_EXPORT_PDF")
                    enabled: preview.pageCount > 0 && pathField.text.length > 0
                    onClicked: preview.exportPdf(pathField.text)
                }
            }
        }

        Rectangle {
            objectName: "exportMessage"
            Layout.fillWidth: true
            Layout.preferredHeight: messageText.implicitHeight + BasicConstants.sizes.margin
            visible: d.exportMessage.length > 0
            color: d.exportFailed ? BasicConstants.colors.errorLight : BasicConstants.colors.accentLight

            BasicLabel {
                id: messageText
                anchors { fill: parent; leftMargin: BasicConstants.sizes.margin; rightMargin: BasicConstants.sizes.margin }
                text: d.exportMessage
                color: d.exportFailed ? BasicConstants.colors.error : BasicConstants.colors.text
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0

            // The report's headings; a click shows the page a heading is on.
            ListView {
                id: outline
                objectName: "reportOutline"
                Layout.preferredWidth: d.outlineWidth
                Layout.fillHeight: true
                clip: true
                model: preview.headings
                header: BasicLabel {
                    width: ListView.view.width
                    height: BasicConstants.sizes.rowHeight + BasicConstants.sizes.spacing
                    leftPadding: BasicConstants.sizes.margin
                    text: Strings.text("UI_REPORT_CONTENTS")
                    font.bold: true
                }
                // The last heading at or before the page shown.
                currentIndex: {
                    let index = -1
                    for (let i = 0; i < preview.headings.length; ++i) {
                        if (preview.headings[i].page <= preview.currentPage)
                            index = i
                    }
                    return index
                }
                delegate: OutlineEntry {
                    width: ListView.view.width
                    onChosen: page => preview.currentPage = page
                }
            }

            Rectangle {
                id: pageArea
                Layout.fillWidth: true
                Layout.fillHeight: true
                color: d.pageAreaColor
                clip: true

                Flickable {
                    id: flickable
                    objectName: "pageFlickable"
                    anchors.fill: parent
                    contentWidth: Math.max(width, preview.pageWidth + 2 * d.pageMargin)
                    contentHeight: preview.pageHeight + 2 * d.pageMargin
                    boundsBehavior: Flickable.StopAtBounds
                    ScrollBar.vertical: ScrollBar {}
                    ScrollBar.horizontal: ScrollBar {}

                    // A click on the page gives it the keys: Page Up and Page Down turn the pages,
                    // Home and End go to the first and the last.
                    activeFocusOnTab: true
                    Keys.onPressed: event => {
                        if (event.key === Qt.Key_PageDown)
                            preview.nextPage()
                        else if (event.key === Qt.Key_PageUp)
                            preview.previousPage()
                        else if (event.key === Qt.Key_Home)
                            preview.currentPage = 0
                        else if (event.key === Qt.Key_End)
                            preview.currentPage = preview.pageCount - 1
                        else
                            return
                        event.accepted = true
                    }
                    TapHandler {
                        onTapped: flickable.forceActiveFocus()
                    }

                    // Ctrl and the wheel zoom, as in a document viewer; the wheel alone scrolls.
                    WheelHandler {
                        acceptedModifiers: Qt.ControlModifier
                        onWheel: event => {
                            if (event.angleDelta.y > 0)
                                preview.zoomIn()
                            else if (event.angleDelta.y < 0)
                                preview.zoomOut()
                        }
                    }

                    Image {
                        objectName: "pageImage"
                        x: Math.max(d.pageMargin, (flickable.contentWidth - width) / 2)
                        y: d.pageMargin
                        width: preview.pageWidth
                        height: preview.pageHeight
                        source: preview.pageSource
                        // The native half serves each page at the size shown: nothing to keep.
                        cache: false
                        smooth: true
                    }
                }

                // A new page starts at its top.
                Connections {
                    target: preview
                    function onCurrentPageChanged() {
                        flickable.contentY = 0
                    }
                }
            }
        }
    }
}
