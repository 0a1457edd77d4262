#include "CommandListModel.h"

#include "commands/ICommandRepository.h"
#include "events/CommandShortcutChange.h"
#include "events/CommandStateChange.h"
#include "framework/DefaultServices.h"
#include "framework/EventBus.h"
#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"
#include "kernel/PathText.h"
#include "qtextensions/File.h"

#include <algorithm>

namespace Orvo::UI::QtExtensions {

using namespace Kernel::Framework;

CommandListModel::CommandListModel(QObject* parent)
    : QAbstractListModel(parent)
{
    ServiceCatalog::Global()->Inject(*this);
}

int CommandListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

int CommandListModel::count() const
{
    return static_cast<int>(m_commands.size());
}

QVariant CommandListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const CommandDefinition& command = m_commands[static_cast<std::size_t>(index.row())];
    switch (role) {
    case UuidRole:
        return QString::fromStdWString(command.uuid);
    case Qt::DisplayRole:
    case NameRole:
        return NameText(command);
    case ShortcutRole:
        return QString::fromStdWString(command.shortcut);
    case ParameterStringRole:
        return QString::fromStdWString(command.parameterString);
    case GroupRole:
        return QString::fromStdWString(command.group);
    case EnabledRole:
        return command.enabled;
    case IconRole:
        return File::createQmlFilePathFromApplicationPath(command.icon);
    default:
        return {};
    }
}

QHash<int, QByteArray> CommandListModel::roleNames() const
{
    // "commandEnabled": a delegate's own "enabled" would hide a role of that name.
    return {
        { UuidRole, "uuid" },         { NameRole, "name" },
        { ShortcutRole, "shortcut" }, { ParameterStringRole, "parameterString" },
        { GroupRole, "group" },       { EnabledRole, "commandEnabled" },
        { IconRole, "icon" },
    };
}

bool CommandListModel::setShortcut(const QString& uuid, const QString& shortcut)
{
    if (!m_repository)
        return false;
    // The repository announces the change, and the row follows the announcement.
    return m_repository->SetShortcut(uuid.toStdWString(), shortcut.trimmed().toStdWString());
}

bool CommandListModel::setCommandEnabled(const QString& uuid, bool enabled)
{
    return m_repository && m_repository->SetCommandEnabled(uuid.toStdWString(), enabled);
}

QString CommandListModel::shortcutOwner(const QString& shortcut, const QString& exceptUuid) const
{
    if (!m_repository)
        return {};
    for (const std::wstring& uuid :
         m_repository->FindCommandsWithShortcut(shortcut.trimmed().toStdWString())) {
        if (uuid != exceptUuid.toStdWString())
            return QString::fromStdWString(uuid);
    }
    return {};
}

bool CommandListModel::moveShortcut(const QString& uuid, const QString& shortcut)
{
    return m_repository && m_repository->MoveShortcut(uuid.toStdWString(), shortcut.trimmed().toStdWString());
}

QString CommandListModel::commandName(const QString& uuid) const
{
    const int row = RowOf(uuid.toStdWString());
    return row < 0 ? uuid : NameText(m_commands[static_cast<std::size_t>(row)]);
}

void CommandListModel::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    if (eventbus == m_eventbus)
        return;
    m_eventbus = std::move(eventbus);
    m_shortcutChangeConnection = {};
    m_stateChangeConnection = {};
    if (!m_eventbus)
        return;
    m_shortcutChangeConnection = m_eventbus->Subscribe<Events::CommandShortcutChange>(
        [this](const Events::CommandShortcutChange& event) { OnCommandChanged(event.GetCommandUuid()); });
    m_stateChangeConnection = m_eventbus->Subscribe<Events::CommandStateChange>(
        [this](const Events::CommandStateChange& event) { OnCommandChanged(event.GetCommandUuid()); });
}

std::shared_ptr<EventBus> CommandListModel::GetEventbus() const
{
    return m_eventbus;
}

void CommandListModel::SetServiceCatalog(std::shared_ptr<ServiceCatalog> catalog)
{
    m_catalog = std::move(catalog);
}

void CommandListModel::SetCommandRepository(std::shared_ptr<ICommandRepository> repository)
{
    m_repository = std::move(repository);
    Reload();
}

std::shared_ptr<ICommandRepository> CommandListModel::GetCommandRepository() const
{
    return m_repository;
}

void CommandListModel::OnCommandChanged(const std::wstring& uuid)
{
    const int row = uuid.empty() ? -1 : RowOf(uuid);
    const auto command = (row < 0 || !m_repository) ? std::nullopt : m_repository->FindCommand(uuid);
    if (!command) {
        // A reload, or a command this list does not know yet: read everything again.
        Reload();
        return;
    }
    // One command changed: update its row alone, so that views keep their place.
    m_commands[static_cast<std::size_t>(row)] = *command;
    const QModelIndex changed = index(row);
    emit dataChanged(changed, changed);
}

void CommandListModel::Reload()
{
    const int oldCount = count();
    beginResetModel();
    m_commands = m_repository ? m_repository->GetCommands() : std::vector<CommandDefinition>();
    endResetModel();
    if (count() != oldCount)
        emit countChanged();
}

int CommandListModel::RowOf(const std::wstring& uuid) const
{
    const auto found
        = std::find_if(m_commands.begin(), m_commands.end(),
                       [&uuid](const CommandDefinition& command) { return command.uuid == uuid; });
    return found == m_commands.end() ? -1 : static_cast<int>(found - m_commands.begin());
}

QString CommandListModel::NameText(const CommandDefinition& command) const
{
    const auto loader = m_catalog ? m_catalog->Get<IStringLoader>() : nullptr;
    if (!loader)
        return QString::fromStdWString(command.nameId);
    return QString::fromStdWString(
        loader->Load({ command.nameId, DefaultServices::c_componentsStringTable }));
}

} // namespace Orvo::UI::QtExtensions
