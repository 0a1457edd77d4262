import QtQuick
import QtQuick.Layouts

// The demo's pages, one shown at a time. A page is made when it is first shown and kept from
// then on, so that what the user typed or chose on it is still there after a visit to another.
StackLayout {
    id: stack

    // One entry per page: { name, source }.
    property var pages: []

    // A page asked for another page by its name (the overview's links).
    signal pageRequested(string name)

    function pageItem(index) {
        const loader = pageRepeater.itemAt(index) as Loader
        return loader ? loader.item : null
    }

    function activate(index) {
        const loader = pageRepeater.itemAt(index)
        if (loader)
            loader.active = true
    }

    onCurrentIndexChanged: activate(currentIndex)

    Repeater {
        id: pageRepeater
        model: stack.pages
        onItemAdded: (index, item) => {
            item.pageRequested.connect(stack.pageRequested)
            if (index === stack.currentIndex)
                item.active = true
        }
        Loader {
            id: pageLoader
            required property var modelData
            objectName: "page_" + modelData.name
            active: false
            source: modelData.source
            signal pageRequested(string name)

            Connections {
                target: pageLoader.item
                ignoreUnknownSignals: true
                function onPageRequested(name) {
                    pageLoader.pageRequested(name)
                }
            }
        }
    }
}
