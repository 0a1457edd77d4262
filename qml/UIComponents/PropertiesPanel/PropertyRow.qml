import QtQuick
import Qml.QtComponents

// One property with the editor of its type. A mixed value offers its distinct values to pick
// from; a modified one offers a reset. Hovering explains the property with its illustration.
PropertyRow_UI {
    id: root

    required property var rowModel
    required property var panel
    readonly property int valueType: rowModel.typeRole

    objectName: "propertyRow_" + rowModel.uuidRole
    name: rowModel.nameRole
    richTextName: rowModel.isNameRichTextRole
    highlightState: rowModel.highlightStateRole
    hovered: hover.containsMouse

    // Under the editor, so that it only sees the pointer where the editor does not take it.
    MouseArea {
        id: hover
        parent: root
        anchors.fill: parent
        z: -1
        hoverEnabled: true
        acceptedButtons: Qt.NoButton
        onContainsMouseChanged: if (containsMouse) root.panel.showIllustration(root.rowModel.uuidRole)
    }

    // The editor of the value's type, loaded by URL: a Loader sets an editor's required
    // properties only then.
    readonly property string editorDocument: {
        switch (valueType) {
        case 1: return "BoolPropertyEditor.qml"
        case 2:
        case 3: return "NumberPropertyEditor.qml"
        case 5: return "ListPropertyEditor.qml"
        case 6: return "ColorPropertyEditor.qml"
        default: return "TextPropertyEditor.qml"
        }
    }
    // Loaded once per document, however many of the signals below say so.
    function loadEditor() {
        if (String(editor.source) !== String(Qt.resolvedUrl(editorDocument)))
            editor.setSource(editorDocument, { rowModel: rowModel, panel: panel })
    }
    onEditorDocumentChanged: loadEditor()
    Component.onCompleted: loadEditor()

    Loader {
        id: editor
        anchors.fill: parent
        onActiveFocusChanged: if (activeFocus) root.panel.showIllustration(root.rowModel.uuidRole)
    }

    trailing: [
        MixedValuesButton {
            anchors.fill: parent
            visible: root.rowModel.mixedRole
            rowModel: root.rowModel
            panel: root.panel
        },
        ResetButton {
            anchors.fill: parent
            visible: !root.rowModel.mixedRole && root.rowModel.hasActionRole
            onClicked: root.panel.setValue(undefined, root.rowModel.uuidRole, PropertiesModel.ResetToDefaultAction)
        }
    ]
}
