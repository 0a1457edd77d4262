import QtQuick
import QtQuick.Controls.Basic
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The notification centre over the application's window: a panel in the top right corner with
// every recent message, narrowed by severity buttons, and toasts in the bottom right corner for
// new messages. Lay it over the whole view; only the panel and the toasts take the pointer.
// Messages seen in the open centre count as read once it closes.
Notifications_Cpp {
    id: centre

    property bool centreOpen: false
    // Room kept free at the top, for a header or toolbar of the view underneath.
    property int topMargin: BasicConstants.sizes.margin

    function openCentre() {
        centre.centreOpen = true
    }

    function closeCentre() {
        if (!centre.centreOpen)
            return
        centre.centreOpen = false
        centre.notificationsModel.markAllRead()
    }

    function toggleCentre() {
        if (centre.centreOpen)
            centre.closeCentre()
        else
            centre.openCentre()
    }

    QtObject {
        id: d
        readonly property int panelWidth: 380
        readonly property int toastWidth: 340
    }

    Rectangle {
        id: panel
        objectName: "notificationCentre"
        visible: centre.centreOpen
        anchors.right: parent.right
        anchors.rightMargin: BasicConstants.sizes.margin
        y: centre.topMargin
        width: d.panelWidth
        height: Math.min(parent.height - centre.topMargin - BasicConstants.sizes.margin, 520)
        radius: 6
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.border

        // The panel keeps the pointer from the view underneath.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            onWheel: wheel => wheel.accepted = true
        }

        Item {
            id: heading
            x: BasicConstants.sizes.margin
            y: BasicConstants.sizes.margin
            width: parent.width - 2 * BasicConstants.sizes.margin
            height: BasicConstants.sizes.controlHeight

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: Strings.text("UI_NOTIFICATIONS_TITLE")
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.large
                font.bold: true
                color: BasicConstants.colors.text
            }

            BasicButton {
                objectName: "clearAllNotifications"
                anchors.right: parent.right
                text: Strings.text("UI_NOTIFICATIONS_CLEAR_ALL")
                enabled: centre.notificationsModel.count > 0
                onClicked: centre.notificationsModel.clearAll()
            }
        }

        Row {
            id: severityButtons
            x: BasicConstants.sizes.margin
            anchors.top: heading.bottom
            anchors.topMargin: BasicConstants.sizes.spacing
            spacing: BasicConstants.sizes.spacing

            Repeater {
                model: centre.severityButtons.buttons
                delegate: SeverityFilterButton {
                    onToggledSeverity: severity => centre.severityButtons.toggle(severity)
                }
            }
        }

        ListView {
            id: list
            objectName: "notificationList"
            x: BasicConstants.sizes.margin
            anchors.top: severityButtons.bottom
            anchors.topMargin: BasicConstants.sizes.spacing
            anchors.bottom: parent.bottom
            anchors.bottomMargin: BasicConstants.sizes.margin
            width: parent.width - 2 * BasicConstants.sizes.margin
            clip: true
            spacing: BasicConstants.sizes.spacing
            model: centre.filteredNotifications
            delegate: NotificationItem {
                width: ListView.view.width
                onActionChosen: (notificationId, key) => centre.activate(notificationId, key)
                onClosed: row => centre.notificationsModel.remove(centre.filteredNotifications.sourceRow(row))
            }

            Text {
                anchors.centerIn: parent
                visible: centre.filteredNotifications.count === 0
                text: Strings.text("UI_NOTIFICATIONS_EMPTY")
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                color: BasicConstants.colors.textSecondary
            }
        }
    }

    // New messages for a few seconds while the centre is closed, the newest by the corner.
    ListView {
        id: toastList
        objectName: "notificationToasts"
        visible: !centre.centreOpen
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: BasicConstants.sizes.margin * 2
        width: d.toastWidth
        height: Math.min(toastList.contentHeight, parent.height / 2)
        interactive: false
        verticalLayoutDirection: ListView.BottomToTop
        spacing: BasicConstants.sizes.spacing
        model: centre.toasts
        delegate: NotificationItem {
            width: ListView.view.width
            onActionChosen: (notificationId, key) => centre.activate(notificationId, key)
            onClosed: row => centre.notificationsModel.dismissToast(centre.toasts.sourceRow(row))
        }
    }
}
