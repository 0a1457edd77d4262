#include "TableColumnsModel.h"

#include "TablesLogging.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

TableColumnsModel::TableColumnsModel(QObject* parent)
    : QAbstractListModel(parent)
{ }

int TableColumnsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : getColumnCount();
}

QVariant TableColumnsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const TableColumnModelItem& item = m_items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case LabelRole:
        return item.label;
    case IdRole:
        return item.id;
    case VisibleRole:
        return item.visible;
    case RequiredRole:
        return item.required;
    default:
        return {};
    }
}

bool TableColumnsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != VisibleRole
        || !checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return false;
    TableColumnModelItem& item = m_items[static_cast<std::size_t>(index.row())];
    const bool visible = value.toBool();
    if (item.visible == visible)
        return false;
    item.visible = visible;
    emit dataChanged(index, index, { VisibleRole });
    emit columnsVisibilityChanged({ index.row() }, visible);
    return true;
}

Qt::ItemFlags TableColumnsModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable;
}

QHash<int, QByteArray> TableColumnsModel::roleNames() const
{
    return {
        { IdRole, "id" }, { LabelRole, "label" }, { VisibleRole, "visible" }, { RequiredRole, "required" }
    };
}

template<typename Predicate> void TableColumnsModel::Show(Predicate shouldShow)
{
    std::vector<int> shown;
    for (int row = 0; row < getColumnCount(); ++row) {
        TableColumnModelItem& item = m_items[static_cast<std::size_t>(row)];
        if (!item.visible && shouldShow(item)) {
            item.visible = true;
            shown.push_back(row);
        }
    }
    if (shown.empty())
        return;
    emit dataChanged(index(shown.front()), index(shown.back()), { VisibleRole });
    emit columnsVisibilityChanged(shown, true);
}

void TableColumnsModel::displayAllColumns()
{
    Show([](const TableColumnModelItem&) { return true; });
}

void TableColumnsModel::displayAllMandatoryColumns()
{
    Show([](const TableColumnModelItem& item) { return item.required; });
}

void TableColumnsModel::hideColumn(const QString& id)
{
    const int row = FindIndexById(id);
    if (row < 0) {
        qCWarning(lcTables) << "hideColumn: no column" << id;
        return;
    }
    setData(index(row), false, VisibleRole);
}

int TableColumnsModel::getFirstVisibleIndex() const
{
    const auto it
        = std::find_if(m_items.begin(), m_items.end(), [](const auto& item) { return item.visible; });
    return it == m_items.end() ? -1 : static_cast<int>(it - m_items.begin());
}

void TableColumnsModel::SetAll(std::vector<TableColumnModelItem>&& items)
{
    // A new table: nothing of the old column list survives, so a reset says it best.
    const int previousCount = getColumnCount();
    beginResetModel();
    m_items = std::move(items);
    endResetModel();
    if (previousCount != getColumnCount() || previousCount > 0)
        emit columnCountChanged();
}

std::vector<QString> TableColumnsModel::GetVisibleIds() const
{
    std::vector<QString> ids;
    for (const TableColumnModelItem& item : m_items) {
        if (item.visible)
            ids.push_back(item.id);
    }
    return ids;
}

int TableColumnsModel::FindIndexById(const QString& id) const
{
    const auto it
        = std::find_if(m_items.begin(), m_items.end(), [&](const auto& item) { return item.id == id; });
    return it == m_items.end() ? -1 : static_cast<int>(it - m_items.begin());
}

void TableColumnsModel::MoveVisibleColumn(const QString& srcId, const QString& dstId)
{
    const int src = FindIndexById(srcId);
    const int dst = dstId.isEmpty() ? getColumnCount() : FindIndexById(dstId);
    if (src < 0 || dst < 0 || dst == src || dst == src + 1)
        return;
    beginMoveRows(QModelIndex(), src, src, QModelIndex(), dst);
    TableColumnModelItem moved = std::move(m_items[static_cast<std::size_t>(src)]);
    m_items.erase(m_items.begin() + src);
    m_items.insert(m_items.begin() + (dst > src ? dst - 1 : dst), std::move(moved));
    endMoveRows();
}

} // namespace Orvo::UI::UIComponents
