#include "TableWorkstationsModel.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

TableWorkstationsModel::TableWorkstationsModel(QObject* parent)
    : QAbstractListModel(parent)
{ }

int TableWorkstationsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant TableWorkstationsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const TableWorkstationItem& item = m_items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole:
        return item.id;
    case IconRole:
        return item.icon;
    case Qt::DisplayRole:
    case LabelRole:
        return item.label;
    default:
        return {};
    }
}

QHash<int, QByteArray> TableWorkstationsModel::roleNames() const
{
    return { { IdRole, "id" }, { IconRole, "icon" }, { LabelRole, "label" } };
}

void TableWorkstationsModel::setSelectedIndex(int index)
{
    if (m_selectedIndex == index)
        return;
    m_selectedIndex = index;
    emit selectedIndexChanged();
}

void TableWorkstationsModel::Set(std::vector<TableWorkstationItem>&& items)
{
    const QString selected = SelectedId();
    // Another host state altogether: nothing of the old list is worth keeping row by row.
    beginResetModel();
    m_items = std::move(items);
    endResetModel();
    setSelectedIndex(FindIndexById(selected));
}

int TableWorkstationsModel::FindIndexById(const QString& id) const
{
    const auto it = std::find_if(m_items.begin(), m_items.end(),
                                 [&id](const TableWorkstationItem& item) { return item.id == id; });
    return it == m_items.end() ? -1 : static_cast<int>(it - m_items.begin());
}

QString TableWorkstationsModel::SelectedId() const
{
    if (m_selectedIndex < 0 || m_selectedIndex >= rowCount())
        return {};
    return m_items[static_cast<std::size_t>(m_selectedIndex)].id;
}

} // namespace Orvo::UI::UIComponents
