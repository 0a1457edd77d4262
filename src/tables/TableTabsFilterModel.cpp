#include "TableTabsFilterModel.h"

#include "TableTabsModel.h"
#include "TablesLogging.h"

namespace Orvo::UI::UIComponents {

TableTabsFilterModel::TableTabsFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setSortRole(TableTabsModel::EnabledIndexRole);
    sort(0, Qt::AscendingOrder);
    connect(this, &QSortFilterProxyModel::sourceModelChanged, this,
            &TableTabsFilterModel::CatchSourceModelChanged);
    // The selected tab keeps its item but changes place when tabs open, close or move.
    const auto follow = [this]() { FollowSelectedPlace(); };
    connect(this, &QAbstractItemModel::layoutChanged, this, follow);
    connect(this, &QAbstractItemModel::modelReset, this, follow);
    connect(this, &QAbstractItemModel::rowsInserted, this, follow);
    connect(this, &QAbstractItemModel::rowsRemoved, this, follow);
}

TableTabsModel* TableTabsFilterModel::Tabs() const
{
    return qobject_cast<TableTabsModel*>(sourceModel());
}

int TableTabsFilterModel::selectedIndex() const
{
    const TableTabsModel* tabs = Tabs();
    if (!tabs)
        return -1;
    return mapFromSource(tabs->index(tabs->selectedIndex())).row();
}

void TableTabsFilterModel::setSelectedIndex(int index)
{
    TableTabsModel* tabs = Tabs();
    if (!tabs)
        return;
    tabs->setSelectedIndex(mapToSource(this->index(index, 0)).row());
}

bool TableTabsFilterModel::move(int srcIndex, int dstIndex)
{
    TableTabsModel* tabs = Tabs();
    if (!tabs)
        return false;
    const bool moved = tabs->Move(srcIndex, dstIndex);
    if (moved)
        invalidate();
    return moved;
}

bool TableTabsFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    return sourceModel()->index(sourceRow, 0, sourceParent).data(TableTabsModel::EnabledRole).toBool();
}

void TableTabsFilterModel::CatchSourceModelChanged()
{
    disconnect(m_selectedIndexConnection);
    if (TableTabsModel* tabs = Tabs())
        m_selectedIndexConnection = connect(tabs, &TableTabsModel::selectedIndexChanged, this,
                                            &TableTabsFilterModel::CatchSourceModelSelectedIndexChanged);
    else if (sourceModel())
        qCWarning(lcTables) << "TableTabsFilterModel: the source is not a TableTabsModel";
    FollowSelectedPlace();
}

void TableTabsFilterModel::CatchSourceModelSelectedIndexChanged()
{
    FollowSelectedPlace();
}

void TableTabsFilterModel::FollowSelectedPlace()
{
    const int selected = selectedIndex();
    if (selected == m_shownSelectedIndex)
        return;
    m_shownSelectedIndex = selected;
    emit selectedIndexChanged();
}

} // namespace Orvo::UI::UIComponents
