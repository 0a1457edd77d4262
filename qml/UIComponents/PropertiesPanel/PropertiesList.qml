import QtQuick
import Qml.QtComponents

// The properties panel's list: it hands its rows the panel they edit.
ListView {
    property PropertiesPanel_Cpp panel
}
