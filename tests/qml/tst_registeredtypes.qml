import QtQuick
import QtTest
import Qml.QtComponents

// Every registered type must be creatable from QML with nothing but the module import.
TestCase {
    id: testCase
    name: "RegisteredTypes"
    when: windowShown

    function test_create_data() {
        return [
            "Spotlight_Cpp", "SpotlightModel", "SpotlightProxyModel", "SubcommandsModel",
            "MenuItemsModel", "MenuItemsFilterModel", "MenuSystem_Cpp", "HotkeyHandler_Cpp",
            "AccountDataModel", "CountryCodeDataModel",
            "UnitsSubDataModel", "ScaleSubDataModel", "SnappingSubDataModel", "CoordinatesSubModel",
            "MasterEntitySubDataModel", "StatusbarData", "StatusBar_Cpp", "ProcessToolbar_Cpp", "CenterButtonData", "TooltipData",
            "ViewBar_Cpp", "MoreOptionsMenuModel", "ViewBarUserConfiguration",
            "PropertiesPanelUserConfiguration", "ActionsModel", "EntityModel",
            "PropertiesModel", "PropertiesPanel_Cpp", "PropertiesProxyModel",
            "InputPanel_Cpp", "InputPanelContainerModel", "InputPanelContainerProxyModel", "FilterBarItemProxyModel",
            "FilterBarItemModel", "TagModel", "InputPanelUserConfiguration", "ReportPreview_Cpp",
            "ComboBoxProxyModel", "FilterItemsProxyModel", "SelectionModel", "SimpleComboBoxProxyModel",
            "CommandMenuHelper", "FileDrop_Cpp",
            "IntegerValidator", "RealValidator", "InlineCalculator",
            "TutorialToolTip_Cpp", "TutorialToolTipData", "IllustrationData",
            "TableResult_Cpp", "TableInput_Cpp", "TableWorkstationsModel", "TableTabsModel",
            "TableColumnsModel", "TableContentModel", "MultiEditAction", "MultiEditActionSolver",
            "MultiEditSearchResult", "TableContentFilterModel", "TableSelectionModel",
            "TableSelectionFilterModel", "FilterBarModel",
            "MarkingMenuSectionConfig", "MarkingMenuConfig", "MarkingMenu_Cpp",
            "Notifications_Cpp", "NotificationsModel", "NotificationsFilterModel",
            "NotificationsButtonsSelectionModel"
        ].map(type => ({ tag: type, type: type }))
    }

    function test_create(data) {
        const object = Qt.createQmlObject("import Qml.QtComponents\n" + data.type + " {}", testCase, data.type)
        verify(object !== null)
        object.destroy()
    }

    function test_framelessWindow() {
        const window = Qt.createQmlObject("import Qml.QtComponents\nFramelessWindow { width: 10; height: 10 }",
                                          testCase, "FramelessWindow")
        verify(window !== null)
        compare(window.visible, false)
        window.destroy()
    }
}
