#pragma once

#include "HostKitExport.h"
#include "commands/CommandDefinition.h"
#include "commands/INeedCommandRepository.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"
#include "framework/INeedServiceCatalog.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::QtExtensions {

// The application's commands as the user's keyboard settings show them: one row per command,
// in the repository's order, with its name and shortcut. The rows follow the repository's
// announcements; setShortcut changes a binding through the repository, which announces it
// to every component (the hotkey handler among them).
class HOSTKIT_EXPORT CommandListModel : public QAbstractListModel,
                                        public Kernel::Framework::INeedEventbus,
                                        public Kernel::Framework::INeedServiceCatalog,
                                        public Kernel::Framework::INeedCommandRepository
{
    Q_OBJECT
    QML_NAMED_ELEMENT(CommandListModel)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Roles
    {
        UuidRole = Qt::UserRole + 1,
        NameRole,
        ShortcutRole,
        ParameterStringRole,
        GroupRole,
        EnabledRole,
        IconRole,
    };
    Q_ENUM(Roles)

    explicit CommandListModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;
    int count() const;

    // False, changing nothing, for an unknown command or a text that is no key sequence;
    // an empty text removes the binding.
    Q_INVOKABLE bool setShortcut(const QString& uuid, const QString& shortcut);
    // False, changing nothing, for an unknown command.
    Q_INVOKABLE bool setCommandEnabled(const QString& uuid, bool enabled);
    // The first command other than exceptUuid bound to shortcut, or an empty text: the command
    // that would lose the shortcut if it were given to exceptUuid.
    Q_INVOKABLE QString shortcutOwner(const QString& shortcut, const QString& exceptUuid) const;
    // Gives the command the shortcut and takes it from every other command that had it.
    Q_INVOKABLE bool moveShortcut(const QString& uuid, const QString& shortcut);
    // The command's name in the user's language; the identifier itself for an unknown command.
    Q_INVOKABLE QString commandName(const QString& uuid) const;

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;
    void SetServiceCatalog(std::shared_ptr<Kernel::Framework::ServiceCatalog> catalog) override;
    void SetCommandRepository(std::shared_ptr<Kernel::Framework::ICommandRepository> repository) override;
    std::shared_ptr<Kernel::Framework::ICommandRepository> GetCommandRepository() const override;

signals:
    void countChanged();

private:
    void OnCommandChanged(const std::wstring& uuid);
    void Reload();
    int RowOf(const std::wstring& uuid) const;
    QString NameText(const Kernel::Framework::CommandDefinition& command) const;

    Kernel::Framework::EventConnection m_shortcutChangeConnection;
    Kernel::Framework::EventConnection m_stateChangeConnection;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    std::shared_ptr<Kernel::Framework::ServiceCatalog> m_catalog;
    std::shared_ptr<Kernel::Framework::ICommandRepository> m_repository;
    std::vector<Kernel::Framework::CommandDefinition> m_commands;
};

} // namespace Orvo::UI::QtExtensions
