import QtQuick
import QtQuick.Layouts
import QtQuick.Shapes
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants
import Orvo.QtExtensions
import Demo

// The marking menu at work: hold the secondary button over the model view, choose a command,
// and see it run. The menu is the application's own (Main.qml).
Item {
    id: page

    RowLayout {
        anchors { fill: parent; margins: 24 }
        spacing: 16

        BasicPanel {
            Layout.fillWidth: true
            Layout.fillHeight: true
            title: Strings.text("UI_APP_MARKING_MENU_VIEW_TITLE")

            Rectangle {
                id: modelView
                anchors { fill: parent; margins: 8 }
                color: "#1e2430"
                radius: BasicConstants.sizes.radius

                // A two-storey, two-bay frame, as the model view would show it.
                Shape {
                    id: frame
                    readonly property real bay: Math.min(modelView.width * 0.36, 220)
                    readonly property real storey: Math.min(modelView.height * 0.28, 150)
                    readonly property color memberColor: "#8fb8ff"
                    width: bay * 2
                    height: storey * 2
                    anchors.centerIn: parent
                    anchors.verticalCenterOffset: -12
                    antialiasing: true

                    ShapePath {
                        strokeColor: frame.memberColor
                        strokeWidth: 3
                        fillColor: "transparent"
                        PathMultiline {
                            paths: [
                                [Qt.point(0, frame.height), Qt.point(0, 0)],
                                [Qt.point(frame.bay, frame.height), Qt.point(frame.bay, 0)],
                                [Qt.point(frame.width, frame.height), Qt.point(frame.width, 0)],
                                [Qt.point(0, 0), Qt.point(frame.width, 0)],
                                [Qt.point(0, frame.storey), Qt.point(frame.width, frame.storey)]
                            ]
                        }
                    }
                }

                // The frame's nodes, three bays by three levels, and its supports: each entry is
                // where the mark is centred.
                Repeater {
                    model: {
                        const points = []
                        for (let i = 0; i < 9; ++i)
                            points.push(Qt.point(frame.x + (i % 3) * frame.bay, frame.y + Math.floor(i / 3) * frame.storey))
                        return points
                    }
                    Rectangle {
                        id: node
                        required property point modelData
                        width: 9
                        height: 9
                        radius: 4.5
                        color: "#ffffff"
                        x: node.modelData.x - width / 2
                        y: node.modelData.y - height / 2
                    }
                }

                Repeater {
                    model: {
                        const points = []
                        for (let i = 0; i < 3; ++i)
                            points.push(Qt.point(frame.x + i * frame.bay, frame.y + frame.height + 2))
                        return points
                    }
                    Text {
                        id: support
                        required property point modelData
                        text: "▲"
                        color: "#c7d3e6"
                        font.pixelSize: 18
                        x: support.modelData.x - width / 2
                        y: support.modelData.y
                    }
                }

                ViewInputArea {
                    id: viewInput
                    objectName: "markingMenuView"
                    anchors.fill: parent
                }

                Text {
                    anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 12 }
                    wrapMode: Text.WordWrap
                    horizontalAlignment: Text.AlignHCenter
                    text: viewInput.holding ? Strings.text("UI_APP_MARKING_MENU_HOLDING")
                                            : Strings.text("UI_APP_MARKING_MENU_VIEW_HINT")
                    color: "#c7d3e6"
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                }
            }
        }

        ColumnLayout {
            Layout.preferredWidth: 300
            Layout.maximumWidth: 300
            Layout.fillHeight: true
            spacing: 12

            BasicPanel {
                Layout.fillWidth: true
                Layout.preferredHeight: 170
                title: Strings.text("UI_APP_MARKING_MENU_LAST_COMMAND")

                ColumnLayout {
                    anchors { fill: parent; margins: 10 }
                    spacing: 6

                    RowLayout {
                        spacing: 8
                        Rectangle {
                            Layout.preferredWidth: 36
                            Layout.preferredHeight: 36
                            radius: 4
                            color: UIComponentsConstants.markingMenuSlice
                            visible: DemoShell.commandActivity.lastCommandIcon !== ""
                            Image {
                                anchors.centerIn: parent
                                width: 26
                                height: 26
                                sourceSize.width: 26
                                sourceSize.height: 26
                                source: DemoShell.commandActivity.lastCommandIcon
                            }
                        }
                        BasicLabel {
                            objectName: "lastCommandName"
                            Layout.fillWidth: true
                            text: DemoShell.commandActivity.runCount > 0 ? DemoShell.commandActivity.lastCommandName
                                                               : Strings.text("UI_APP_MARKING_MENU_NO_COMMAND")
                            font.pixelSize: BasicConstants.fonts.title
                            font.bold: DemoShell.commandActivity.runCount > 0
                        }
                    }
                    BasicLabel {
                        Layout.fillWidth: true
                        visible: DemoShell.commandActivity.runCount > 0
                        text: Strings.text("UI_APP_MARKING_MENU_PARAMETERS").arg(DemoShell.commandActivity.lastParameters || "–")
                        color: BasicConstants.colors.textSecondary
                    }
                    BasicLabel {
                        Layout.fillWidth: true
                        visible: DemoShell.commandActivity.runCount > 0
                        text: Strings.text("UI_APP_MARKING_MENU_ORIGIN").arg(DemoShell.commandActivity.lastOrigin)
                        color: BasicConstants.colors.textSecondary
                    }
                    BasicLabel {
                        Layout.fillWidth: true
                        text: Strings.text("UI_APP_MARKING_MENU_COMMAND_COUNT").arg(DemoShell.commandActivity.runCount)
                        color: BasicConstants.colors.textSecondary
                    }
                    Item { Layout.fillHeight: true }
                }
            }

            BasicCheckBox {
                Layout.fillWidth: true
                text: Strings.text("UI_APP_MARKING_MENU_LOCK_MODEL")
                onToggled: {
                    DemoShell.commandActivity.setGroupEnabled("model", !checked)
                    DemoShell.commandActivity.setGroupEnabled("edit", !checked)
                }
            }

            Text {
                Layout.fillWidth: true
                Layout.leftMargin: 6
                wrapMode: Text.WordWrap
                text: Strings.text("UI_APP_MARKING_MENU_LOCK_MODEL_HINT")
                color: BasicConstants.colors.textSecondary
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.small
            }

            Item { Layout.fillHeight: true }
        }
    }
}
