import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The guided tour's tip: a card beside the item the current step explains, with an arrow to it
// and a frame around it, and Back, Next and Skip. Lay it over the whole window; only the card
// takes the pointer. The tour starts by itself once autoStart holds (and a short while after, so
// that the window has laid out its items), unless the user finished or skipped it before.
TutorialToolTip_Cpp {
    id: root

    // Start the tour when this turns true (the host's workspace is showing).
    property bool autoStart: true

    tipSize: Qt.size(card.width, card.height)
    visible: root.tour.running

    onAutoStartChanged: if (root.autoStart) startDelay.restart()
    Component.onCompleted: if (root.autoStart) startDelay.restart()

    QtObject {
        id: d
        readonly property int cardWidth: 320
        readonly property int padding: 14
        readonly property int arrowSize: 14
        readonly property int highlightGap: 3
        // Long enough for the window to lay out its panels after it is shown.
        readonly property int startDelay: 800

        // The middle of the arrow's square: on the card's side that faces the item, as near the
        // item's middle as the card's rounded corners allow.
        function arrowCentre() {
            const tip = root.tipRect
            const point = root.arrowPoint
            const inset = d.arrowSize
            const clampY = Math.max(tip.top + inset, Math.min(point.y, tip.bottom - inset))
            const clampX = Math.max(tip.left + inset, Math.min(point.x, tip.right - inset))
            switch (root.placement) {
            case TutorialToolTip_Cpp.Left:
                return Qt.point(tip.right, clampY)
            case TutorialToolTip_Cpp.Below:
                return Qt.point(clampX, tip.top)
            case TutorialToolTip_Cpp.Above:
                return Qt.point(clampX, tip.bottom)
            default:
                return Qt.point(tip.left, clampY)
            }
        }
    }

    Timer {
        id: startDelay
        interval: d.startDelay
        onTriggered: if (root.autoStart) root.tour.start()
    }

    Rectangle {
        objectName: "tutorialHighlight"
        x: root.targetRect.x - d.highlightGap
        y: root.targetRect.y - d.highlightGap
        width: root.targetRect.width + 2 * d.highlightGap
        height: root.targetRect.height + 2 * d.highlightGap
        radius: BasicConstants.sizes.radius
        color: "transparent"
        border.color: BasicConstants.colors.accent
        border.width: 2
    }

    Rectangle {
        id: arrow
        readonly property point centre: d.arrowCentre()
        width: d.arrowSize
        height: d.arrowSize
        x: arrow.centre.x - width / 2
        y: arrow.centre.y - height / 2
        rotation: 45
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.accent
    }

    Rectangle {
        id: card
        objectName: "tutorialTip"
        x: root.tipRect.x
        y: root.tipRect.y
        width: d.cardWidth
        height: content.implicitHeight + 2 * d.padding
        radius: BasicConstants.sizes.radius
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.accent

        // The card keeps the pointer from what is underneath.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }

        Column {
            id: content
            x: d.padding
            y: d.padding
            width: parent.width - 2 * d.padding
            spacing: BasicConstants.sizes.spacing

            Text {
                objectName: "tutorialProgress"
                text: Strings.text("UI_TUTORIAL_PROGRESS").arg(root.tour.currentIndex + 1).arg(root.tour.count)
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.small
                color: BasicConstants.colors.textSecondary
            }
            Text {
                objectName: "tutorialTitle"
                width: parent.width
                text: root.tour.title
                wrapMode: Text.WordWrap
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.large
                font.bold: true
                color: BasicConstants.colors.text
            }
            Text {
                objectName: "tutorialText"
                width: parent.width
                text: root.tour.text
                wrapMode: Text.WordWrap
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: BasicConstants.colors.text
            }
            Item {
                width: parent.width
                height: buttons.implicitHeight

                BasicButton {
                    objectName: "tutorialSkip"
                    anchors.left: parent.left
                    text: Strings.text("UI_TUTORIAL_SKIP")
                    flat: true
                    onClicked: root.tour.skip()
                }
                Row {
                    id: buttons
                    anchors.right: parent.right
                    spacing: BasicConstants.sizes.spacing
                    BasicButton {
                        objectName: "tutorialBack"
                        text: Strings.text("UI_TUTORIAL_BACK")
                        enabled: !root.tour.isFirst
                        onClicked: root.tour.back()
                    }
                    BasicButton {
                        objectName: "tutorialNext"
                        text: Strings.text(root.tour.isLast ? "UI_TUTORIAL_DONE" : "UI_TUTORIAL_NEXT")
                        onClicked: root.tour.next()
                    }
                }
            }
        }
    }
}
