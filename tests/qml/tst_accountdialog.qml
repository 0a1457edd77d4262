import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.StatusBar

// The profile and region dialog used as a person does: type a name, search a country, pick it.
TestCase {
    id: testCase
    name: "AccountDialog"
    width: 600
    height: 600
    when: windowShown
    visible: true

    AccountDataModel { id: accountModel }
    CountryCodeDataModel { id: countryModel }

    Component {
        id: dialogComponent
        AccountDialog { account: accountModel; country: countryModel }
    }

    function findNamed(item, name) {
        if (!item)
            return null
        if (item.objectName === name)
            return item
        for (let i = 0; i < item.children.length; ++i) {
            const found = findNamed(item.children[i], name)
            if (found)
                return found
        }
        return null
    }

    function openDialog(settingKey) {
        const dialog = createTemporaryObject(dialogComponent, testCase)
        dialog.openAt(settingKey)
        tryCompare(dialog, "opened", true)
        return dialog
    }

    function cleanup() {
        accountModel.name = ""
        accountModel.initials = ""
        countryModel.countryCode = ""
    }

    function test_typedNameChangesTheInitials() {
        const dialog = openDialog("")
        const field = findNamed(dialog.contentItem, "accountName")
        verify(field.activeFocus)
        for (const character of "Ada Lo")
            keyClick(character)
        keyClick(Qt.Key_Return)
        compare(accountModel.name, "Ada Lo")
        compare(accountModel.initials, "AL")
        // The initials field is empty while they are derived; its hint shows them.
        const initials = findNamed(dialog.contentItem, "accountInitials")
        compare(initials.text, "")
        compare(initials.placeholderText, "AL")
    }

    function test_countryFoundAndPicked_data() {
        return [
            { tag: "by code", search: "DE", code: "DE" },
            { tag: "by name", search: "Germ", code: "DE" },
            { tag: "by words of the name", search: "zeal new", code: "NZ" }
        ]
    }

    function test_countryFoundAndPicked(data) {
        const dialog = openDialog("Account/Country")
        const search = findNamed(dialog.contentItem, "countrySearch")
        verify(search.activeFocus)
        for (const character of data.search)
            keyClick(character)
        const list = findNamed(dialog.contentItem, "countryList")
        tryVerify(() => list.count > 0)
        const first = list.itemAtIndex(0)
        verify(first)
        compare(first.code, data.code)

        mouseClick(first)

        compare(countryModel.countryCode, data.code)
        tryVerify(() => first.chosen)
        const shown = findNamed(dialog.contentItem, "chosenCountry")
        verify(shown.text.indexOf("(" + data.code + ")") >= 0)
    }

    function test_enterTakesTheBestMatch() {
        const dialog = openDialog("Account/Country")
        for (const character of "fr")
            keyClick(character)
        keyClick(Qt.Key_Return)
        compare(countryModel.countryCode, "FR")
    }
}
