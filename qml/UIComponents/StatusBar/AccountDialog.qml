import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Common

// The user's profile and region: name, organisation and the avatar's initials, and the country
// whose standards and units apply, searched by name or code. Every change is kept at once.
Popup {
    id: dialog

    required property AccountDataModel account
    required property CountryCodeDataModel country

    // Opens the dialog with the field of a setting focused ("Account/Country" focuses the
    // country search); any other key opens it at the name.
    function openAt(settingKey) {
        dialog.open()
        if (settingKey === "Account/Country")
            countrySearch.forceActiveFocus()
        else if (settingKey === "Account/Organisation")
            organisationField.forceActiveFocus()
        else if (settingKey === "Account/Initials")
            initialsField.forceActiveFocus()
        else
            nameField.forceActiveFocus()
    }

    QtObject {
        id: d
        readonly property int fieldWidth: 280
        readonly property int listHeight: 180
        readonly property int avatarSize: 44
    }

    modal: true
    focus: true
    padding: BasicConstants.sizes.margin * 2
    parent: T.Overlay.overlay
    x: Math.round((dialog.parent.width - dialog.width) / 2)
    y: Math.round((dialog.parent.height - dialog.height) / 2)
    onClosed: countrySearch.clear()
    background: Rectangle {
        color: BasicConstants.colors.panel
        border.color: BasicConstants.colors.border
        radius: BasicConstants.sizes.radius
    }

    ColumnLayout {
        spacing: BasicConstants.sizes.spacing

        RowLayout {
            spacing: BasicConstants.sizes.margin
            AccountAvatar {
                initials: dialog.account.initials
                implicitWidth: d.avatarSize
                implicitHeight: d.avatarSize
            }
            ColumnLayout {
                spacing: 0
                Text {
                    text: Strings.text("UI_ACCOUNT_TITLE")
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.title
                    font.bold: true
                    color: BasicConstants.colors.text
                }
                Text {
                    text: Strings.text("UI_ACCOUNT_DESCRIPTION")
                    font.family: BasicConstants.fonts.family
                    font.pixelSize: BasicConstants.fonts.small
                    color: BasicConstants.colors.textSecondary
                }
            }
        }

        GridLayout {
            columns: 2
            rowSpacing: BasicConstants.sizes.spacing
            columnSpacing: BasicConstants.sizes.margin

            BasicLabel { text: Strings.text("UI_ACCOUNT_NAME") }
            BasicTextField {
                id: nameField
                objectName: "accountName"
                Layout.preferredWidth: d.fieldWidth
                text: dialog.account.name
                onEditingFinished: dialog.account.name = nameField.text
            }
            BasicLabel { text: Strings.text("UI_ACCOUNT_ORGANISATION") }
            BasicTextField {
                id: organisationField
                objectName: "accountOrganisation"
                Layout.preferredWidth: d.fieldWidth
                text: dialog.account.organisation
                onEditingFinished: dialog.account.organisation = organisationField.text
            }
            BasicLabel { text: Strings.text("UI_ACCOUNT_INITIALS") }
            BasicTextField {
                id: initialsField
                objectName: "accountInitials"
                Layout.preferredWidth: d.avatarSize * 2
                maximumLength: 2
                // Empty while the initials are derived: the hint shows them.
                text: dialog.account.customInitials ? dialog.account.initials : ""
                placeholderText: dialog.account.customInitials ? "" : dialog.account.initials
                onEditingFinished: dialog.account.initials = initialsField.text
            }
            BasicLabel { text: Strings.text("UI_ACCOUNT_COUNTRY") }
            Text {
                objectName: "chosenCountry"
                text: dialog.country.countryCode.length > 0
                      ? dialog.country.countryName + " (" + dialog.country.countryCode + ")"
                      : Strings.text("UI_ACCOUNT_NO_COUNTRY")
                font.family: BasicConstants.fonts.family
                font.pixelSize: BasicConstants.fonts.normal
                font.bold: true
                color: BasicConstants.colors.text
            }
            Item { implicitWidth: 1; implicitHeight: 1 }
            ColumnLayout {
                spacing: BasicConstants.sizes.spacing
                SearchField {
                    id: countrySearch
                    objectName: "countrySearch"
                    Layout.preferredWidth: d.fieldWidth
                    placeholderText: Strings.text("UI_ACCOUNT_COUNTRY_SEARCH")
                    onTextChanged: dialog.country.searchResults.searchText = countrySearch.text
                    onEscapedEmpty: dialog.close()
                    // Enter takes the best match.
                    onAccepted: dialog.country.chooseResult(0)
                }
                CountryList {
                    id: countryList
                    objectName: "countryList"
                    Layout.preferredWidth: d.fieldWidth
                    Layout.preferredHeight: d.listHeight
                    country: dialog.country
                }
            }
        }

        BasicButton {
            objectName: "closeAccount"
            Layout.alignment: Qt.AlignRight
            text: Strings.text("UI_ACCOUNT_CLOSE")
            onClicked: dialog.close()
        }
    }
}
