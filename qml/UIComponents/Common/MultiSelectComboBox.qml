import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// A combo box for choosing several items: the open list has a search field, a "select all" box
// that acts on the items the search shows (checked, unchecked or partly checked), and a check
// box per item. The closed box names the choice: none, all, the items themselves when they are
// few, else how many. Items are told apart by keyRole; selectedKeys lists the chosen ones in the
// model's order.
Item {
    id: control

    property var model
    property string textRole: "display"
    property string keyRole: "display"
    // At most this many chosen items are named in the closed box.
    property int namedItems: 2
    readonly property SelectionModel selection: selectionModel
    readonly property alias popup: popup
    readonly property alias selectedKeys: selectionModel.selectedKeys
    readonly property string summary: {
        if (selectionModel.count === 0)
            return Strings.text("UI_COMMON_NONE_SELECTED")
        if (selectionModel.checkState === Qt.Checked)
            return Strings.text("UI_COMMON_ALL_SELECTED")
        if (selectionModel.count <= control.namedItems)
            return control.namedSummary()
        return Strings.text("UI_COMMON_N_SELECTED").arg(selectionModel.count)
    }

    function namedSummary() {
        const texts = selectionModel.selectedTexts(control.textRole)
        let summary = ""
        for (let i = 0; i < texts.length; ++i)
            summary += (i > 0 ? ", " : "") + texts[i]
        return summary
    }

    implicitWidth: 200
    implicitHeight: BasicConstants.sizes.controlHeight

    SelectionModel {
        id: selectionModel
        model: control.model
        keyRole: control.keyRole
    }

    FilterItemsProxyModel {
        id: items
        sourceModel: control.model
        textRole: control.textRole
        selectionModel: selectionModel
        searchText: search.text
    }

    Rectangle {
        id: box
        anchors.fill: parent
        radius: BasicConstants.sizes.radius
        color: boxArea.containsMouse ? BasicConstants.colors.hover : BasicConstants.colors.panel
        border.color: popup.visible ? BasicConstants.colors.accent : BasicConstants.colors.border

        BasicLabel {
            objectName: "summary"
            anchors.fill: parent
            anchors.leftMargin: 6
            anchors.rightMargin: 20
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            text: control.summary
        }

        Text {
            anchors.right: parent.right
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            text: "\u25be"
            color: BasicConstants.colors.textSecondary
        }

        MouseArea {
            id: boxArea
            anchors.fill: parent
            hoverEnabled: true
            onClicked: popup.visible ? popup.close() : popup.open()
        }
    }

    Controls.Popup {
        id: popup
        y: control.height + 2
        width: Math.max(control.width, 220)
        padding: 4
        onOpened: {
            search.clear()
            search.forceActiveFocus()
        }

        background: Rectangle {
            color: BasicConstants.colors.panel
            border.color: BasicConstants.colors.border
            radius: BasicConstants.sizes.radius
        }

        contentItem: Column {
            spacing: 2

            SearchField {
                id: search
                width: parent.width
                onEscapedEmpty: popup.close()
            }

            BasicCheckBox {
                id: selectAll
                objectName: "selectAll"
                width: parent.width
                enabled: items.count > 0
                tristate: true
                text: Strings.text("UI_COMMON_SELECT_ALL")
                checkState: items.checkState
                // The box shows the state of the items; a click decides, the binding stays.
                nextCheckState: function() {
                    items.setAllSelected(items.checkState !== Qt.Checked)
                    return items.checkState
                }
            }

            ListView {
                id: list
                objectName: "multiSelectList"
                width: parent.width
                height: Math.min(contentHeight, 8 * BasicConstants.sizes.rowHeight)
                clip: true
                model: items
                boundsBehavior: Flickable.StopAtBounds

                delegate: BasicCheckBox {
                    id: itemBox
                    required property int index
                    required property string itemText
                    required property bool selected
                    // Written back: the list's "selected" role is the selection model's.
                    required property var model

                    width: ListView.view.width
                    text: itemBox.itemText
                    checked: itemBox.selected
                    onToggled: itemBox.model.selected = itemBox.checked
                }
            }

            BasicLabel {
                visible: items.count === 0
                leftPadding: 6
                color: BasicConstants.colors.textSecondary
                text: Strings.text("UI_COMMON_NO_MATCHES")
            }
        }
    }
}
