#include "MenuItemsModel.h"

#include "MenuSystemLogging.h"
#include "commands/ICommandRepository.h"
#include "commands/IUICommandProcessor.h"
#include "events/CommandShortcutChange.h"
#include "events/CommandStateChange.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "kernel/Directories.h"
#include "plugin/QtComponentsText.h"
#include "qtextensions/File.h"

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

MenuItemsModel::MenuItemsModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_definition(ShippedDefinition())
{
    ServiceCatalog::Global()->Inject(*this);
    Rebuild();
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
        for (const MenuEntry& entry : *items)
            m_rows.push_back({ &entry, QString() });
    }
    endResetModel();
    if (rowCount() != before)
        emit countChanged();
}

bool MenuItemsModel::trigger(int row)
{
    if (row < 0 || row >= rowCount() || !m_processor || !m_repository)
        return false;
    const MenuEntry* entry = m_rows[std::size_t(row)].entry;
    if (entry->type != MenuEntry::Type::Command)
        return false;
    return CatchAtMenuBoundary("Running a menu command", false, [&] {
        const auto command = m_repository->FindCommand(entry->commandUuid.toStdWString());
        if (!command || !command->enabled)
            return false;
        return m_processor->ExecuteCommand(command->uuid, command->parameterString, c_origin);
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
        return role == ItemTypeRole ? QVariant(SeparatorItem)
            : role == ShownRole     ? QVariant(true)
                                    : QVariant();
    case MenuEntry::Type::Submenu:
        switch (role) {
        case ItemTypeRole:
            return SubmenuItem;
        case Qt::DisplayRole:
        case TextRole:
            return GetText(entry.nameId);
        case SubmenuIdRole:
            return entry.id;
        case EnabledRole:
        case ShownRole:
            return true;
        default:
            return QVariant();
        }
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
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> MenuItemsModel::roleNames() const
{
    return { { Qt::DisplayRole, "display" },
             { ItemTypeRole, "itemType" },
             { TextRole, "text" },
             { IconRole, "icon" },
             { ShortcutRole, "shortcut" },
             { EnabledRole, "available" },
             { ShownRole, "shown" },
             { UuidRole, "uuid" },
             { SubmenuIdRole, "submenuId" },
             { PathRole, "path" },
             { HasSubcommandsRole, "hasSubcommands" } };
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
            emit dataChanged(index(row), index(row), { EnabledRole, ShownRole });
    }
}

void MenuItemsModel::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    if (!m_eventbus) {
        m_stateConnection = EventConnection();
        m_shortcutConnection = EventConnection();
        return;
    }
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
