#pragma once

#include "MenuDefinition.h"
#include "commands/INeedCommandRepository.h"
#include "commands/INeedUICommandProcessor.h"
#include "commands/RecentFiles.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::UI::UIComponents {

// The items of one menu (menuId; the menu bar when empty), or with allCommands every command of
// every menu with the path to it, for searching the menus. Names, icons, shortcuts and the
// enabled, visible and checked states are the command repository's and follow its changes; the
// recently used files are listed where the menu says and follow the host's list.
class MenuItemsModel : public QAbstractListModel,
                       public Kernel::Framework::INeedEventbus,
                       public Kernel::Framework::INeedCommandRepository,
                       public Kernel::Framework::INeedUICommandProcessor
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MenuItemsModel)
    Q_PROPERTY(QString menuId READ menuId WRITE setMenuId NOTIFY menuIdChanged)
    Q_PROPERTY(bool allCommands READ allCommands WRITE setAllCommands NOTIFY allCommandsChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum ItemType
    {
        CommandItem,
        SeparatorItem,
        SubmenuItem,
        RecentFileItem,
    };
    Q_ENUM(ItemType)

    enum Roles
    {
        ItemTypeRole = Qt::UserRole + 1,
        TextRole,
        IconRole,
        ShortcutRole,
        EnabledRole,
        ShownRole,
        UuidRole,
        SubmenuIdRole,
        PathRole,
        HasSubcommandsRole,
        CheckableRole,
        CheckedRole,
        FileRole,
    };
    Q_ENUM(Roles)

    static constexpr const wchar_t* c_origin = L"MenuSystem";

    explicit MenuItemsModel(QObject* parent = nullptr);
    ~MenuItemsModel() override;

    QString menuId() const { return m_menuId; }
    void setMenuId(const QString& menuId);
    bool allCommands() const { return m_allCommands; }
    void setAllCommands(bool allCommands);
    int count() const { return rowCount(); }

    // Runs the row's command; false for anything else or a disabled command.
    Q_INVOKABLE bool trigger(int row);

    // The menus to show; by default the shipped definition of the application directory.
    void SetDefinition(std::shared_ptr<const MenuDefinition> definition);
    // The recently used files; by default the host's.
    void SetRecentFiles(std::shared_ptr<Kernel::Framework::RecentFiles> recentFiles);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;
    void SetCommandRepository(std::shared_ptr<Kernel::Framework::ICommandRepository> repository) override;
    std::shared_ptr<Kernel::Framework::ICommandRepository> GetCommandRepository() const override;
    void SetUICommandProcessor(std::shared_ptr<Kernel::Framework::IUICommandProcessor> processor) override;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> GetUICommandProcessor() const override;

    // The definition shipped with the application; an empty one (and a message) when it is missing.
    static std::shared_ptr<const MenuDefinition> ShippedDefinition();

signals:
    void menuIdChanged();
    void allCommandsChanged();
    void countChanged();

private:
    struct Row
    {
        const MenuEntry* entry = nullptr;
        QString path; // the menus leading to a command of allCommands; a recent file's path
    };
    void Rebuild();
    void CollectCommands(const std::vector<MenuEntry>& items, const QString& path);
    void OnCommandStateChanged(const std::wstring& uuid);
    QVariant RecentFileData(const Row& row, int role) const;
    static QVariant EmptyValue(int role);
    bool ListsRecentFiles() const;

    QString m_menuId;
    bool m_allCommands = false;
    std::shared_ptr<const MenuDefinition> m_definition;
    std::vector<Row> m_rows;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    std::shared_ptr<Kernel::Framework::ICommandRepository> m_repository;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> m_processor;
    Kernel::Framework::EventConnection m_stateConnection;
    Kernel::Framework::EventConnection m_shortcutConnection;
    Kernel::Framework::EventConnection m_recentFilesConnection;
    std::shared_ptr<Kernel::Framework::RecentFiles> m_recentFiles;
};

} // namespace Orvo::UI::UIComponents
