import QtQuick
import Orvo.QtExtensions

// The shortcuts page's list of bindings: its rows name their commands through the page's
// command list.
ListView {
    property CommandListModel commandList
}
