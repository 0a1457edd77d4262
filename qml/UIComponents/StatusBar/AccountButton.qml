import QtQuick
import QtQuick.Controls.Basic
import Qml.QtComponents
import BasicComponents.Constants

// The account's avatar in the shell: it shows the user's initials and opens the profile and
// region dialog.
Item {
    id: button

    // Opens the dialog at the field of a setting (see AccountDialog.openAt).
    function openSettings(settingKey) {
        accountDialog.openAt(settingKey)
    }

    implicitWidth: avatar.implicitWidth
    implicitHeight: avatar.implicitHeight

    AccountDataModel { id: accountModel }
    CountryCodeDataModel { id: countryModel }

    AccountAvatar {
        id: avatar
        objectName: "accountAvatar"
        anchors.fill: parent
        initials: accountModel.initials
        border.width: mouse.containsMouse ? BasicConstants.sizes.borderWidth * 2 : BasicConstants.sizes.borderWidth
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: accountDialog.openAt("")
    }

    ToolTip.visible: mouse.containsMouse
    ToolTip.text: accountModel.name.length > 0
                  ? accountModel.name + (countryModel.countryCode.length > 0 ? " \u00b7 " + countryModel.countryName : "")
                  : Strings.text("UI_ACCOUNT_TITLE")

    AccountDialog {
        id: accountDialog
        objectName: "accountDialog"
        account: accountModel
        country: countryModel
    }
}
