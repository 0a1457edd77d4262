#include "FilterBarModel.h"

#include <QHash>
#include <algorithm>

namespace Orvo::UI::UIComponents {

FilterBarModel::FilterBarModel(QObject* parent)
    : QAbstractListModel(parent)
{
    connect(this, &QAbstractItemModel::rowsInserted, this, &FilterBarModel::rowCountChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &FilterBarModel::rowCountChanged);
    connect(this, &QAbstractItemModel::layoutChanged, this, &FilterBarModel::rowCountChanged);
}

int FilterBarModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : getRowCount();
}

QVariant FilterBarModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    if (role != Qt::DisplayRole && role != ConditionTextRole)
        return {};
    return m_items[static_cast<std::size_t>(index.row())].conditionText;
}

bool FilterBarModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if ((role != Qt::EditRole && role != ConditionTextRole)
        || !checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return false;
    Item& item = m_items[static_cast<std::size_t>(index.row())];
    const QString text = value.toString();
    if (text == item.conditionText)
        return true;
    const bool wasEmpty = item.conditionText.isEmpty();
    item.conditionText = text;
    emit dataChanged(index, index, { ConditionTextRole });
    if (wasEmpty != text.isEmpty())
        emit anyConditionChanged();
    return true;
}

Qt::ItemFlags FilterBarModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsEditable;
}

QHash<int, QByteArray> FilterBarModel::roleNames() const
{
    return { { ConditionTextRole, "conditionText" } };
}

bool FilterBarModel::anyCondition() const
{
    return std::any_of(m_items.begin(), m_items.end(),
                       [](const Item& item) { return !item.conditionText.isEmpty(); });
}

void FilterBarModel::clearAll()
{
    if (m_items.empty())
        return;
    for (Item& item : m_items)
        item.conditionText.clear();
    emit dataChanged(index(0), index(getRowCount() - 1), { ConditionTextRole });
    emit anyConditionChanged();
}

void FilterBarModel::Insert(int row, std::vector<QString> const& columnIds)
{
    if (columnIds.empty())
        return;
    row = std::clamp(row, 0, getRowCount());
    beginInsertRows(QModelIndex(), row, row + static_cast<int>(columnIds.size()) - 1);
    std::vector<Item> items;
    for (const QString& id : columnIds)
        items.push_back({ id, QString() });
    m_items.insert(m_items.begin() + row, items.begin(), items.end());
    endInsertRows();
}

void FilterBarModel::Remove(int row, int count)
{
    if (row < 0 || row >= getRowCount() || count <= 0)
        return;
    const int last = std::min(getRowCount() - 1, row + count - 1);
    beginRemoveRows(QModelIndex(), row, last);
    m_items.erase(m_items.begin() + row, m_items.begin() + last + 1);
    endRemoveRows();
    emit anyConditionChanged();
}

void FilterBarModel::SynchronizeColumns(std::vector<QString> const& columnIds)
{
    // Texts follow their columns by id; the rows are rebuilt in the new column order.
    emit layoutAboutToBeChanged();
    QHash<QString, QString> texts;
    for (const Item& item : m_items)
        texts.insert(item.columnId, item.conditionText);
    std::vector<Item> items;
    items.reserve(columnIds.size());
    for (const QString& id : columnIds) {
        const auto it = texts.find(id);
        items.push_back({ id, it == texts.end() ? QString() : it.value() });
    }
    const QModelIndexList persistent = persistentIndexList();
    m_items = std::move(items);
    // Rows may have come and gone: indexes held by views cannot follow them reliably.
    for (const QModelIndex& index : persistent)
        changePersistentIndex(index, QModelIndex());
    emit layoutChanged();
}

} // namespace Orvo::UI::UIComponents
