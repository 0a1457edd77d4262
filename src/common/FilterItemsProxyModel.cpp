#include "FilterItemsProxyModel.h"

#include "SelectionModel.h"

namespace Orvo::UI::UIComponents {

FilterItemsProxyModel::FilterItemsProxyModel(QObject* parent)
    : SearchableProxyModel(parent)
{
    connect(this, &QAbstractItemModel::rowsInserted, this, &FilterItemsProxyModel::checkStateChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &FilterItemsProxyModel::checkStateChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &FilterItemsProxyModel::checkStateChanged);
    connect(this, &QAbstractItemModel::layoutChanged, this, &FilterItemsProxyModel::checkStateChanged);
}

void FilterItemsProxyModel::setSelectionModel(SelectionModel* selectionModel)
{
    if (m_selectionModel == selectionModel)
        return;
    disconnect(m_selectionConnection);
    m_selectionModel = selectionModel;
    if (m_selectionModel)
        m_selectionConnection = connect(m_selectionModel, &SelectionModel::selectionChanged, this,
                                        &FilterItemsProxyModel::OnSelectionChanged);
    emit selectionModelChanged();
    OnSelectionChanged();
}

void FilterItemsProxyModel::setOnlySelected(bool onlySelected)
{
    if (m_onlySelected == onlySelected)
        return;
    m_onlySelected = onlySelected;
    Refilter();
    emit onlySelectedChanged();
}

void FilterItemsProxyModel::Refilter()
{
    invalidateFilter();
    emit countChanged();
    emit checkStateChanged();
}

void FilterItemsProxyModel::OnSelectionChanged()
{
    if (m_onlySelected)
        invalidateFilter();
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0), { SelectedRole });
    emit checkStateChanged();
}

QVariant FilterItemsProxyModel::KeyOfRow(int row) const
{
    return m_selectionModel ? m_selectionModel->KeyOf(index(row, 0)) : QVariant();
}

Qt::CheckState FilterItemsProxyModel::checkState() const
{
    if (!m_selectionModel)
        return Qt::Unchecked;
    int selected = 0;
    for (int row = 0; row < rowCount(); ++row) {
        if (m_selectionModel->isSelected(KeyOfRow(row)))
            ++selected;
    }
    if (selected == 0)
        return Qt::Unchecked;
    return selected == rowCount() ? Qt::Checked : Qt::PartiallyChecked;
}

void FilterItemsProxyModel::setAllSelected(bool selected)
{
    if (!m_selectionModel)
        return;
    QVariantList keys;
    for (int row = 0; row < rowCount(); ++row)
        keys << KeyOfRow(row);
    m_selectionModel->setKeysSelected(keys, selected);
}

void FilterItemsProxyModel::toggle(int row)
{
    if (m_selectionModel && row >= 0 && row < rowCount())
        m_selectionModel->toggle(KeyOfRow(row));
}

QVariant FilterItemsProxyModel::data(const QModelIndex& index, int role) const
{
    if (role == SelectedRole)
        return index.isValid() && m_selectionModel && m_selectionModel->isSelected(KeyOfRow(index.row()));
    return SearchableProxyModel::data(index, role);
}

bool FilterItemsProxyModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != SelectedRole)
        return SearchableProxyModel::setData(index, value, role);
    if (!index.isValid() || !m_selectionModel || !KeyOfRow(index.row()).isValid())
        return false;
    m_selectionModel->setSelected(KeyOfRow(index.row()), value.toBool());
    return true;
}

QHash<int, QByteArray> FilterItemsProxyModel::roleNames() const
{
    QHash<int, QByteArray> names = SearchableProxyModel::roleNames();
    names.insert(SelectedRole, "selected");
    return names;
}

bool FilterItemsProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (sourceParent.isValid())
        return false;
    const QModelIndex item = sourceModel()->index(sourceRow, 0);
    if (m_onlySelected && !(m_selectionModel && m_selectionModel->isSelected(m_selectionModel->KeyOf(item))))
        return false;
    return Words().isEmpty() || MatchQuality(sourceRow) > 0;
}

} // namespace Orvo::UI::UIComponents
