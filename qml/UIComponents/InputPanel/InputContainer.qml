import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import BasicComponents.Constants

// One foldable container of the input panel: its header, and while unfolded the group's
// fields, each a line with its label and value.
ColumnLayout {
    id: container

    required property int index
    required property string title
    required property bool folded
    required property var fields

    // The header was clicked: the holder folds or unfolds the container.
    signal foldRequested(int row, bool folded)

    spacing: 2

    InputContainerHeader_UI {
        Layout.fillWidth: true
        titleText: container.title
        folded: container.folded

        MouseArea {
            anchors.fill: parent
            onClicked: container.foldRequested(container.index, !container.folded)
        }
    }

    Repeater {
        model: container.folded ? [] : container.fields
        delegate: RowLayout {
            id: field
            required property var modelData
            Layout.fillWidth: true
            Layout.leftMargin: 8
            spacing: 8

            Text {
                Layout.preferredWidth: 90
                text: field.modelData.label
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: BasicConstants.colors.textSecondary
            }
            Text {
                Layout.fillWidth: true
                text: field.modelData.kind === InputPanelContainerModel.ChoiceField
                      ? field.modelData.choices[field.modelData.choice]
                      : field.modelData.kind === InputPanelContainerModel.NumberField
                        ? field.modelData.number + " " + field.modelData.unit : ""
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: BasicConstants.colors.text
            }
        }
    }
}
