#include "MenuItemsFilterModel.h"

#include "MenuItemsModel.h"
#include "common/SearchText.h"

#include <QRegularExpression>

namespace Orvo::UI::UIComponents {

MenuItemsFilterModel::MenuItemsFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    // A command shown or hidden changes its neighbouring separators too.
    setDynamicSortFilter(true);
    connect(this, &QAbstractProxyModel::sourceModelChanged, this, [this] {
        if (sourceModel())
            connect(sourceModel(), &QAbstractItemModel::dataChanged, this, [this] { invalidateFilter(); });
    });
}

const QStringList& MenuItemsFilterModel::SearchWords() const
{
    const QString pattern = filterRegularExpression().pattern();
    if (pattern != m_wordsPattern) {
        // setFilterFixedString stores its text escaped: every escape is a backslash before the
        // character itself, except NUL, which the words never hold. A pattern that is not the
        // escaped form of its own text was set as a regular expression and is matched as one.
        QString text;
        text.reserve(pattern.size());
        for (qsizetype i = 0; i < pattern.size(); ++i) {
            if (pattern.at(i) == QLatin1Char('\\') && i + 1 < pattern.size())
                ++i;
            text += pattern.at(i);
        }
        m_wordsPattern = pattern;
        m_isRegularExpression = QRegularExpression::escape(text) != pattern;
        m_words = m_isRegularExpression ? QStringList() : SearchText::Words(text);
    }
    return m_words;
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
    const QStringList& words = SearchWords();
    if (!words.isEmpty() || m_isRegularExpression) {
        if (item.data(MenuItemsModel::ItemTypeRole).toInt() != MenuItemsModel::CommandItem)
            return false;
        const QString text = item.data(MenuItemsModel::TextRole).toString() + QLatin1Char(' ')
            + item.data(MenuItemsModel::PathRole).toString();
        if (m_isRegularExpression)
            return filterRegularExpression().match(text).hasMatch();
        return SearchText::MatchQuality(SearchText::Folded(text), words) > 0;
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
