// Helpers shared by the Qt Quick tests. The ones that can fail take the calling TestCase first,
// so a failure is reported against the test that asked.

// Creates the QML document at url under parent (the test case when omitted), destroyed after
// the test; the test fails when the document does not load.
function createDocument(testCase, url, properties, parent) {
    const component = Qt.createComponent(url)
    testCase.compare(component.status, Component.Ready, component.errorString())
    const object = testCase.createTemporaryObject(component, parent || testCase, properties || {})
    testCase.verify(object, "created " + url)
    return object
}

// The application's hotkey handler, as the demo loads it beside its pages. Temporary unless
// permanent is true (a handler that outlives every test of the case).
function createHotkeyHandler(testCase, permanent) {
    const url = "qrc:/UIComponents/HotkeyHandler/HotkeyHandler.qml"
    if (!permanent)
        return createDocument(testCase, url)
    const component = Qt.createComponent(url)
    const handler = component.createObject(testCase)
    testCase.verify(handler, component.errorString())
    return handler
}

// The first row of a list or table model whose role holds value, or -1.
function rowWhere(model, role, value) {
    const rows = model.rowCount()
    for (let row = 0; row < rows; ++row) {
        if (model.data(model.index(row, 0), role) === value)
            return row
    }
    return -1
}

// The first object under root, at any depth, whose objectName is name, or null. Unlike
// TestCase.findChild it also looks into the items of Repeaters and views' content items by
// walking the visual tree, which is where delegates live.
function findByObjectName(root, name) {
    if (!root)
        return null
    const children = root.children || []
    for (let i = 0; i < children.length; ++i) {
        const child = children[i]
        if (child.objectName === name)
            return child
        const found = findByObjectName(child, name)
        if (found)
            return found
    }
    return null
}
