import QtQuick
import QtQuick.Controls.Basic as Controls
import QtQuick.Templates as T
import BasicComponents.Constants
import Orvo.QtExtensions

// The application's message box: modal, centred in its window, closed by its button (or by one of
// two, for a question: acceptText and rejectText) or by Escape. While it is open the host knows
// that a message box is shown, and components that answer keys elsewhere (keyboard shortcuts) hold
// still until it is closed. Buttons are as wide as their texts need.
Controls.Dialog {
    id: box
    property alias text: message.text
    property string acceptText: "OK"
    // A second button, for a question; none while empty.
    property string rejectText: ""

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(420, parent ? parent.width - 40 : 420)
    modal: true
    closePolicy: Controls.Popup.CloseOnEscape
    font.family: BasicConstants.fonts.family
    font.pixelSize: BasicConstants.fonts.normal

    MessageBoxTracker {
        shown: box.visible
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
            text: box.title
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.large
            font.bold: true
            color: BasicConstants.colors.text
            elide: Text.ElideRight
        }
    }

    contentItem: Text {
        id: message
        wrapMode: Text.WordWrap
        font.family: BasicConstants.fonts.family
        font.pixelSize: BasicConstants.fonts.normal
        color: BasicConstants.colors.text
    }

    footer: Controls.DialogButtonBox {
        alignment: Qt.AlignRight
        background: null
        BasicButton {
            objectName: "messageBoxAccept"
            text: box.acceptText
            implicitWidth: Math.max(88, implicitContentWidth + leftPadding + rightPadding)
            // Closed by the button itself rather than through a button role: the roles' enumeration
            // lives in a Qt class that QML tools cannot see.
            onClicked: box.accept()
        }
        BasicButton {
            objectName: "messageBoxReject"
            visible: box.rejectText.length > 0
            text: box.rejectText
            implicitWidth: Math.max(88, implicitContentWidth + leftPadding + rightPadding)
            onClicked: box.reject()
        }
    }
}
