import QtQuick

// One row of the properties list: a category header, a subcategory caption or a property,
// after the row's typeRole (7 category, 8 subcategory, else the property's value type).
Item {
    id: root

    required property var model
    required property int index
    required property var panel
    readonly property int rowType: model.typeRole

    implicitHeight: loader.implicitHeight

    readonly property string document: rowType === 7 ? "CategoryHeader.qml"
                                     : rowType === 8 ? "SubcategoryHeader.qml" : "PropertyRow.qml"

    // The row documents take the row and the panel as required properties. A Loader sets those
    // only when it loads a document by URL, so the document is chosen here and loaded with them,
    // once the view has handed over the panel. A row's panel does not change after that; its
    // document is loaded once, however many of the signals below say so.
    function load() {
        if (!panel || String(loader.source) === String(Qt.resolvedUrl(document)))
            return
        loader.setSource(document, document === "SubcategoryHeader.qml" ? { rowModel: model }
                                                                        : { rowModel: model, panel: panel })
    }

    onDocumentChanged: load()
    onPanelChanged: load()
    Component.onCompleted: load()

    Loader {
        id: loader
        width: root.width
        height: root.height
    }
}
