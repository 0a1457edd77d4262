import QtQuick
import Qml.QtComponents
import BasicComponents.Constants

// A message of the centre or a toast, bound to the notification roles. Its action buttons run
// the action through the centre; the close text removes it (or, on a toast, only the toast).
NotificationItem_UI {
    id: row

    required property int index
    required property int notificationId
    required property int severity
    required property string title
    required property string message
    required property string timeText
    required property bool read
    required property var actions

    // The action the user chose, by key.
    signal actionChosen(int notificationId, string key)
    // The user closed the message.
    signal closed(int index)

    titleText: row.title
    messageText: row.message
    timeText: row.timeText
    closeText: Strings.text("UI_NOTIFICATIONS_CLOSE")
    unread: !row.read
    severityColor: row.severity === NotificationsModel.Error ? BasicConstants.colors.error
                 : row.severity === NotificationsModel.Warning ? BasicConstants.colors.warning
                 : row.severity === NotificationsModel.Success ? BasicConstants.colors.success
                 : BasicConstants.colors.accent

    Connections {
        target: row.closeArea
        function onClicked() { row.closed(row.index) }
    }

    Repeater {
        parent: row.actionsRow
        model: row.actions
        delegate: NotificationActionButton {
            onChosen: key => row.actionChosen(row.notificationId, key)
        }
    }
}
