#include "NotificationsFilterModel.h"

#include "NotificationsModel.h"

namespace Orvo::UI::UIComponents {

NotificationsFilterModel::NotificationsFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    // A toast that expires changes its row's data: the proxy has to drop it then.
    setDynamicSortFilter(true);
    for (auto signal : { &QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved })
        connect(this, signal, this, &NotificationsFilterModel::countChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &NotificationsFilterModel::countChanged);
    connect(this, &QAbstractItemModel::layoutChanged, this, &NotificationsFilterModel::countChanged);
}

void NotificationsFilterModel::setSelectionModel(NotificationsButtonsSelectionModel* selectionModel)
{
    if (m_selectionModel == selectionModel)
        return;
    disconnect(m_selectionConnection);
    m_selectionModel = selectionModel;
    if (selectionModel)
        m_selectionConnection = connect(selectionModel, &NotificationsButtonsSelectionModel::selectionChanged,
                                        this, &NotificationsFilterModel::invalidateFilter);
    invalidateFilter();
    emit selectionModelChanged();
}

void NotificationsFilterModel::setToastsOnly(bool toastsOnly)
{
    if (m_toastsOnly == toastsOnly)
        return;
    m_toastsOnly = toastsOnly;
    invalidateFilter();
    emit toastsOnlyChanged();
}

int NotificationsFilterModel::sourceRow(int row) const
{
    return mapToSource(index(row, 0)).row();
}

bool NotificationsFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const QModelIndex entry = sourceModel()->index(sourceRow, 0, sourceParent);
    if (m_toastsOnly && !entry.data(NotificationsModel::ToastRole).toBool())
        return false;
    return !m_selectionModel
        || m_selectionModel->Accepts(entry.data(NotificationsModel::SeverityRole).toInt());
}

} // namespace Orvo::UI::UIComponents
