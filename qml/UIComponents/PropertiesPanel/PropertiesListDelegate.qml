import QtQuick

// One row of the properties list: a category header, a subcategory caption or a property,
// after the row's typeRole (7 category, 8 subcategory, else the property's value type).
Item {
    id: root

    required property var model
    required property int index
    required property var panel
    readonly property int rowType: model.typeRole

    implicitHeight: loader.item ? loader.item.implicitHeight : 0

    Loader {
        id: loader
        width: root.width
        height: root.height
        sourceComponent: root.rowType === 7 ? categoryHeader : root.rowType === 8 ? subcategoryHeader : propertyRow
    }

    Component { id: categoryHeader; CategoryHeader { rowModel: root.model; panel: root.panel } }
    Component { id: subcategoryHeader; SubcategoryHeader { rowModel: root.model } }
    Component { id: propertyRow; PropertyRow { rowModel: root.model; panel: root.panel } }
}
