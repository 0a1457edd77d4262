import QtQuick
import QtQuick.Controls.Basic
import Qml.QtComponents
import BasicComponents.Constants

// The countries that match the country search, name and code in each row, the chosen one marked;
// a click chooses a country.
ListView {
    id: list

    required property CountryCodeDataModel country

    clip: true
    model: list.country.searchResults
    boundsBehavior: Flickable.StopAtBounds
    ScrollBar.vertical: ScrollBar {}

    delegate: Rectangle {
        id: countryEntry
        required property int index
        required property string name
        required property string code
        readonly property CountryList list: ListView.view as CountryList
        readonly property bool chosen: countryEntry.list !== null
                                       && countryEntry.code === countryEntry.list.country.countryCode
        objectName: "country_" + countryEntry.code
        width: ListView.view.width
        height: BasicConstants.sizes.rowHeight
        color: countryEntry.chosen ? BasicConstants.colors.selection
                                   : entryMouse.containsMouse ? BasicConstants.colors.hover : "transparent"
        Text {
            anchors { left: parent.left; leftMargin: BasicConstants.sizes.spacing
                      right: codeText.left; verticalCenter: parent.verticalCenter }
            text: countryEntry.name
            elide: Text.ElideRight
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.normal
            color: BasicConstants.colors.text
        }
        Text {
            id: codeText
            anchors { right: parent.right; rightMargin: BasicConstants.sizes.spacing
                      verticalCenter: parent.verticalCenter }
            text: countryEntry.code
            font.family: BasicConstants.fonts.family
            font.pixelSize: BasicConstants.fonts.small
            color: BasicConstants.colors.textSecondary
        }
        MouseArea {
            id: entryMouse
            anchors.fill: parent
            hoverEnabled: true
            onClicked: countryEntry.list.country.chooseResult(countryEntry.index)
        }
    }
}
