#include "MenuSystem.h"

namespace Orvo::UI::UIComponents {

MenuSystem::MenuSystem(QQuickItem* parent)
    : UIComponent(parent)
    , m_definition(MenuItemsModel::ShippedDefinition())
    , m_menuBar(new MenuItemsModel(this))
    , m_allCommands(new MenuItemsModel(this))
{
    m_menuBar->SetDefinition(m_definition);
    m_allCommands->SetDefinition(m_definition);
    m_allCommands->setAllCommands(true);
}

MenuSystem::~MenuSystem() = default;

MenuItemsModel* MenuSystem::menuItems(const QString& menuId)
{
    if (MenuItemsModel* known = m_menus.value(menuId))
        return known;
    auto* model = new MenuItemsModel(this);
    model->SetDefinition(m_definition);
    model->setMenuId(menuId);
    m_menus.insert(menuId, model);
    return model;
}

SubcommandsModel* MenuSystem::subcommands(const QString& commandUuid)
{
    if (SubcommandsModel* known = m_subcommands.value(commandUuid))
        return known;
    auto* model = new SubcommandsModel(this);
    model->SetDefinition(m_definition);
    model->setCommandUuid(commandUuid);
    m_subcommands.insert(commandUuid, model);
    return model;
}

} // namespace Orvo::UI::UIComponents
