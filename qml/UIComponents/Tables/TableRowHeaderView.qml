import QtQuick
import QtQuick.Controls.Basic as Controls
import Qml.QtComponents

// The row numbers beside a content table. The view makes its cells and knows nothing of the
// table around it: they read the selection and their width here and report clicks to it.
Controls.VerticalHeaderView {
    property TableSelectionFilterModel selection
    property real cellWidth: 32
    signal cellClicked()
}
