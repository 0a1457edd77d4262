import QtQuick

// The list of the model objects panel: its rows line their columns up with the panel's titles.
ListView {
    property int numberWidth: 110
    property int nameWidth: 160
}
