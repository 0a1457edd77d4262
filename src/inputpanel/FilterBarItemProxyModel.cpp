#include "FilterBarItemProxyModel.h"

#include "FilterBarItemModel.h"
#include "InputPanelLogging.h"

namespace Orvo::UI::UIComponents {

FilterBarItemProxyModel::FilterBarItemProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    // A kind comes and goes with its count.
    setDynamicSortFilter(true);
    for (auto signal : { &QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved })
        connect(this, signal, this, &FilterBarItemProxyModel::countChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &FilterBarItemProxyModel::countChanged);
}

bool FilterBarItemProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    return sourceModel()
               ->index(sourceRow, 0, sourceParent)
               .data(FilterBarItemModel::ContainerCountRole)
               .toInt()
        > 0;
}

void FilterBarItemProxyModel::setChecked(int row, bool checked)
{
    auto* items = qobject_cast<FilterBarItemModel*>(sourceModel());
    if (!items || row < 0 || row >= rowCount()) {
        qCWarning(lcInputPanel) << "setChecked: no filter item at row" << row;
        return;
    }
    items->setChecked(mapToSource(index(row, 0)).row(), checked);
}

} // namespace Orvo::UI::UIComponents
