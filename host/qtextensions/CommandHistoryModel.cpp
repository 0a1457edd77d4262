#include "CommandHistoryModel.h"

#include "commands/CommandHistory.h"
#include "commands/CommandOrigin.h"
#include "commands/ICommandRepository.h"
#include "framework/DefaultServices.h"
#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"

namespace Orvo::UI::QtExtensions {

using namespace Kernel::Framework;

namespace {

QString CommandName(const std::wstring& uuid)
{
    const auto catalog = ServiceCatalog::Global();
    const auto repository = catalog ? catalog->Get<ICommandRepository>() : nullptr;
    const auto strings = catalog ? catalog->Get<IStringLoader>() : nullptr;
    const auto command = repository ? repository->FindCommand(uuid) : std::nullopt;
    if (!command || !strings)
        return QString::fromStdWString(uuid);
    return QString::fromStdWString(
        strings->Load({ command->nameId, DefaultServices::c_componentsStringTable }));
}

} // namespace

CommandHistoryModel::CommandHistoryModel(QObject* parent)
    : QAbstractListModel(parent)
{
    const auto catalog = ServiceCatalog::Global();
    m_history = catalog ? catalog->Get<CommandHistory>() : nullptr;
    if (!m_history)
        return;
    // Row 0 is the latest record: the oldest, dropped from a full history, is the last row.
    connect(m_history.get(), &CommandHistory::oldestAboutToBeDropped, this,
            [this]() { beginRemoveRows(QModelIndex(), rowCount() - 1, rowCount() - 1); });
    connect(m_history.get(), &CommandHistory::oldestDropped, this, [this]() {
        endRemoveRows();
        emit countChanged();
    });
    connect(m_history.get(), &CommandHistory::recordAboutToBeAdded, this,
            [this]() { beginInsertRows(QModelIndex(), 0, 0); });
    connect(m_history.get(), &CommandHistory::recordAdded, this, [this]() {
        endInsertRows();
        emit countChanged();
    });
}

int CommandHistoryModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() || !m_history)
        return 0;
    return static_cast<int>(m_history->GetRecords().size());
}

QVariant CommandHistoryModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    // Row 0 is the latest record, the history's last.
    const auto& records = m_history->GetRecords();
    const CommandRecord& record = records[records.size() - 1 - static_cast<std::size_t>(index.row())];
    switch (role) {
    case CommandUuidRole:
        return QString::fromStdWString(record.commandUuid);
    case Qt::DisplayRole:
    case NameRole:
        return CommandName(record.commandUuid);
    case ParametersRole:
        return QString::fromStdWString(record.parameterString);
    case OriginRole:
        return QString::fromStdWString(CommandOrigin::DisplayName(record.origin));
    case TimeRole:
        return record.time;
    default:
        return {};
    }
}

QHash<int, QByteArray> CommandHistoryModel::roleNames() const
{
    return { { CommandUuidRole, "commandUuid" },
             { NameRole, "name" },
             { ParametersRole, "parameters" },
             { OriginRole, "origin" },
             { TimeRole, "time" } };
}

} // namespace Orvo::UI::QtExtensions
