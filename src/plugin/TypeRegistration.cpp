#include "TypeRegistration.h"

#include "StringsQtComponents.h"
#include "commands/CommandMenuHelper.h"
#include "commands/HotkeyHandler.h"
#include "common/ComboBoxProxyModel.h"
#include "common/FilterItemsProxyModel.h"
#include "common/SelectionModel.h"
#include "common/SimpleComboBoxProxyModel.h"
#include "filedrop/FileDrop.h"
#include "inputpanel/FilterBarItemModel.h"
#include "inputpanel/FilterBarItemProxyModel.h"
#include "inputpanel/InputPanel.h"
#include "inputpanel/InputPanelContainerModel.h"
#include "inputpanel/InputPanelContainerProxyModel.h"
#include "inputpanel/InputPanelUserConfiguration.h"
#include "inputpanel/TagModel.h"
#include "markingmenu/MarkingMenu.h"
#include "markingmenu/MarkingMenuConfig.h"
#include "markingmenu/MarkingMenuSectionConfig.h"
#include "menusystem/MenuItemsFilterModel.h"
#include "menusystem/MenuItemsModel.h"
#include "menusystem/MenuSystem.h"
#include "menusystem/SubcommandsModel.h"
#include "notifications/Notifications.h"
#include "notifications/NotificationsButtonsSelectionModel.h"
#include "notifications/NotificationsFilterModel.h"
#include "notifications/NotificationsModel.h"
#include "properties/ActionsModel.h"
#include "properties/EntityModel.h"
#include "properties/IllustrationData.h"
#include "properties/PropertiesModel.h"
#include "properties/PropertiesPanel.h"
#include "properties/PropertiesPanelUserConfiguration.h"
#include "properties/PropertiesProxyModel.h"
#include "qtextensions/FramelessWindow.h"
#include "report/ReportPreview.h"
#include "spotlight/Spotlight.h"
#include "spotlight/SpotlightModel.h"
#include "spotlight/SpotlightProxyModel.h"
#include "status/AccountDataModel.h"
#include "status/CountryCodeDataModel.h"
#include "status/ProcessToolbar.h"
#include "status/StatusBar.h"
#include "status/ViewBar.h"
#include "tables/FilterBarModel.h"
#include "tables/MultiEditAction.h"
#include "tables/MultiEditActionSolver.h"
#include "tables/MultiEditSearchResult.h"
#include "tables/TableColumnsModel.h"
#include "tables/TableContentFilterModel.h"
#include "tables/TableContentModel.h"
#include "tables/TableInput.h"
#include "tables/TableResult.h"
#include "tables/TableSelectionFilterModel.h"
#include "tables/TableSelectionModel.h"
#include "tables/TableTabsModel.h"
#include "tables/TableWorkstationsModel.h"
#include "tutorial/TutorialToolTip.h"
#include "tutorial/TutorialToolTipData.h"
#include "valueentry/InlineCalculator.h"
#include "valueentry/IntegerValidator.h"
#include "valueentry/RealValidator.h"
#include "viewport/GraphicView.h"
#include "viewport/Viewport.h"

#include <QQmlEngine>

namespace Orvo::UI::UIComponents {

namespace {

QObject* CreateStrings(QQmlEngine*, QJSEngine*)
{
    // The engine takes ownership: one instance per engine.
    return new StringsQtComponents();
}

} // namespace

void RegisterQtComponentsTypes(const char* uri)
{
    constexpr int major = 1;
    constexpr int minor = 0;

    // The order below is the module's registration order; keep new rows in their place.
    qmlRegisterType<Spotlight>(uri, major, minor, "Spotlight_Cpp");
    qmlRegisterType<SpotlightModel>(uri, major, minor, "SpotlightModel");
    qmlRegisterType<SpotlightProxyModel>(uri, major, minor, "SpotlightProxyModel");
    qmlRegisterType<SubcommandsModel>(uri, major, minor, "SubcommandsModel");
    qmlRegisterType<MenuItemsModel>(uri, major, minor, "MenuItemsModel");
    qmlRegisterType<MenuItemsFilterModel>(uri, major, minor, "MenuItemsFilterModel");
    qmlRegisterType<MenuSystem>(uri, major, minor, "MenuSystem_Cpp");
    qmlRegisterType<HotkeyHandler>(uri, major, minor, "HotkeyHandler_Cpp");
    qmlRegisterType<AccountDataModel>(uri, major, minor, "AccountDataModel");
    qmlRegisterType<CountryCodeDataModel>(uri, major, minor, "CountryCodeDataModel");
    qmlRegisterType<UnitsSubDataModel>(uri, major, minor, "UnitsSubDataModel");
    qmlRegisterType<ScaleSubDataModel>(uri, major, minor, "ScaleSubDataModel");
    qmlRegisterType<SnappingSubDataModel>(uri, major, minor, "SnappingSubDataModel");
    qmlRegisterType<CoordinatesSubModel>(uri, major, minor, "CoordinatesSubModel");
    qmlRegisterType<MasterEntitySubDataModel>(uri, major, minor, "MasterEntitySubDataModel");
    qmlRegisterType<StatusBarDataModel>(uri, major, minor, "StatusbarData");
    qmlRegisterType<StatusBar>(uri, major, minor, "StatusBar_Cpp");
    qmlRegisterType<ProcessToolbar>(uri, major, minor, "ProcessToolbar_Cpp");
    qmlRegisterType<CenterButtonData>(uri, major, minor, "CenterButtonData");
    qmlRegisterType<TooltipData>(uri, major, minor, "TooltipData");
    qmlRegisterType<ViewBar>(uri, major, minor, "ViewBar_Cpp");
    qmlRegisterType<MoreOptionsMenuModel>(uri, major, minor, "MoreOptionsMenuModel");
    qmlRegisterType<ViewBarUserConfiguration>(uri, major, minor, "ViewBarUserConfiguration");
    qmlRegisterType<PropertiesPanelUserConfiguration>(uri, major, minor, "PropertiesPanelUserConfiguration");
    qmlRegisterType<ActionsModel>(uri, major, minor, "ActionsModel");
    qmlRegisterType<EntityModel>(uri, major, minor, "EntityModel");
    qmlRegisterType<PropertiesModel>(uri, major, minor, "PropertiesModel");
    qmlRegisterType<PropertiesPanel>(uri, major, minor, "PropertiesPanel_Cpp");
    qmlRegisterType<PropertiesProxyModel>(uri, major, minor, "PropertiesProxyModel");
    qmlRegisterType<InputPanel>(uri, major, minor, "InputPanel_Cpp");
    qmlRegisterType<InputPanelContainerModel>(uri, major, minor, "InputPanelContainerModel");
    qmlRegisterType<InputPanelContainerProxyModel>(uri, major, minor, "InputPanelContainerProxyModel");
    qmlRegisterType<FilterBarItemProxyModel>(uri, major, minor, "FilterBarItemProxyModel");
    qmlRegisterType<FilterBarItemModel>(uri, major, minor, "FilterBarItemModel");
    qmlRegisterType<TagModel>(uri, major, minor, "TagModel");
    qmlRegisterType<InputPanelUserConfiguration>(uri, major, minor, "InputPanelUserConfiguration");
    qmlRegisterType<ReportPreview>(uri, major, minor, "ReportPreview_Cpp");
    qmlRegisterType<ComboBoxProxyModel>(uri, major, minor, "ComboBoxProxyModel");
    qmlRegisterType<FilterItemsProxyModel>(uri, major, minor, "FilterItemsProxyModel");
    qmlRegisterType<SelectionModel>(uri, major, minor, "SelectionModel");
    qmlRegisterType<SimpleComboBoxProxyModel>(uri, major, minor, "SimpleComboBoxProxyModel");
    qmlRegisterType<CommandMenuHelper>(uri, major, minor, "CommandMenuHelper");
    qmlRegisterType<FileDrop>(uri, major, minor, "FileDrop_Cpp");
    qmlRegisterType<IntegerValidator>(uri, major, minor, "IntegerValidator");
    qmlRegisterType<RealValidator>(uri, major, minor, "RealValidator");
    qmlRegisterType<InlineCalculator>(uri, major, minor, "InlineCalculator");
    qmlRegisterType<TutorialToolTip>(uri, major, minor, "TutorialToolTip_Cpp");
    qmlRegisterType<TutorialToolTipData>(uri, major, minor, "TutorialToolTipData");
    qmlRegisterType<IllustrationData>(uri, major, minor, "IllustrationData");
    qmlRegisterType<TableResult>(uri, major, minor, "TableResult_Cpp");
    qmlRegisterType<TableInput>(uri, major, minor, "TableInput_Cpp");
    qmlRegisterType<TableWorkstationsModel>(uri, major, minor, "TableWorkstationsModel");
    qmlRegisterType<TableTabsModel>(uri, major, minor, "TableTabsModel");
    qmlRegisterType<TableColumnsModel>(uri, major, minor, "TableColumnsModel");
    qmlRegisterType<TableContentModel>(uri, major, minor, "TableContentModel");
    qmlRegisterType<MultiEditAction>(uri, major, minor, "MultiEditAction");
    qmlRegisterType<MultiEditActionSolver>(uri, major, minor, "MultiEditActionSolver");
    qmlRegisterType<MultiEditSearchResult>(uri, major, minor, "MultiEditSearchResult");
    qmlRegisterType<TableContentFilterModel>(uri, major, minor, "TableContentFilterModel");
    qmlRegisterType<TableSelectionModel>(uri, major, minor, "TableSelectionModel");
    qmlRegisterType<TableSelectionFilterModel>(uri, major, minor, "TableSelectionFilterModel");
    qmlRegisterType<FilterBarModel>(uri, major, minor, "FilterBarModel");
    qmlRegisterType<MarkingMenuSectionConfig>(uri, major, minor, "MarkingMenuSectionConfig");
    qmlRegisterType<MarkingMenuConfig>(uri, major, minor, "MarkingMenuConfig");
    qmlRegisterType<MarkingMenu>(uri, major, minor, "MarkingMenu_Cpp");
    qmlRegisterType<QtExtensions::FramelessWindow>(uri, major, minor, "FramelessWindow");
    qmlRegisterType<Notifications>(uri, major, minor, "Notifications_Cpp");
    qmlRegisterType<NotificationsModel>(uri, major, minor, "NotificationsModel");
    qmlRegisterType<NotificationsFilterModel>(uri, major, minor, "NotificationsFilterModel");
    qmlRegisterType<NotificationsButtonsSelectionModel>(uri, major, minor,
                                                        "NotificationsButtonsSelectionModel");
    qmlRegisterType<GraphicView>(uri, major, minor, "GraphicView_Cpp");
    qmlRegisterType<Viewport>(uri, major, minor, "Viewport");
    qmlRegisterSingletonType<StringsQtComponents>(uri, major, minor, "Strings", CreateStrings);
}

} // namespace Orvo::UI::UIComponents
