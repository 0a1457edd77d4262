#include "InputPanelContainerProxyModel.h"

#include "FilterBarItemModel.h"
#include "InputPanelContainerModel.h"
#include "InputPanelLogging.h"

namespace Orvo::UI::UIComponents {

InputPanelContainerProxyModel::InputPanelContainerProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    for (auto signal : { &QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved })
        connect(this, signal, this, &InputPanelContainerProxyModel::countChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &InputPanelContainerProxyModel::countChanged);
}

void InputPanelContainerProxyModel::setFilterItems(FilterBarItemModel* items)
{
    if (m_filterItems == items)
        return;
    if (m_filterItems)
        disconnect(m_filterItems, nullptr, this, nullptr);
    m_filterItems = items;
    if (m_filterItems)
        connect(m_filterItems, &FilterBarItemModel::hiddenCategoriesChanged, this,
                &InputPanelContainerProxyModel::invalidateRowsFilter);
    invalidateRowsFilter();
    emit filterItemsChanged();
}

bool InputPanelContainerProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (!m_filterItems)
        return true;
    const QString category = sourceModel()
                                 ->index(sourceRow, 0, sourceParent)
                                 .data(InputPanelContainerModel::CategoryRole)
                                 .toString();
    return m_filterItems->IsShown(category);
}

void InputPanelContainerProxyModel::setFolded(int row, bool folded)
{
    auto* containers = qobject_cast<InputPanelContainerModel*>(sourceModel());
    if (!containers || row < 0 || row >= rowCount()) {
        qCWarning(lcInputPanel) << "setFolded: no container at row" << row;
        return;
    }
    containers->setFolded(mapToSource(index(row, 0)).row(), folded);
}

} // namespace Orvo::UI::UIComponents
