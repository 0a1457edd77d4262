import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Common

// One input of the running command, a line with its label and its editor: a number field that
// takes expressions with units, a list as a searchable combo box, or the picked objects as tags
// that the user removes one by one. What the user enters goes to the command, which may refuse
// it; the field then shows the command's value again.
Item {
    id: root

    // The field as the container model describes it (inputId, label, kind, number, unit,
    // choices, choice).
    property var field: ({})
    // Where the values go and where the picked objects come from.
    property InputPanelContainerModel containerModel: null
    // Reserved for the labels, so that the fields of a container line up.
    property real labelWidth: 80

    readonly property int kind: root.field.kind === undefined ? -1 : root.field.kind
    readonly property string inputId: root.field.inputId === undefined ? "" : root.field.inputId

    // A plain row, not a layout: the tags wrap at the width they get and grow downwards, and
    // the field grows with them.
    implicitWidth: root.labelWidth + BasicConstants.sizes.spacing + editor.implicitWidth
    implicitHeight: Math.max(label.implicitHeight, editor.height)

    QtObject {
        id: d
        readonly property real commandNumber: root.field.number === undefined ? NaN : root.field.number
        readonly property int commandChoice: root.field.choice === undefined ? -1 : root.field.choice
        readonly property TagModel tags: root.kind === InputPanelContainerModel.ObjectsField && root.containerModel
                                         ? root.containerModel.tags(root.inputId) : null

        function wireNumber(input) {
            input.objectName = Qt.binding(() => "inputNumber_" + root.inputId)
            input.unit = Qt.binding(() => root.field.unit === undefined ? "" : root.field.unit)
            input.value = Qt.binding(() => d.commandNumber)
            input.valueAccepted.connect(number => {
                if (root.containerModel)
                    root.containerModel.setNumber(root.inputId, number)
                // The field stored the number itself: the command's value, accepted or not,
                // is what it shows from now on.
                input.value = Qt.binding(() => d.commandNumber)
            })
        }

        function wireChoice(combo) {
            combo.objectName = Qt.binding(() => "inputChoice_" + root.inputId)
            const choices = combo.model as SimpleComboBoxProxyModel
            choices.items = Qt.binding(() => root.field.choices === undefined ? [] : root.field.choices)
            combo.currentIndex = Qt.binding(() => d.commandChoice)
            combo.activated.connect(index => {
                if (root.containerModel)
                    root.containerModel.setChoice(root.inputId, index)
                // Choosing set the box's own index; the command's choice wins from now on.
                combo.currentIndex = Qt.binding(() => d.commandChoice)
            })
        }

        function wireTags(tags) {
            tags.objectName = Qt.binding(() => "inputTags_" + root.inputId)
            tags.tags = Qt.binding(() => d.tags)
        }
    }

    BasicLabel {
        id: label
        width: root.labelWidth
        topPadding: 5
        elide: Text.ElideRight
        text: root.field.label === undefined ? "" : root.field.label
        color: BasicConstants.colors.textSecondary
    }

    // The editor of the field's kind, the only one made; it is wired here, as a component made
    // elsewhere sees nothing of this document.
    Loader {
        id: editor
        anchors { left: label.right; leftMargin: BasicConstants.sizes.spacing; right: parent.right }
        height: editor.item ? (editor.item as Item).implicitHeight : 0
        sourceComponent: root.kind === InputPanelContainerModel.NumberField ? numberEditor
                       : root.kind === InputPanelContainerModel.ChoiceField ? choiceEditor
                       : root.kind === InputPanelContainerModel.ObjectsField ? tagsEditor : null
        onLoaded: {
            if (root.kind === InputPanelContainerModel.NumberField)
                d.wireNumber(item as NumericInput)
            else if (root.kind === InputPanelContainerModel.ChoiceField)
                d.wireChoice(item as SearchableComboBox)
            else
                d.wireTags(item as InputTags)
        }
    }

    Component {
        id: numberEditor
        NumericInput {
            unitMinimumWidth: 24
        }
    }

    Component {
        id: choiceEditor
        SearchableComboBox {
            model: SimpleComboBoxProxyModel {}
        }
    }

    Component {
        id: tagsEditor
        InputTags {}
    }
}
