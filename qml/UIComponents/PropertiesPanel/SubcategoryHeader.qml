import QtQuick

SubcategoryHeader_UI {
    required property var rowModel

    objectName: "subcategoryHeader_" + rowModel.nameRole
    title: rowModel.nameRole
    level: rowModel.valueRole
}
