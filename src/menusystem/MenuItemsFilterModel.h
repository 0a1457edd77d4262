#pragma once

#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// What a menu shows of a MenuItemsModel: hidden commands left out, and the separators that would
// then begin or end the menu or follow one another. With searchText (over a model of all
// commands) only the commands whose name or path holds every word typed, separators and
// sub-menus left out.
class MenuItemsFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MenuItemsFilterModel)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit MenuItemsFilterModel(QObject* parent = nullptr);

    QString searchText() const { return m_searchText; }
    void setSearchText(const QString& searchText);
    int count() const { return rowCount(); }

    // Runs the row's command through the source model.
    Q_INVOKABLE bool trigger(int row);

signals:
    void searchTextChanged();
    void countChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    bool Shown(int sourceRow) const;
    bool IsSeparator(int sourceRow) const;

    QString m_searchText;
    QStringList m_words;
};

} // namespace Orvo::UI::UIComponents
