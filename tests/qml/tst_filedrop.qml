import QtQuick
import QtTest
// Loads the plugin, which carries the component library the Loader reads.
import Qml.QtComponents

// The window's file drop, as a drag reaches it: the overlay follows the drag, and a drop of
// nothing the window opens is refused. A drag within the scene carries no files (only its keys),
// so the files a drop opens are the native half's test.
Item {
    id: root
    width: 600
    height: 400

    Loader {
        id: loader
        anchors.fill: parent
        source: "qrc:/UIComponents/FileDrop/FileDrop.qml"
    }

    // Stands for the files a file manager drags.
    Item {
        id: dragged
        width: 10
        height: 10
        property var urls: []
        Drag.keys: ["text/uri-list"]
        Drag.mimeData: ({ "text/uri-list": dragged.urls.join("\r\n") })
        Drag.dragType: Drag.Internal
        Drag.supportedActions: Qt.CopyAction
    }

    SignalSpy {
        id: refusedSpy
        signalName: "refused"
    }

    TestCase {
        name: "FileDrop"
        when: windowShown

        function init() {
            tryVerify(() => loader.status === Loader.Ready)
            refusedSpy.target = loader.item.controller
            refusedSpy.clear()
        }

        function cleanup() {
            dragged.Drag.active = false
            dragged.x = 0
            dragged.y = 0
        }

        function dragOver(urls) {
            dragged.urls = urls
            dragged.x = 300
            dragged.y = 200
            dragged.Drag.active = true
        }

        function test_overlay() {
            const overlay = findChild(loader.item, "fileDropOverlay")
            verify(!overlay.visible)
            dragOver(["file:///tmp/Notes.txt"])
            tryVerify(() => overlay.visible)
            verify(!loader.item.controller.dragAcceptable)
            verify(findChild(loader.item, "fileDropMessage").text.indexOf(".qcm") >= 0)
            dragged.Drag.cancel()
            tryVerify(() => !overlay.visible)
        }

        function test_refusedDrop() {
            dragOver(["file:///tmp/Notes.txt"])
            tryVerify(() => loader.item.controller.dragActive)
            dragged.Drag.drop()
            compare(refusedSpy.count, 1)
            verify(!findChild(loader.item, "fileDropOverlay").visible)
        }
    }
}
