import QtQuick

// The cells of a content table. Besides its own data, a cell shows whether it is on the
// new-row line or under the editor: the view carries both for the cells it makes.
TableView {
    property int newRowIndex: -1
    property int editingRow: -1
    property int editingColumn: -1
}
