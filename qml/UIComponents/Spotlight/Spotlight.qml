import QtQuick
import Qml.QtComponents
import BasicComponents.Constants
import UIComponents.Common

// The spotlight search: one field over a list of what it finds, opened by its shortcut
// (Ctrl+Space by default) anywhere in the application. Up and Down move through the results,
// Enter does what the highlighted one stands for, Escape clears the field and then closes.
Spotlight_Cpp {
    id: spotlight

    property string shortcut: "Ctrl+Space"
    property bool opened: false
    // Stays open after a choice, with the field cleared for the next (an embedded search).
    property bool stayOpen: false

    function open() {
        spotlight.reload()
        field.text = ""
        spotlight.opened = true
        field.forceActiveFocus()
    }

    function close() {
        spotlight.opened = false
        field.text = ""
    }

    function choose(row) {
        if (!spotlight.activate(row))
            return
        if (spotlight.stayOpen)
            field.text = ""
        else
            spotlight.close()
    }

    visible: spotlight.opened
    implicitWidth: 560
    implicitHeight: frame.height

    Shortcut {
        sequence: spotlight.shortcut
        context: Qt.ApplicationShortcut
        onActivated: spotlight.opened ? spotlight.close() : spotlight.open()
    }

    Rectangle {
        id: frame
        width: parent.width
        height: content.height + 16
        radius: 6
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.border

        Column {
            id: content
            x: 8
            y: 8
            width: parent.width - 16
            spacing: 6

            SearchField {
                id: field
                objectName: "spotlightField"
                width: parent.width
                implicitHeight: 34
                font.pixelSize: BasicConstants.fonts.large
                placeholderText: Strings.text("UI_SPOTLIGHT_PLACEHOLDER")
                onTextChanged: {
                    spotlight.searchText = field.text
                    results.currentIndex = 0
                }
                Keys.onDownPressed: results.incrementCurrentIndex()
                Keys.onUpPressed: results.decrementCurrentIndex()
                Keys.onReturnPressed: spotlight.choose(results.currentIndex)
                Keys.onEnterPressed: spotlight.choose(results.currentIndex)
                onEscapedEmpty: {
                    if (!spotlight.stayOpen)
                        spotlight.close()
                }
            }

            Text {
                objectName: "spotlightWaiting"
                width: parent.width
                visible: spotlight.runningCommandName.length > 0
                text: Strings.text("UI_SPOTLIGHT_WAITING_INPUT").arg(spotlight.runningCommandName)
                elide: Text.ElideRight
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.small
                color: BasicConstants.colors.accent
            }

            ListView {
                id: results
                objectName: "spotlightResults"
                width: parent.width
                height: Math.min(contentHeight, 360)
                clip: true
                model: spotlight.results
                highlightMoveDuration: 0
                boundsBehavior: Flickable.StopAtBounds
                section.property: "section"
                section.delegate: Text {
                    required property string section
                    width: ListView.view.width
                    topPadding: 6
                    bottomPadding: 2
                    leftPadding: 8
                    text: section
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.small
                    font.bold: true
                    color: BasicConstants.colors.textSecondary
                }
                delegate: SpotlightResult {
                    width: ListView.view.width
                    onChosen: row => spotlight.choose(row)
                }
            }

            Text {
                width: parent.width
                visible: results.count === 0
                leftPadding: 8
                bottomPadding: 4
                text: spotlight.searchText.length > 0 ? Strings.text("UI_COMMON_NO_MATCHES")
                                                      : Strings.text("UI_SPOTLIGHT_NO_RECENT")
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: BasicConstants.colors.textSecondary
            }
        }
    }
}
