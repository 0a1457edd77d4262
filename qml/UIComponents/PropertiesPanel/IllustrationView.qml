import QtQuick
import QtQuick.Layouts
import Qml.QtBasicComponents
import BasicComponents.Constants

// Shows the panel's current illustration: an image, or a QML drawing that can mark the part
// the property stands for (its "subject" property receives the property's key).
Rectangle {
    id: root

    required property var illustration

    readonly property bool isDrawing: illustration.source.endsWith(".qml")
    implicitHeight: 190
    color: BasicConstants.colors.background

    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: BasicConstants.sizes.borderWidth
        color: BasicConstants.colors.border
    }

    ColumnLayout {
        anchors { fill: parent; margins: BasicConstants.sizes.margin }
        spacing: BasicConstants.sizes.spacing

        Text {
            Layout.fillWidth: true
            text: root.illustration.title
            textFormat: Text.RichText
            elide: Text.ElideRight
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            font.bold: true
            color: BasicConstants.colors.text
        }

        Loader {
            objectName: "illustrationDrawing"
            Layout.fillWidth: true
            Layout.fillHeight: true
            active: root.isDrawing
            source: root.isDrawing ? root.illustration.source : ""
            onLoaded: {
                if (item.hasOwnProperty("subject"))
                    item.subject = Qt.binding(() => root.illustration.subject)
            }
        }

        Image {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !root.isDrawing
            source: root.isDrawing ? "" : root.illustration.source
            fillMode: Image.PreserveAspectFit
            asynchronous: true
        }
    }
}
