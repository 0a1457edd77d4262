import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// A combo box whose open list can be searched: what is typed in the field above the list keeps
// the items holding every word of it, best matches first. Up and Down move through the list,
// Enter takes the highlighted item, Escape clears the search and then closes. model and
// textRole are those of any combo box; currentIndex is a row of model.
BasicComboBox {
    id: control

    // The list as the search shows it (for a caller that wants to know what was found).
    readonly property ComboBoxProxyModel searchModel: proxy

    function choose(row) {
        const sourceRow = proxy.sourceRow(row)
        if (sourceRow < 0)
            return
        control.currentIndex = sourceRow
        control.activated(sourceRow)
        control.popup.close()
    }

    textRole: "display"

    ComboBoxProxyModel {
        id: proxy
        sourceModel: control.model
        textRole: control.textRole
        searchText: search.text
    }

    popup: Controls.Popup {
        y: control.height + 2
        width: Math.max(control.width, 220)
        padding: 4
        onOpened: {
            search.clear()
            list.currentIndex = proxy.rowOfSource(control.currentIndex)
            search.forceActiveFocus()
        }

        background: Rectangle {
            color: BasicConstants.colors.panel
            border.color: BasicConstants.colors.border
            radius: BasicConstants.sizes.radius
        }

        contentItem: Column {
            spacing: 4

            SearchField {
                id: search
                objectName: "comboSearch"
                width: parent.width
                Keys.onDownPressed: list.incrementCurrentIndex()
                Keys.onUpPressed: list.decrementCurrentIndex()
                Keys.onReturnPressed: control.choose(Math.max(list.currentIndex, 0))
                Keys.onEnterPressed: control.choose(Math.max(list.currentIndex, 0))
                onTextChanged: list.currentIndex = 0
                onEscapedEmpty: control.popup.close()
            }

            ListView {
                id: list
                objectName: "comboList"
                width: parent.width
                height: Math.min(contentHeight, 8 * BasicConstants.sizes.rowHeight)
                clip: true
                model: proxy
                highlightMoveDuration: 0
                boundsBehavior: Flickable.StopAtBounds

                delegate: Rectangle {
                    id: row
                    required property int index
                    required property string itemText

                    width: ListView.view.width
                    height: BasicConstants.sizes.rowHeight
                    color: row.ListView.isCurrentItem ? BasicConstants.colors.selection : "transparent"

                    BasicLabel {
                        anchors.fill: parent
                        anchors.leftMargin: 6
                        verticalAlignment: Text.AlignVCenter
                        elide: Text.ElideRight
                        text: row.itemText
                    }
                }

                // The pointer over the whole list (in the list's content, so in content
                // coordinates): it highlights the row under it, a click takes it.
                MouseArea {
                    anchors.fill: parent
                    z: 1
                    hoverEnabled: true
                    onPositionChanged: mouse => {
                        const row = list.indexAt(mouse.x, mouse.y)
                        if (row >= 0)
                            list.currentIndex = row
                    }
                    onClicked: mouse => {
                        const row = list.indexAt(mouse.x, mouse.y)
                        if (row >= 0)
                            control.choose(row)
                    }
                }
            }

            BasicLabel {
                visible: proxy.count === 0
                leftPadding: 6
                color: BasicConstants.colors.textSecondary
                text: Strings.text("UI_COMMON_NO_MATCHES")
            }
        }
    }
}
