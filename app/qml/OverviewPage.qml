import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Common
import UIComponents.Constants
import UIComponents.MarkingMenu
import UIComponents.Utilities
import Orvo.QtExtensions
import Demo

// The front door: what the component library offers, each part with a small live piece of it
// and the way to its page, and what the module holds.
Item {
    id: page

    // The user wants to see the page of that name.
    signal pageRequested(string name)

    // The edit text of a number; reading the decimal mark makes the bindings that show such text
    // follow a change of the number format.
    function formatted(number) {
        return NumberFormat.decimalMark.length > 0 ? NumberFormat.toEditValue(number) : ""
    }

    component Fact: ColumnLayout {
        property alias value: valueText.text
        property alias caption: captionText.text
        spacing: 0
        Text {
            id: valueText
            objectName: "factValue"
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.title + 6
            font.bold: true
            color: BasicConstants.colors.accent
        }
        Text {
            id: captionText
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            color: BasicConstants.colors.textSecondary
        }
    }

    // One part of the library: what it does, a live miniature, and a link to its page.
    component PartCard: BasicPanel {
        id: card
        property string pageName
        property alias description: descriptionText.text
        default property alias miniature: miniatureArea.data
        signal pageLinkClicked(string name)

        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredHeight: cardContent.implicitHeight + BasicConstants.sizes.controlHeight + 22

        ColumnLayout {
            id: cardContent
            anchors { fill: parent; margins: 10 }
            spacing: 8

            Text {
                id: descriptionText
                Layout.fillWidth: true
                wrapMode: Text.WordWrap
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: BasicConstants.colors.textSecondary
            }
            Item {
                id: miniatureArea
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredHeight: children.length > 0 ? 130 : 0
                clip: true
            }
            Text {
                objectName: "openPage_" + card.pageName
                text: Strings.text("UI_APP_OVERVIEW_OPEN_PAGE") + " \u2192"
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                font.underline: linkMouse.containsMouse
                color: BasicConstants.colors.accent
                MouseArea {
                    id: linkMouse
                    anchors.fill: parent
                    hoverEnabled: true
                    cursorShape: Qt.PointingHandCursor
                    onClicked: card.pageLinkClicked(card.pageName)
                }
            }
        }
    }

    // The shipped marking menu, read by a controller of its own (it never opens a window here).
    MarkingMenu_Cpp {
        id: markingMenu
        configurationKey: "MarkingMenu"
    }

    Flickable {
        anchors.fill: parent
        contentHeight: content.implicitHeight + 48
        clip: true

        ColumnLayout {
            id: content
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 24 }
            spacing: 16

            BasicPanel {
                Layout.fillWidth: true
                Layout.preferredHeight: 150
                title: Strings.text("UI_APP_OVERVIEW_TITLE")

                ColumnLayout {
                    anchors { fill: parent; margins: 12 }
                    spacing: 10
                    Text {
                        Layout.fillWidth: true
                        wrapMode: Text.WordWrap
                        text: Strings.text("UI_APP_OVERVIEW_TEXT")
                        font.family: BasicConstants.fonts.family
                        font.pixelSize: BasicConstants.fonts.large
                        color: BasicConstants.colors.text
                    }
                    RowLayout {
                        spacing: 48
                        Fact {
                            objectName: "registeredTypes"
                            value: QmlModuleInfo.typeCount("Qml.QtComponents")
                            caption: Strings.text("UI_APP_OVERVIEW_TYPES").arg("Qml.QtComponents")
                        }
                        Fact {
                            objectName: "componentModules"
                            value: QmlModuleInfo.resourceModules("UIComponents").length
                            caption: Strings.text("UI_APP_OVERVIEW_MODULES")
                        }
                        Fact {
                            objectName: "stringTableLanguage"
                            value: Strings.text("UI_STRING_TABLE_LANGUAGE")
                            caption: Strings.text("UI_APP_OVERVIEW_LANGUAGE")
                        }
                    }
                }
            }

            GridLayout {
                Layout.fillWidth: true
                columns: 3
                columnSpacing: 16
                rowSpacing: 16

                PartCard {
                    onPageLinkClicked: name => page.pageRequested(name)
                    title: Strings.text("UI_APP_PAGE_VALUE_ENTRY")
                    pageName: "valueentry"
                    description: Strings.text("UI_APP_OVERVIEW_VALUE_ENTRY")
                    NumericInput {
                        objectName: "overviewNumericInput"
                        width: Math.min(parent.width, 240)
                        unit: "mm"
                        minimum: 0
                        value: 300
                        unitMinimumWidth: 30
                    }
                }

                PartCard {
                    onPageLinkClicked: name => page.pageRequested(name)
                    title: Strings.text("UI_APP_PAGE_MARKING_MENU")
                    pageName: "markingmenu"
                    description: Strings.text("UI_APP_OVERVIEW_MARKING_MENU")
                    Rectangle {
                        anchors.fill: parent
                        color: UIComponentsConstants.markingMenuCentre
                        radius: BasicConstants.sizes.radius
                        // The menu's own ring of the Model section, scaled down.
                        MarkingMenuRing {
                            id: miniatureRing
                            objectName: "overviewMarkingMenuRing"
                            // The Model ring reaches from its outer radius above the centre to
                            // the ends of its lowest slices below it, at 45 degrees.
                            readonly property real drawnHeight: outerRadius * (1 + Math.SQRT1_2)
                            anchors.centerIn: parent
                            anchors.verticalCenterOffset: (outerRadius - drawnHeight / 2) * scale
                            scale: Math.min(parent.width / width, parent.height / drawnHeight) * 0.92
                            section: MarkingMenuGeometry.topSection
                            helper: markingMenu.commandHelper
                        }
                    }
                }

                PartCard {
                    onPageLinkClicked: name => page.pageRequested(name)
                    title: Strings.text("UI_APP_PAGE_PROPERTIES")
                    pageName: "properties"
                    description: Strings.text("UI_APP_OVERVIEW_PROPERTIES")
                }

                PartCard {
                    onPageLinkClicked: name => page.pageRequested(name)
                    title: Strings.text("UI_APP_PAGE_TABLES")
                    pageName: "tables"
                    description: Strings.text("UI_APP_OVERVIEW_TABLES")
                }

                PartCard {
                    onPageLinkClicked: name => page.pageRequested(name)
                    title: Strings.text("UI_APP_PAGE_SHORTCUTS")
                    pageName: "shortcuts"
                    description: Strings.text("UI_APP_OVERVIEW_SHORTCUTS")
                    CommandListModel { id: commands }
                    // The first bindings the application's shortcuts have right now.
                    Column {
                        spacing: 3
                        Repeater {
                            model: DemoShell.hotkeyHandlerModel
                            // A row knows its binding only: its command's name comes from here.
                            onItemAdded: (index, item) => item.commandName = Qt.binding(() => commands.commandName(item.cmdUuid))
                            delegate: Row {
                                id: binding
                                required property int index
                                required property string cmdUuid
                                required property string cmdShortcut
                                property string commandName
                                visible: binding.index < binding.c_shownBindings
                                spacing: 10
                                readonly property int c_shownBindings: 5
                                KeyboardShortcutText {
                                    width: 90
                                    sequence: binding.cmdShortcut
                                    color: BasicConstants.colors.text
                                }
                                Text {
                                    text: binding.commandName
                                    font.family: BasicConstants.fonts.family
                                    font.pixelSize: BasicConstants.fonts.small
                                    color: BasicConstants.colors.textSecondary
                                }
                            }
                        }
                    }
                }

                PartCard {
                    onPageLinkClicked: name => page.pageRequested(name)
                    title: Strings.text("UI_APP_OVERVIEW_CALCULATOR")
                    pageName: "valueentry"
                    description: Strings.text("UI_APP_OVERVIEW_CALCULATOR_TEXT")
                    Column {
                        spacing: 3
                        Repeater {
                            model: [{ typed: "2*500mm", unit: "m" }, { typed: "5kN*2m", unit: "kNm" },
                                    { typed: "5kN", unit: "m" }]
                            delegate: Text {
                                id: calculation
                                required property var modelData
                                // As the page writes numbers; reading the decimal mark makes the
                                // text follow a change of the number format.
                                function formatted(number) {
                                    return NumberFormat.decimalMark.length > 0 ? NumberFormat.toEditValue(number) : ""
                                }
                                FieldExpression {
                                    id: example
                                    expression: calculation.modelData.typed
                                    unit: calculation.modelData.unit
                                }
                                text: "=" + calculation.modelData.typed + "  (" + calculation.modelData.unit + ")  "
                                      + (example.valid ? "= " + calculation.formatted(example.value) + " " + calculation.modelData.unit
                                                       : example.message)
                                color: example.valid ? BasicConstants.colors.text : BasicConstants.colors.error
                                font.family: BasicConstants.fonts.family
                                font.pixelSize: BasicConstants.fonts.small
                            }
                        }
                    }
                }
            }
        }
    }

    // The controller replaces its configuration without a signal once it is complete.
    Component.onCompleted: showMenuTimer.start()
    Timer {
        id: showMenuTimer
        interval: 0
        onTriggered: miniatureRing.sectionConfig = markingMenu.mmConfig.topSection
    }
}
