#pragma once

#include "MenuItemsModel.h"
#include "SubcommandsModel.h"
#include "qtextensions/UIComponent.h"

#include <QHash>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The native half of the application's menus: the menu definition shipped in the application's
// Configuration folder, read once, and the models over it that the menu bar, its menus, their
// sub-commands and the menu search show.
class MenuSystem : public Orvo::UI::QtExtensions::UIComponent
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MenuSystem_Cpp)
    Q_PROPERTY(Orvo::UI::UIComponents::MenuItemsModel* menuBar READ menuBar CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::MenuItemsModel* allCommands READ allCommands CONSTANT)

public:
    explicit MenuSystem(QQuickItem* parent = nullptr);
    ~MenuSystem() override;

    MenuItemsModel* menuBar() const { return m_menuBar; }
    MenuItemsModel* allCommands() const { return m_allCommands; }

    // The items of a menu, made once per menu and kept.
    Q_INVOKABLE Orvo::UI::UIComponents::MenuItemsModel* menuItems(const QString& menuId);
    // The variants of a command, made once per command and kept.
    Q_INVOKABLE Orvo::UI::UIComponents::SubcommandsModel* subcommands(const QString& commandUuid);

private:
    std::shared_ptr<const MenuDefinition> m_definition;
    MenuItemsModel* m_menuBar = nullptr;
    MenuItemsModel* m_allCommands = nullptr;
    QHash<QString, MenuItemsModel*> m_menus;
    QHash<QString, SubcommandsModel*> m_subcommands;
};

} // namespace Orvo::UI::UIComponents
