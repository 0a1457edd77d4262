#include "MenuItemsModel.h"

#include "MenuSystemLogging.h"
#include "commands/ICommandRepository.h"
#include "commands/IUICommandProcessor.h"
#include "events/CommandShortcutChange.h"
#include "events/CommandStateChange.h"
#include "events/RecentFilesChange.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "kernel/Directories.h"
#include "plugin/QtComponentsText.h"
#include "qtextensions/File.h"

#include <QFileInfo>
#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

MenuItemsModel::MenuItemsModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_definition(ShippedDefinition())
{
    auto catalog = ServiceCatalog::Global();
    catalog->Inject(*this);
    m_recentFiles = catalog->Get<RecentFiles>();
    Rebuild();
}

void MenuItemsModel::SetRecentFiles(std::shared_ptr<RecentFiles> recentFiles)
{
    m_recentFiles = std::move(recentFiles);
    Rebuild();
}

bool MenuItemsModel::ListsRecentFiles() const
{
    const auto* items = m_allCommands ? nullptr : m_definition->FindItems(m_menuId);
    return items && std::any_of(items->begin(), items->end(), [](const MenuEntry& entry) {
               return entry.type == MenuEntry::Type::RecentFiles;
           });
}
MenuItemsModel::~MenuItemsModel() = default;

std::shared_ptr<const MenuDefinition> MenuItemsModel::ShippedDefinition()
{
    auto definition = std::make_shared<MenuDefinition>();
    const auto file
        = Kernel::Directories::GetDirectory(Kernel::Directories::DirectoryType::ApplicationDirectory)
        / "Configuration" / MenuDefinition::c_fileName;
    CatchAtMenuBoundary("Loading the menus", 0, [&] { return definition->Load(file), 0; });
    return definition;
}

void MenuItemsModel::SetDefinition(std::shared_ptr<const MenuDefinition> definition)
{
    m_definition = definition ? std::move(definition) : std::make_shared<MenuDefinition>();
    Rebuild();
}

void MenuItemsModel::setMenuId(const QString& menuId)
{
    if (m_menuId == menuId)
        return;
    m_menuId = menuId;
    Rebuild();
    emit menuIdChanged();
}

void MenuItemsModel::setAllCommands(bool allCommands)
{
    if (m_allCommands == allCommands)
        return;
    m_allCommands = allCommands;
    Rebuild();
    emit allCommandsChanged();
}

void MenuItemsModel::CollectCommands(const std::vector<MenuEntry>& items, const QString& path)
{
    for (const MenuEntry& entry : items) {
        if (entry.type == MenuEntry::Type::Command)
            m_rows.push_back({ &entry, path });
        else if (entry.type == MenuEntry::Type::Submenu)
            CollectCommands(entry.children,
                            path.isEmpty() ? GetText(entry.nameId)
                                           : path + QStringLiteral(" \u203a ") + GetText(entry.nameId));
    }
}

void MenuItemsModel::Rebuild()
{
    const int before = rowCount();
    beginResetModel();
    m_rows.clear();
    if (m_allCommands) {
        CollectCommands(m_definition->Menus(), QString());
    } else if (const auto* items = m_definition->FindItems(m_menuId)) {
        for (const MenuEntry& entry : *items) {
            if (entry.type != MenuEntry::Type::RecentFiles) {
                m_rows.push_back({ &entry, QString() });
            } else if (m_recentFiles) {
                for (const QString& file : m_recentFiles->Files())
                    m_rows.push_back({ &entry, file });
            }
        }
    }
    endResetModel();
    if (rowCount() != before)
        emit countChanged();
}

bool MenuItemsModel::trigger(int row)
{
    if (row < 0 || row >= rowCount() || !m_processor || !m_repository)
        return false;
    const Row& item = m_rows[std::size_t(row)];
    const MenuEntry* entry = item.entry;
    if (entry->type != MenuEntry::Type::Command && entry->type != MenuEntry::Type::RecentFiles)
        return false;
    // Copied: running the command may change the recent files and so rebuild the rows.
    const QString file = item.path;
    return CatchAtMenuBoundary("Running a menu command", false, [&] {
        const auto command = m_repository->FindCommand(entry->commandUuid.toStdWString());
        if (!command || !command->enabled)
            return false;
        const std::wstring parameters = entry->type == MenuEntry::Type::RecentFiles
            ? RecentFiles::c_fileParameter + file.toStdWString()
            : command->parameterString;
        return m_processor->ExecuteCommand(command->uuid, parameters, c_origin);
    });
}

int MenuItemsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant MenuItemsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return QVariant();
    const Row& row = m_rows[std::size_t(index.row())];
    const MenuEntry& entry = *row.entry;
    switch (entry.type) {
    case MenuEntry::Type::Separator:
        return role == ItemTypeRole ? QVariant(SeparatorItem) : EmptyValue(role);
    case MenuEntry::Type::Submenu:
        switch (role) {
        case ItemTypeRole:
            return SubmenuItem;
        case Qt::DisplayRole:
        case TextRole:
            return GetText(entry.nameId);
        case SubmenuIdRole:
            return entry.id;
        default:
            return EmptyValue(role);
        }
    case MenuEntry::Type::RecentFiles:
        return RecentFileData(row, role);
    case MenuEntry::Type::Command:
        break;
    }
    const auto command
        = m_repository ? m_repository->FindCommand(entry.commandUuid.toStdWString()) : std::nullopt;
    switch (role) {
    case ItemTypeRole:
        return CommandItem;
    case Qt::DisplayRole:
    case TextRole:
        return command ? GetText(QString::fromStdWString(command->nameId)) : entry.commandUuid;
    case IconRole:
        return command ? QtExtensions::File::createQmlFilePathFromApplicationPath(command->icon) : QString();
    case ShortcutRole:
        return command ? QString::fromStdWString(command->shortcut) : QString();
    case EnabledRole:
        return command && command->enabled;
    case ShownRole:
        // A command the repository does not know is not shown either.
        return command && command->visible;
    case UuidRole:
        return entry.commandUuid;
    case PathRole:
        return row.path;
    case HasSubcommandsRole:
        return !entry.subcommands.empty();
    case CheckableRole:
        return command && command->checkable;
    case CheckedRole:
        return command && command->checked;
    default:
        return EmptyValue(role);
    }
}

QVariant MenuItemsModel::RecentFileData(const Row& row, int role) const
{
    switch (role) {
    case ItemTypeRole:
        return RecentFileItem;
    case Qt::DisplayRole:
    case TextRole:
        return QFileInfo(row.path).fileName();
    case FileRole:
        return row.path;
    case UuidRole:
        return row.entry->commandUuid;
    case EnabledRole: {
        const auto command
            = m_repository ? m_repository->FindCommand(row.entry->commandUuid.toStdWString()) : std::nullopt;
        return command && command->enabled;
    }
    default:
        return EmptyValue(role);
    }
}

QVariant MenuItemsModel::EmptyValue(int role)
{
    // Every row answers every role, so that a delegate can require them all whatever the row is.
    switch (role) {
    case EnabledRole:
    case ShownRole:
        return true;
    case HasSubcommandsRole:
    case CheckableRole:
    case CheckedRole:
        return false;
    case TextRole:
    case Qt::DisplayRole:
    case IconRole:
    case ShortcutRole:
    case UuidRole:
    case SubmenuIdRole:
    case PathRole:
    case FileRole:
        return QString();
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> MenuItemsModel::roleNames() const
{
    // Named apart from the properties of the controls that show them (a menu item's text, icon
    // and checked), so that a delegate can take them as required properties.
    return { { Qt::DisplayRole, "display" },
             { ItemTypeRole, "itemType" },
             { TextRole, "label" },
             { IconRole, "iconSource" },
             { ShortcutRole, "shortcut" },
             { EnabledRole, "available" },
             { ShownRole, "shown" },
             { UuidRole, "uuid" },
             { SubmenuIdRole, "submenuId" },
             { PathRole, "path" },
             { HasSubcommandsRole, "hasSubcommands" },
             { CheckableRole, "isCheckable" },
             { CheckedRole, "isChecked" },
             { FileRole, "file" } };
}

void MenuItemsModel::OnCommandStateChanged(const std::wstring& uuid)
{
    if (rowCount() == 0)
        return;
    // A reload of the repository (empty identifier) may change every row.
    if (uuid.empty()) {
        emit dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    const QString changed = QString::fromStdWString(uuid);
    for (int row = 0; row < rowCount(); ++row) {
        if (m_rows[std::size_t(row)].entry->commandUuid == changed)
            emit dataChanged(index(row), index(row), { EnabledRole, ShownRole, CheckedRole });
    }
}

void MenuItemsModel::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    if (!m_eventbus) {
        m_stateConnection = EventConnection();
        m_shortcutConnection = EventConnection();
        m_recentFilesConnection = EventConnection();
        return;
    }
    m_recentFilesConnection = m_eventbus->Subscribe<Events::RecentFilesChange>([this](const auto&) {
        if (ListsRecentFiles())
            Rebuild();
    });
    m_stateConnection = m_eventbus->Subscribe<Events::CommandStateChange>(
        [this](const Events::CommandStateChange& event) { OnCommandStateChanged(event.GetCommandUuid()); });
    m_shortcutConnection = m_eventbus->Subscribe<Events::CommandShortcutChange>([this](const auto&) {
        if (rowCount() > 0)
            emit dataChanged(index(0), index(rowCount() - 1), { ShortcutRole });
    });
}

std::shared_ptr<EventBus> MenuItemsModel::GetEventbus() const
{
    return m_eventbus;
}

void MenuItemsModel::SetCommandRepository(std::shared_ptr<ICommandRepository> repository)
{
    m_repository = std::move(repository);
}

std::shared_ptr<ICommandRepository> MenuItemsModel::GetCommandRepository() const
{
    return m_repository;
}

void MenuItemsModel::SetUICommandProcessor(std::shared_ptr<IUICommandProcessor> processor)
{
    m_processor = std::move(processor);
}

std::shared_ptr<IUICommandProcessor> MenuItemsModel::GetUICommandProcessor() const
{
    return m_processor;
}

} // namespace Orvo::UI::UIComponents
