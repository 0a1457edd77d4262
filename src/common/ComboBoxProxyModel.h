#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The list of a searchable combo box: the source model's items whose text (the role named by
// textRole) holds every word typed in searchText, best matches first: the text starting with
// what was typed, then texts with a word starting with it, then the rest, each in source order.
// With no search the source order is kept.
class ComboBoxProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ComboBoxProxyModel)
    Q_PROPERTY(QString textRole READ textRole WRITE setTextRole NOTIFY textRoleChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    // The text of textRole under one name, so that a delegate need not know which role it is.
    enum Roles
    {
        ItemTextRole = Qt::UserRole + 1001,
    };
    Q_ENUM(Roles)

    explicit ComboBoxProxyModel(QObject* parent = nullptr);

    QString textRole() const { return m_textRole; }
    void setTextRole(const QString& textRole);
    QString searchText() const { return m_searchText; }
    void setSearchText(const QString& searchText);
    int count() const { return rowCount(); }

    // Rows of this list and of the source; -1 for a row that is not there.
    Q_INVOKABLE int sourceRow(int row) const;
    Q_INVOKABLE int rowOfSource(int sourceRow) const;
    // The text of a row of this list; empty for a row that is not there.
    Q_INVOKABLE QString textAt(int row) const;
    // The first row whose text is the given one, accents and case aside; -1 when none is.
    Q_INVOKABLE int findText(const QString& text) const;

    void setSourceModel(QAbstractItemModel* sourceModel) override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void textRoleChanged();
    void searchTextChanged();
    void countChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
    // The text a row is searched and shown by.
    QString SourceText(int sourceRow) const;
    // Takes a new search into account: filters and orders again.
    void Refilter();

private:
    int TextRoleId() const;
    void CheckTextRole() const;
    int Quality(int sourceRow) const;

    QString m_textRole = QStringLiteral("display");
    QString m_searchText;
    QStringList m_words;
};

} // namespace Orvo::UI::UIComponents
