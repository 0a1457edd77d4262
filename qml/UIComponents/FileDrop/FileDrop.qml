import QtQuick
import Qml.QtComponents
import BasicComponents.Constants

// The window's file drop, laid over the whole window by the host (a Loader of this document's
// resource URL). While files are dragged over the window an overlay says what a drop would do:
// highlighted when the files hold a model the window opens, marked as refused otherwise. A drop
// hands the model to the host's Open command; other files change nothing, and the notification
// centre says why. The overlay never takes the pointer: the window works as before underneath.
DropArea {
    id: area
    objectName: "fileDrop"

    // The native half, for the host and for tests.
    readonly property FileDrop_Cpp controller: fileDrop

    // Files dragged from a file manager carry a list of URLs.
    keys: ["text/uri-list"]

    onEntered: drag => {
        fileDrop.enter(drag.urls)
        drag.accept(Qt.CopyAction)
    }
    onPositionChanged: drag => fileDrop.enter(drag.urls)
    onExited: fileDrop.leave()
    onDropped: drop => {
        if (fileDrop.drop(drop.urls))
            drop.accept(Qt.CopyAction)
    }

    FileDrop_Cpp {
        id: fileDrop
    }

    QtObject {
        id: d
        // Light enough to keep the window readable underneath.
        readonly property real veilOpacity: 0.85
        readonly property int frameWidth: 3
        readonly property int cardPadding: 24
        readonly property color tone: fileDrop.dragAcceptable ? BasicConstants.colors.accent
                                                              : BasicConstants.colors.error
    }

    Rectangle {
        id: overlay
        objectName: "fileDropOverlay"
        anchors.fill: parent
        visible: fileDrop.dragActive
        color: Qt.rgba(BasicConstants.colors.background.r, BasicConstants.colors.background.g,
                       BasicConstants.colors.background.b, d.veilOpacity)
        border.color: d.tone
        border.width: d.frameWidth

        Rectangle {
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * d.cardPadding, messageText.implicitWidth + 2 * d.cardPadding)
            height: messageText.implicitHeight + 2 * d.cardPadding
            radius: BasicConstants.sizes.radius
            color: fileDrop.dragAcceptable ? BasicConstants.colors.accentLight : BasicConstants.colors.errorLight
            border.color: d.tone

            Text {
                id: messageText
                objectName: "fileDropMessage"
                anchors.centerIn: parent
                width: Math.min(implicitWidth, parent.width - 2 * d.cardPadding)
                text: fileDrop.message
                wrapMode: Text.WordWrap
                horizontalAlignment: Text.AlignHCenter
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.large
                font.bold: true
                color: BasicConstants.colors.text
            }
        }
    }
}
