#include "SubcommandsModel.h"

#include "MenuItemsModel.h"
#include "MenuSystemLogging.h"
#include "commands/ICommandRepository.h"
#include "commands/IUICommandProcessor.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"
#include "qtextensions/File.h"

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

SubcommandsModel::SubcommandsModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_definition(MenuItemsModel::ShippedDefinition())
{
    ServiceCatalog::Global()->Inject(*this);
}

SubcommandsModel::~SubcommandsModel() = default;

void SubcommandsModel::SetDefinition(std::shared_ptr<const MenuDefinition> definition)
{
    m_definition = definition ? std::move(definition) : std::make_shared<MenuDefinition>();
    Rebuild();
}

void SubcommandsModel::setCommandUuid(const QString& commandUuid)
{
    if (m_commandUuid == commandUuid)
        return;
    m_commandUuid = commandUuid;
    Rebuild();
    emit commandUuidChanged();
}

void SubcommandsModel::Rebuild()
{
    const int before = rowCount();
    beginResetModel();
    const MenuEntry* entry = m_definition->FindCommand(m_commandUuid);
    m_subcommands = entry ? entry->subcommands : std::vector<MenuSubcommand>();
    endResetModel();
    if (before != rowCount())
        emit countChanged();
}

bool SubcommandsModel::trigger(int row)
{
    if (row < 0 || row >= rowCount() || !m_repository || !m_processor)
        return false;
    return CatchAtMenuBoundary("Running a sub-command", false, [&] {
        const auto command = m_repository->FindCommand(m_commandUuid.toStdWString());
        if (!command || !command->enabled)
            return false;
        return m_processor->ExecuteCommand(command->uuid,
                                           m_subcommands[std::size_t(row)].parameters.toStdWString(),
                                           MenuItemsModel::c_origin);
    });
}

int SubcommandsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_subcommands.size());
}

QVariant SubcommandsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return QVariant();
    const MenuSubcommand& subcommand = m_subcommands[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case TextRole:
        return GetText(subcommand.nameId);
    case IconRole:
        return subcommand.icon.isEmpty()
            ? QString()
            : QtExtensions::File::createQmlFilePathFromApplicationPath(subcommand.icon.toStdWString());
    case ParametersRole:
        return subcommand.parameters;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> SubcommandsModel::roleNames() const
{
    return { { Qt::DisplayRole, "display" },
             { TextRole, "label" },
             { IconRole, "iconSource" },
             { ParametersRole, "parameters" } };
}

void SubcommandsModel::SetCommandRepository(std::shared_ptr<ICommandRepository> repository)
{
    m_repository = std::move(repository);
}

std::shared_ptr<ICommandRepository> SubcommandsModel::GetCommandRepository() const
{
    return m_repository;
}

void SubcommandsModel::SetUICommandProcessor(std::shared_ptr<IUICommandProcessor> processor)
{
    m_processor = std::move(processor);
}

std::shared_ptr<IUICommandProcessor> SubcommandsModel::GetUICommandProcessor() const
{
    return m_processor;
}

} // namespace Orvo::UI::UIComponents
