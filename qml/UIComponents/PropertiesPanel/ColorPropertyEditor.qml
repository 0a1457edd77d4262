import QtQuick
import QtQuick.Controls.Basic as Controls
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// Colour properties: a swatch with the colour's name, and a palette with a field for any
// "#rrggbb" colour. Mixed colours show side by side in the swatch.
Item {
    id: root

    required property var rowModel
    required property var panel
    readonly property bool mixed: rowModel.mixedRole
    // The distinct colours; the list may end with action entries, which are not colours.
    readonly property var colors: rowModel.mixedValuesRole.filter(entry => typeof entry === "string")
    readonly property var palette: ["#1f6feb", "#0b3d91", "#2b3445", "#5c6678", "#a3abb8", "#ffffff",
                                    "#1a7f37", "#6cc644", "#b7791f", "#f4b400", "#d1242f", "#e8590c",
                                    "#8250df", "#bf3989", "#0e8a8a", "#000000"]

    function choose(colorName) {
        panel.setValue(colorName, rowModel.uuidRole)
        popup.close()
    }

    Controls.AbstractButton {
        id: swatchButton
        objectName: "colorEditor"
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        height: BasicConstants.sizes.controlHeight
        enabled: root.rowModel.isEditableRole
        onClicked: popup.open()

        background: Rectangle {
            radius: BasicConstants.sizes.radius
            color: swatchButton.hovered ? BasicConstants.colors.hover : BasicConstants.colors.panel
            border.color: swatchButton.activeFocus ? BasicConstants.colors.accent : BasicConstants.colors.border
        }
        contentItem: RowLayout {
            spacing: BasicConstants.sizes.spacing
            Row {
                Layout.leftMargin: 4
                Repeater {
                    // Mixed colours share the swatch's room.
                    model: root.colors.map(color => ({ color: color, width: root.colors.length > 1 ? 12 : 28 }))
                    Rectangle {
                        required property var modelData
                        width: modelData.width
                        height: 16
                        color: modelData.color
                        border.color: BasicConstants.colors.border
                    }
                }
            }
            Text {
                Layout.fillWidth: true
                text: root.mixed ? Strings.text("UI_PROPERTIES_MIXED") : root.colors.length > 0 ? root.colors[0] : ""
                elide: Text.ElideRight
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: swatchButton.enabled ? BasicConstants.colors.text : BasicConstants.colors.textDisabled
            }
        }
    }

    Controls.Popup {
        id: popup
        objectName: "colorPopup"
        y: swatchButton.height + 2
        width: 4 * 28 + 3 * 4 + 2 * padding
        padding: BasicConstants.sizes.spacing
        focus: true
        background: Rectangle {
            radius: BasicConstants.sizes.radius
            color: BasicConstants.colors.panel
            border.color: BasicConstants.colors.border
        }

        ColumnLayout {
            width: parent.width
            spacing: BasicConstants.sizes.spacing

            Grid {
                columns: 4
                spacing: 4
                Repeater {
                    model: root.palette
                    onItemAdded: (index, item) => item.chosen.connect(() => root.choose(root.palette[index]))
                    Rectangle {
                        id: paletteEntry
                        required property string modelData
                        signal chosen()
                        objectName: "paletteColor_" + modelData
                        width: 28
                        height: 20
                        radius: 2
                        color: modelData
                        border.color: paletteMouse.containsMouse ? BasicConstants.colors.accent : BasicConstants.colors.border
                        border.width: paletteMouse.containsMouse ? 2 : 1
                        MouseArea {
                            id: paletteMouse
                            anchors.fill: parent
                            hoverEnabled: true
                            onClicked: paletteEntry.chosen()
                        }
                    }
                }
            }

            BasicTextField {
                id: nameField
                Layout.fillWidth: true
                placeholderText: "#rrggbb"
                text: root.mixed ? "" : (root.colors.length > 0 ? root.colors[0] : "")
                validator: RegularExpressionValidator { regularExpression: /#[0-9a-fA-F]{6}/ }
                onAccepted: root.choose(text)
            }
        }
    }
}
