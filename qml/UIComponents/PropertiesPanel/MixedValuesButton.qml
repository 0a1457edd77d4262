import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// Lists the distinct values of a mixed property; picking one gives it to every object. Action
// entries ({ action: n }) at the end of the list run that action instead.
Controls.AbstractButton {
    id: root

    required property var rowModel
    required property var panel

    objectName: "mixedValuesButton"
    enabled: rowModel.isEditableRole
    Accessible.name: Strings.text("UI_PROPERTIES_MIXED_VALUES").arg(valueCount)
    readonly property int valueCount: rowModel.mixedValuesRole.filter(entry => !isAction(entry)).length

    function isAction(entry) {
        return entry !== null && typeof entry === "object" && "action" in entry
    }

    function entryText(entry) {
        if (isAction(entry))
            return entry.action === PropertiesModel.ResetToDefaultAction ? Strings.text("UI_PROPERTIES_RESET_TO_DEFAULT") : ""
        if (typeof entry === "boolean")
            return Strings.text(entry ? "UI_PROPERTIES_YES" : "UI_PROPERTIES_NO")
        if (typeof entry === "number") {
            const decimals = rowModel.typeRole === 2 ? 0 : rowModel.decimalsRole
            return entry.toLocaleString(Qt.locale(), 'f', decimals) + (rowModel.unitsRole.length > 0 ? " " + rowModel.unitsRole : "")
        }
        return entry.length > 0 ? String(entry) : Strings.text("UI_PROPERTIES_EMPTY_TEXT")
    }

    function pick(entry) {
        if (isAction(entry))
            panel.setValue(undefined, rowModel.uuidRole, entry.action)
        else
            panel.setValue(entry, rowModel.uuidRole)
        list.close()
    }

    onClicked: list.open()

    background: Rectangle {
        radius: BasicConstants.sizes.radius
        color: root.down ? BasicConstants.colors.accentLight : root.hovered ? BasicConstants.colors.hover : "transparent"
        border.color: root.hovered ? BasicConstants.colors.border : "transparent"
    }
    contentItem: Text {
        text: root.valueCount
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.small
        font.bold: true
        color: BasicConstants.colors.accent
    }

    Controls.ToolTip.visible: hovered && !list.visible
    Controls.ToolTip.text: Strings.text("UI_PROPERTIES_MIXED_VALUES").arg(valueCount)

    Controls.Popup {
        id: list
        objectName: "mixedValuesPopup"
        x: root.width - width
        y: root.height + 2
        width: 200
        padding: 2
        background: Rectangle {
            radius: BasicConstants.sizes.radius
            color: BasicConstants.colors.panel
            border.color: BasicConstants.colors.border
        }

        Column {
            width: parent.width
            Repeater {
                // Built when opened: every property row has this button, few are mixed. The
                // entries carry what each line shows; a click is taken up here, by position.
                model: list.visible ? root.rowModel.mixedValuesRole.map(entry => ({
                    text: root.entryText(entry),
                    isAction: root.isAction(entry),
                    swatch: root.rowModel.typeRole === 6 && !root.isAction(entry) ? entry : ""
                })) : []
                onItemAdded: (index, item) => item.clicked.connect(() => root.pick(root.rowModel.mixedValuesRole[index]))

                Controls.ItemDelegate {
                    id: entryItem
                    required property var modelData
                    required property int index
                    objectName: "mixedValue_" + index
                    width: parent.width
                    height: BasicConstants.sizes.rowHeight
                    leftPadding: BasicConstants.sizes.margin
                    rightPadding: BasicConstants.sizes.margin
                    topPadding: 0
                    bottomPadding: 0
                    text: modelData.text
                    contentItem: Text {
                        text: entryItem.text
                        verticalAlignment: Text.AlignVCenter
                        elide: Text.ElideRight
                        font.family: BasicConstants.fonts.family
                        font.pixelSize: BasicConstants.fonts.normal
                        font.italic: entryItem.modelData.isAction
                        color: BasicConstants.colors.text
                    }

                    Rectangle {
                        visible: entryItem.modelData.swatch.length > 0
                        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
                        width: 24
                        height: 14
                        color: visible ? entryItem.modelData.swatch : "transparent"
                        border.color: BasicConstants.colors.border
                    }
                    Rectangle {
                        visible: entryItem.modelData.isAction
                        anchors { left: parent.left; right: parent.right; top: parent.top }
                        height: 1
                        color: BasicConstants.colors.border
                    }
                }
            }
        }
    }
}
