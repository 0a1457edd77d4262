import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The editor opened over a cell: a text field for texts and numbers (numbers may be expressions),
// a list for named values, list choices and colours. It writes through the table model and
// confirms at once, as the host expects one update per accepted edit.
Item {
    id: editor
    property var table: null       // the TableContentFilterModel
    property var contentModel: null // the TableContentModel, for colour names
    property int row: -1
    property int column: -1
    property bool newRow: false
    property var initialText: ""
    signal finished(bool accepted)

    readonly property var modelIndex: table && row >= 0 ? table.index(row, column) : null
    readonly property int contentType: modelIndex ? (table.data(modelIndex, 262) ?? 0) : 0
    readonly property var names: modelIndex ? (table.data(modelIndex, 260) ?? []) : []
    readonly property var choices: {
        if (!modelIndex)
            return []
        if (names && names.length > 0)
            return names
        const all = table.data(modelIndex, 258)
        return all ? all : []
    }
    readonly property bool usesList: !newRow && choices.length > 0

    // typed: the key that opened the editor (the text starts with it), or undefined to edit the value
    function open(text, typed) {
        initialText = text
        if (usesList) {
            combo.currentIndex = Math.max(0, combo.indexOfValue(String(table.data(modelIndex, 257))))
            combo.popup.open()
        } else {
            field.invalid = false
            field.text = text
            if (typed)
                field.cursorPosition = text.length
            else
                field.selectAll()
            field.forceActiveFocus()
        }
    }

    function commitText() {
        const accepted = table.setData(modelIndex, field.text, 257)
        if (!accepted && field.text !== String(initialText))
            field.invalid = true
        else
            editor.finished(true)
    }

    function commitChoice(index) {
        if (names && names.length > 0)
            table.setData(modelIndex, index, 259)
        else
            table.setData(modelIndex, choices[index], 257)
        editor.finished(true)
    }

    BasicTextField {
        id: field
        visible: !editor.usesList
        anchors.fill: parent
        horizontalAlignment: editor.contentType === TableContentModel.Integer || editor.contentType === TableContentModel.Real
                             ? TextInput.AlignRight : TextInput.AlignLeft
        onTextEdited: invalid = false
        Keys.onReturnPressed: editor.commitText()
        Keys.onEnterPressed: editor.commitText()
        Keys.onTabPressed: editor.commitText()
        Keys.onEscapePressed: editor.finished(false)
        onActiveFocusChanged: if (!activeFocus && visible && editor.visible) editor.commitText()
    }

    BasicComboBox {
        id: combo
        visible: editor.usesList
        anchors.fill: parent
        model: editor.choices
        delegate: Controls.ItemDelegate {
            required property int index
            required property var modelData
            width: combo.width
            contentItem: Row {
                spacing: 6
                Rectangle {
                    visible: editor.contentType === TableContentModel.Color
                    width: 24; height: 14; radius: 2
                    anchors.verticalCenter: parent.verticalCenter
                    color: visible ? modelData : "transparent"
                    border.color: BasicConstants.colors.border
                }
                Text {
                    text: editor.contentType === TableContentModel.Color && editor.contentModel
                          ? Strings.text(editor.contentModel.getColorLcid(index)) : modelData
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                }
            }
        }
        onActivated: index => editor.commitChoice(index)
        popup.onClosed: if (editor.visible) editor.finished(false)
    }
}
