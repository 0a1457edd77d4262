import QtQuick
import QtQuick.Controls.Basic as Controls
import BasicComponents.Constants

// A scroll bar a person can hit: always shown, a full-width handle that darkens under the pointer.
Controls.ScrollBar {
    id: bar
    policy: Controls.ScrollBar.AlwaysOn
    minimumSize: 0.04
    padding: 2
    background: Rectangle { color: BasicConstants.colors.panel }
    contentItem: Rectangle {
        implicitWidth: 10
        implicitHeight: 10
        radius: 4
        color: bar.pressed ? BasicConstants.colors.accent
                           : bar.hovered ? BasicConstants.colors.textSecondary : BasicConstants.colors.border
    }
}
