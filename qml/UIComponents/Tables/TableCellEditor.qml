import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The editor opened over a cell: a text field for texts and numbers (numbers may be expressions
// with units, as in every numeric input), a list for named values, list choices and colours.
// It writes through the table model; the table confirms each accepted edit, as the host expects
// one update per edit. When it is done it lets go of the keys.
Item {
    id: editor
    property TableContentFilterModel table: null
    property TableContentModel contentModel: null // for the colours' names
    property int row: -1
    property int column: -1
    property bool newRow: false
    property string initialText: ""
    property int contentType: TableContentModel.Unknown
    property var names: []
    property var choices: []
    readonly property bool usesList: !editor.newRow && editor.choices.length > 0
    // Why the text typed so far is no value of the cell, as a numeric input says it ("kN is a
    // force; this field takes a length"); empty while it is one.
    readonly property string refusal: editor.visible && !editor.usesList && editor.table !== null
                                      && field.text !== editor.initialText
                                      ? editor.table.typedTextRefusal(editor.modelIndex(), field.text) : ""
    signal finished(bool accepted)

    function modelIndex() { return editor.table.index(editor.row, editor.column) }
    function roleData(role) { return editor.table.data(editor.modelIndex(), role) }

    // typed: the text of the key that opened the editor (the edit starts with it), or undefined
    // to edit the value the cell holds.
    function open(row, column, newRow, typed) {
        editor.row = row
        editor.column = column
        editor.newRow = newRow
        editor.contentType = editor.roleData(TableContentModel.ContentTypeRole) ?? TableContentModel.Unknown
        editor.names = editor.roleData(TableContentModel.ParametersNamesRole) ?? []
        editor.choices = editor.names.length > 0 ? editor.names : (editor.roleData(TableContentModel.AllValuesRole) ?? [])
        editor.initialText = editor.roleData(TableContentFilterModel.EditTextRole) ?? ""
        editor.visible = true
        if (editor.usesList) {
            combo.currentIndex = Math.max(0, combo.indexOfValue(String(editor.roleData(TableContentModel.ContentRole))))
            combo.forceActiveFocus()
            combo.popup.open()
            return
        }
        if (typed !== undefined) {
            field.text = typed
            field.cursorPosition = typed.length
        } else {
            field.text = editor.newRow ? String(editor.roleData(TableContentModel.ContentRole) ?? "") : editor.initialText
            field.selectAll()
        }
        field.forceActiveFocus()
    }

    function close(accepted) {
        if (!editor.visible)
            return
        editor.visible = false
        field.focus = false
        combo.focus = false
        editor.finished(accepted)
    }

    function commitText() {
        if (!editor.visible)
            return
        // Refused text stays, marked and with its reason, until the user mends or drops it.
        if (editor.refusal.length > 0)
            return
        editor.table.setData(editor.modelIndex(), field.text, TableContentModel.ContentRole)
        editor.close(true)
    }

    function commitChoice(index) {
        if (editor.names.length > 0)
            editor.table.setData(editor.modelIndex(), index, TableContentModel.ParameterIndexRole)
        else
            editor.table.setData(editor.modelIndex(), editor.choices[index], TableContentModel.ContentRole)
        editor.close(true)
    }

    BasicTextField {
        id: field
        objectName: "cellEditorField"
        visible: !editor.usesList
        anchors.fill: parent
        horizontalAlignment: editor.contentType === TableContentModel.Integer || editor.contentType === TableContentModel.Real
                             ? TextInput.AlignRight : TextInput.AlignLeft
        invalid: editor.refusal.length > 0
        Keys.onReturnPressed: editor.commitText()
        Keys.onEnterPressed: editor.commitText()
        Keys.onTabPressed: editor.commitText()
        Keys.onEscapePressed: editor.close(false)
        onActiveFocusChanged: if (!activeFocus && editor.visible && !editor.usesList) editor.commitText()
    }

    // The reason under the cell, over the rows below it, like a tool tip: a table row cannot grow.
    Rectangle {
        objectName: "cellEditorMessage"
        visible: editor.refusal.length > 0
        anchors { top: field.bottom; left: field.left }
        width: Math.max(field.width, refusalText.implicitWidth + 12)
        height: refusalText.implicitHeight + 6
        z: 1
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.error
        Text {
            id: refusalText
            objectName: "cellEditorMessageText"
            anchors.centerIn: parent
            text: editor.refusal
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            color: BasicConstants.colors.error
        }
    }

    BasicComboBox {
        id: combo
        visible: editor.usesList
        anchors.fill: parent
        // Each choice carries what its line shows: the delegate is a component of its own.
        model: editor.choices.map((value, index) => ({
            value: value,
            swatch: editor.contentType === TableContentModel.Color,
            label: editor.contentType === TableContentModel.Color && editor.contentModel
                   ? Strings.text(editor.contentModel.getColorLcid(index)) : String(value)
        }))
        textRole: "value"
        valueRole: "value"
        delegate: Controls.ItemDelegate {
            id: choice
            required property var modelData
            width: choice.ListView.view ? choice.ListView.view.width : implicitWidth
            contentItem: Row {
                spacing: 6
                Rectangle {
                    visible: choice.modelData.swatch
                    width: 24; height: 14; radius: 2
                    anchors.verticalCenter: parent.verticalCenter
                    color: visible ? choice.modelData.value : BasicConstants.colors.panel
                    border.color: BasicConstants.colors.border
                }
                Text {
                    text: choice.modelData.label
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.normal
                }
            }
        }
        onActivated: index => editor.commitChoice(index)
        popup.onClosed: editor.close(false)
    }
}
