import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The status bar along the foot of the window: where the pointer is in the model, the view's
// scale, the object snaps (each with its shortcut), the active work plane and load case, the
// progress of the analysis and the units every value is shown in.
StatusBar_Cpp {
    id: statusBar

    // The view whose pointer and scale the bar shows.
    property int viewportId: -1

    implicitHeight: BasicConstants.sizes.controlHeight + 2

    QtObject {
        id: d
        readonly property StatusbarData data: statusBar.statusbarData
    }

    Binding {
        target: statusBar.statusbarData
        property: "viewportId"
        value: statusBar.viewportId
    }

    Rectangle {
        anchors.fill: parent
        color: BasicConstants.colors.panelHeader
        Rectangle {
            anchors { left: parent.left; right: parent.right; top: parent.top }
            height: BasicConstants.sizes.borderWidth
            color: BasicConstants.colors.border
        }
    }

    component Label: Text {
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.small
        color: BasicConstants.colors.textSecondary
        verticalAlignment: Text.AlignVCenter
    }

    component Divider: Rectangle {
        implicitWidth: BasicConstants.sizes.borderWidth
        Layout.fillHeight: true
        Layout.topMargin: 4
        Layout.bottomMargin: 4
        color: BasicConstants.colors.border
    }

    RowLayout {
        anchors { fill: parent; leftMargin: BasicConstants.sizes.margin; rightMargin: BasicConstants.sizes.margin }
        spacing: BasicConstants.sizes.spacing

        Label {
            objectName: "coordinates"
            Layout.fillWidth: true
            Layout.minimumWidth: 110
            Layout.maximumWidth: 300
            elide: Text.ElideRight
            text: d.data.coordinates.valid
                  ? "x " + d.data.coordinates.xText + "   y " + d.data.coordinates.yText + "   z "
                    + d.data.coordinates.zText + "  " + d.data.coordinates.unit
                  : Strings.text("UI_STATUSBAR_POINTER_NONE")
        }
        Divider {}
        Label {
            objectName: "scale"
            text: d.data.scale.scaleText
            ToolTip.visible: scaleArea.containsMouse && d.data.scale.pixelText !== ""
            ToolTip.text: d.data.scale.pixelText
            MouseArea { id: scaleArea; anchors.fill: parent; hoverEnabled: true }
        }
        Divider {}
        Label { text: Strings.text("UI_STATUSBAR_SNAPS") }
        Repeater {
            model: d.data.snapping.snaps
            onItemAdded: (index, item) => item.toggleRequested.connect(() => d.data.snapping.toggle(item.snapId))
            delegate: StatusBarToggle_UI {
                id: snapToggle
                required property string snapId
                required property string name
                required property string description
                required property string shortcut
                required property bool enabled
                signal toggleRequested()
                objectName: "snap_" + snapId
                text: name
                checked: snapToggle.enabled
                hovered: snapArea.containsMouse
                ToolTip.visible: snapArea.containsMouse
                ToolTip.text: snapToggle.description + "  (" + snapToggle.shortcut + ")"
                ToolTip.delay: 500
                MouseArea {
                    id: snapArea
                    anchors.fill: parent
                    hoverEnabled: true
                    onClicked: snapToggle.toggleRequested()
                }
                Shortcut {
                    sequence: snapToggle.shortcut
                    context: Qt.ApplicationShortcut
                    onActivated: snapToggle.toggleRequested()
                }
            }
        }
        Divider {}
        BasicComboBox {
            objectName: "workPlane"
            Layout.fillWidth: true
            Layout.minimumWidth: 80
            Layout.maximumWidth: 150
            Layout.preferredHeight: BasicConstants.sizes.rowHeight - 2
            font.pixelSize: BasicConstants.fonts.small
            model: d.data.masterEntity.workPlanes
            currentIndex: d.data.masterEntity.currentWorkPlane
            onActivated: index => d.data.masterEntity.currentWorkPlane = index
            ToolTip.visible: hovered
            ToolTip.text: Strings.text("UI_STATUSBAR_WORK_PLANE_TOOLTIP")
            ToolTip.delay: 500
        }
        BasicComboBox {
            objectName: "loadCase"
            Layout.fillWidth: true
            Layout.minimumWidth: 80
            Layout.maximumWidth: 150
            Layout.preferredHeight: BasicConstants.sizes.rowHeight - 2
            font.pixelSize: BasicConstants.fonts.small
            enabled: d.data.masterEntity.loadCases.length > 0
            model: d.data.masterEntity.loadCases.length > 0 ? d.data.masterEntity.loadCases
                                                            : [Strings.text("UI_STATUSBAR_NO_LOAD_CASE")]
            currentIndex: Math.max(0, d.data.masterEntity.currentLoadCase)
            onActivated: index => d.data.masterEntity.currentLoadCase = index
            ToolTip.visible: hovered
            ToolTip.text: Strings.text("UI_STATUSBAR_LOAD_CASE_TOOLTIP")
            ToolTip.delay: 500
        }

        Item { Layout.fillWidth: true; Layout.minimumWidth: 0 }

        RowLayout {
            objectName: "progress"
            visible: d.data.busy
            spacing: BasicConstants.sizes.spacing
            Label { text: d.data.progressText }
            ProgressBar {
                Layout.preferredWidth: 120
                from: 0
                to: 1
                value: d.data.progress
            }
            StatusBarToggle_UI {
                text: Strings.text("UI_STATUSBAR_CANCEL")
                hovered: cancelArea.containsMouse
                MouseArea { id: cancelArea; anchors.fill: parent; hoverEnabled: true; onClicked: d.data.cancel() }
            }
            Divider {}
        }

        StatusBarToggle_UI {
            id: unitsButton
            objectName: "unitsButton"
            text: d.data.units.summary
            checked: unitsPopup.opened
            hovered: unitsArea.containsMouse
            ToolTip.visible: unitsArea.containsMouse && !unitsPopup.opened
            ToolTip.text: Strings.text("UI_STATUSBAR_UNITS_TOOLTIP")
            ToolTip.delay: 500
            MouseArea { id: unitsArea; anchors.fill: parent; hoverEnabled: true; onClicked: unitsPopup.open() }
            UnitsPopup {
                id: unitsPopup
                objectName: "unitsPopup"
                units: d.data.units
                y: -height - 4
                x: unitsButton.width - width
            }
        }
    }
}
