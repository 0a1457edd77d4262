import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import BasicComponents.Constants

// One foldable container of the input panel: its header, and while unfolded the group's
// fields, each a line with its label and editor.
ColumnLayout {
    id: container

    required property int index
    required property string title
    required property bool folded
    required property var fields
    // Where the fields' values go; the panel hands it over.
    property InputPanelContainerModel containerModel: null

    // The header was clicked: the holder folds or unfolds the container.
    signal foldRequested(int row, bool folded)

    spacing: 4

    InputContainerHeader_UI {
        objectName: "containerHeader"
        Layout.fillWidth: true
        titleText: container.title
        folded: container.folded

        MouseArea {
            anchors.fill: parent
            cursorShape: Qt.PointingHandCursor
            onClicked: container.foldRequested(container.index, !container.folded)
        }
    }

    // One editor per field, kept while the command has as many fields: a changed value updates
    // the editors in place, so that the one the user is in keeps its focus.
    Repeater {
        model: container.folded ? 0 : container.fields.length
        delegate: InputField {
            Layout.fillWidth: true
            Layout.leftMargin: BasicConstants.sizes.margin
        }
        // Wired here: a delegate sees nothing of this document.
        onItemAdded: (index, item) => {
            const field = item as InputField
            field.field = Qt.binding(() => container.fields[index] ?? ({}))
            field.containerModel = Qt.binding(() => container.containerModel)
        }
    }
}
