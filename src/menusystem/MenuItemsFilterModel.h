#pragma once

#include <QSortFilterProxyModel>

namespace Orvo::UI::UIComponents {

// What a menu shows of a MenuItemsModel: hidden commands left out, and the separators that would
// then begin or end the menu or follow one another. With a fixed-string filter (over a model of
// all commands) only the commands whose name or path holds every word typed, separators and
// sub-menus left out; with a regular expression, the commands whose name or path matches it.
//
// The class adds no meta-object of its own: QML sees a QSortFilterProxyModel, so a menu is
// driven only through the proxy's own API (setFilterFixedString, index, mapToSource), and hosts
// that know the proxy need nothing more.
class MenuItemsFilterModel : public QSortFilterProxyModel
{
public:
    explicit MenuItemsFilterModel(QObject* parent = nullptr);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    bool Shown(int sourceRow) const;
    bool IsSeparator(int sourceRow) const;
    const QStringList& SearchWords() const;

    // The words of the filter's text, split again only when the text changes.
    mutable QString m_wordsPattern;
    mutable QStringList m_words;
    mutable bool m_isRegularExpression = false;
};

} // namespace Orvo::UI::UIComponents
