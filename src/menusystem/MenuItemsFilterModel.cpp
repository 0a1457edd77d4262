#include "MenuItemsFilterModel.h"

#include "MenuItemsModel.h"
#include "common/SearchText.h"

namespace Orvo::UI::UIComponents {

MenuItemsFilterModel::MenuItemsFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    const auto announce = [this] { emit countChanged(); };
    connect(this, &QAbstractItemModel::rowsInserted, this, announce);
    connect(this, &QAbstractItemModel::rowsRemoved, this, announce);
    connect(this, &QAbstractItemModel::modelReset, this, announce);
    connect(this, &QAbstractItemModel::layoutChanged, this, announce);
    // A command shown or hidden changes its neighbouring separators too.
    setDynamicSortFilter(true);
    connect(this, &QAbstractProxyModel::sourceModelChanged, this, [this] {
        if (sourceModel())
            connect(sourceModel(), &QAbstractItemModel::dataChanged, this, [this] { invalidateFilter(); });
    });
}

void MenuItemsFilterModel::setSearchText(const QString& searchText)
{
    if (m_searchText == searchText)
        return;
    m_searchText = searchText;
    m_words = SearchText::Words(searchText);
    invalidateFilter();
    emit searchTextChanged();
    emit countChanged();
}

bool MenuItemsFilterModel::trigger(int row)
{
    auto* items = qobject_cast<MenuItemsModel*>(sourceModel());
    if (!items || row < 0 || row >= rowCount())
        return false;
    return items->trigger(mapToSource(index(row, 0)).row());
}

bool MenuItemsFilterModel::IsSeparator(int sourceRow) const
{
    return sourceModel()->index(sourceRow, 0).data(MenuItemsModel::ItemTypeRole).toInt()
        == MenuItemsModel::SeparatorItem;
}

bool MenuItemsFilterModel::Shown(int sourceRow) const
{
    return sourceModel()->index(sourceRow, 0).data(MenuItemsModel::ShownRole).toBool();
}

bool MenuItemsFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (sourceParent.isValid() || !Shown(sourceRow))
        return false;
    const QModelIndex item = sourceModel()->index(sourceRow, 0);
    if (!m_words.isEmpty()) {
        if (item.data(MenuItemsModel::ItemTypeRole).toInt() != MenuItemsModel::CommandItem)
            return false;
        const QString text = item.data(MenuItemsModel::TextRole).toString() + QLatin1Char(' ')
            + item.data(MenuItemsModel::PathRole).toString();
        return SearchText::MatchQuality(SearchText::Folded(text), m_words) > 0;
    }
    if (!IsSeparator(sourceRow))
        return true;
    // A separator stands between two shown items, and only the first of a run stays.
    bool itemBefore = false;
    for (int row = sourceRow - 1; row >= 0; --row) {
        if (!Shown(row))
            continue;
        if (IsSeparator(row))
            break;
        itemBefore = true;
        break;
    }
    if (!itemBefore)
        return false;
    for (int row = sourceRow + 1; row < sourceModel()->rowCount(); ++row) {
        if (Shown(row) && !IsSeparator(row))
            return true;
    }
    return false;
}

} // namespace Orvo::UI::UIComponents
