import QtQuick
import QtQuick.Controls.Basic as Controls
import QtQuick.Layouts
import QtQuick.Templates as T
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import Orvo.QtExtensions

// Asks for the file of a file command that ran without one (Open, Save as, the first Save) and
// runs the command again with it. A path typed by hand: the demo does without a file dialog.
Controls.Dialog {
    id: prompt
    objectName: "filePrompt"

    // Whether the file is to be written (Save as) or read (Open).
    property bool saving: false
    // Runs the command on the path the user accepted.
    signal fileChosen(string path, bool saving)

    function ask(save, suggestedPath) {
        prompt.saving = save
        pathField.text = suggestedPath
        prompt.open()
        pathField.forceActiveFocus()
        pathField.selectAll()
    }

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(560, parent ? parent.width - 40 : 560)
    modal: true
    closePolicy: Controls.Popup.CloseOnEscape
    title: Strings.text(prompt.saving ? "UI_APP_FILE_SAVE_TITLE" : "UI_APP_FILE_OPEN_TITLE")
    onAccepted: prompt.fileChosen(pathField.text, prompt.saving)

    MessageBoxTracker {
        shown: prompt.visible
    }

    background: Rectangle {
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.border
        radius: BasicConstants.sizes.radius
    }

    header: Rectangle {
        implicitHeight: BasicConstants.sizes.controlHeight + 6
        color: BasicConstants.colors.panelHeader
        radius: BasicConstants.sizes.radius
        Text {
            anchors { fill: parent; leftMargin: BasicConstants.sizes.margin + 4 }
            verticalAlignment: Text.AlignVCenter
            text: prompt.title
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.large
            font.bold: true
            color: BasicConstants.colors.text
        }
    }

    contentItem: RowLayout {
        spacing: BasicConstants.sizes.margin
        BasicLabel {
            text: Strings.text("UI_APP_FILE_PATH")
        }
        BasicTextField {
            id: pathField
            objectName: "filePromptPath"
            Layout.fillWidth: true
            onAccepted: if (text.length > 0) prompt.accept()
        }
    }

    footer: Controls.DialogButtonBox {
        alignment: Qt.AlignRight
        background: null
        BasicButton {
            objectName: "filePromptAccept"
            text: Strings.text(prompt.saving ? "UI_APP_FILE_SAVE" : "UI_APP_FILE_OPEN")
            enabled: pathField.text.length > 0
            implicitWidth: Math.max(88, implicitContentWidth + leftPadding + rightPadding)
            onClicked: prompt.accept()
        }
        BasicButton {
            objectName: "filePromptCancel"
            text: Strings.text("UI_APP_FILE_CANCEL")
            implicitWidth: Math.max(88, implicitContentWidth + leftPadding + rightPadding)
            onClicked: prompt.reject()
        }
    }
}
