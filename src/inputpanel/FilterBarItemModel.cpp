#include "FilterBarItemModel.h"

#include "InputPanelContainerModel.h"
#include "InputPanelLogging.h"
#include "plugin/QtComponentsText.h"

namespace Orvo::UI::UIComponents {

FilterBarItemModel::FilterBarItemModel(QObject* parent)
    : QAbstractListModel(parent)
{ }

void FilterBarItemModel::setContainers(InputPanelContainerModel* containers)
{
    if (m_containers == containers)
        return;
    if (m_containers)
        disconnect(m_containers, nullptr, this, nullptr);
    m_containers = containers;
    if (m_containers) {
        connect(m_containers, &QAbstractItemModel::modelReset, this, &FilterBarItemModel::Recount);
        connect(m_containers, &QAbstractItemModel::rowsInserted, this, &FilterBarItemModel::Recount);
        connect(m_containers, &QAbstractItemModel::rowsRemoved, this, &FilterBarItemModel::Recount);
    }
    Recount();
    emit containersChanged();
}

void FilterBarItemModel::Recount()
{
    QHash<QString, int> counts;
    QStringList order;
    if (m_containers) {
        for (int row = 0; row < m_containers->rowCount(); ++row) {
            const QString category
                = m_containers->index(row).data(InputPanelContainerModel::CategoryRole).toString();
            if (!counts.contains(category))
                order << category;
            ++counts[category];
        }
    }
    // Kinds seen before keep their place; new ones are added in the order the command has them.
    for (std::size_t row = 0; row < m_items.size(); ++row) {
        const int count = counts.value(m_items[row].category);
        if (m_items[row].containerCount != count) {
            m_items[row].containerCount = count;
            emit dataChanged(index(int(row)), index(int(row)), { ContainerCountRole });
        }
        order.removeAll(m_items[row].category);
    }
    if (!order.isEmpty()) {
        beginInsertRows(QModelIndex(), rowCount(), rowCount() + int(order.size()) - 1);
        for (const QString& category : order)
            m_items.push_back({ category, counts.value(category) });
        endInsertRows();
    }
}

QStringList FilterBarItemModel::hiddenCategories() const
{
    QStringList hidden(m_hidden.begin(), m_hidden.end());
    hidden.sort();
    return hidden;
}

void FilterBarItemModel::setHiddenCategories(const QStringList& categories)
{
    const QSet<QString> hidden(categories.begin(), categories.end());
    if (hidden == m_hidden)
        return;
    m_hidden = hidden;
    if (rowCount() > 0)
        emit dataChanged(index(0), index(rowCount() - 1), { CheckedRole });
    emit hiddenCategoriesChanged();
}

void FilterBarItemModel::setChecked(int row, bool checked)
{
    if (row < 0 || row >= rowCount()) {
        qCWarning(lcInputPanel) << "setChecked: no filter item at row" << row;
        return;
    }
    const QString& category = m_items[std::size_t(row)].category;
    if (IsShown(category) == checked)
        return;
    if (checked)
        m_hidden.remove(category);
    else
        m_hidden.insert(category);
    emit dataChanged(index(row), index(row), { CheckedRole });
    emit hiddenCategoriesChanged();
}

int FilterBarItemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_items.size());
}

QVariant FilterBarItemModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return QVariant();
    const Item& item = m_items[std::size_t(index.row())];
    switch (role) {
    case CategoryRole:
        return item.category;
    case Qt::DisplayRole:
    case TitleRole:
        return GetText(item.category);
    case CheckedRole:
        return IsShown(item.category);
    case ContainerCountRole:
        return item.containerCount;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> FilterBarItemModel::roleNames() const
{
    return { { Qt::DisplayRole, "display" },
             { CategoryRole, "category" },
             { TitleRole, "title" },
             { CheckedRole, "shown" },
             { ContainerCountRole, "containerCount" } };
}

} // namespace Orvo::UI::UIComponents
