import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents

// A line of column cells (titles or filter fields) over a content table. The view makes its
// cells and knows nothing of the table around it: they read the table here and report to it
// through these signals.
Controls.HorizontalHeaderView {
    property TableContentFilterModel table
    signal titleDragMoved(string columnLabel, real sceneX)
    signal titleDropped(int column, real sceneX)
    signal cellFinished()
}
