#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// What the lists of search fields share: the text of one role of the source model (textRole),
// offered to delegates as "itemText", and the words typed in searchText that it is matched
// against, accents and case aside. The role is looked up by name once per source model and role
// name, not for every row a filter or a sort visits. Derived types name this base in full: the
// generated type description finds a base by its qualified name.
class SearchableProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString textRole READ textRole WRITE setTextRole NOTIFY textRoleChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Roles
    {
        // The text of textRole under one name, so that a delegate need not know which role it is.
        ItemTextRole = Qt::UserRole + 1001,
    };
    Q_ENUM(Roles)

    explicit SearchableProxyModel(QObject* parent = nullptr);

    QString textRole() const { return m_textRole; }
    void setTextRole(const QString& textRole);
    QString searchText() const { return m_searchText; }
    void setSearchText(const QString& searchText);
    int count() const { return rowCount(); }

    void setSourceModel(QAbstractItemModel* sourceModel) override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void textRoleChanged();
    void searchTextChanged();
    void countChanged();

protected:
    // The words of searchText; empty when nothing is searched.
    const QStringList& Words() const { return m_words; }
    // The text a source row is searched and shown by; empty when the role is not there.
    QString SourceText(int sourceRow) const;
    // How well a source row matches the words; 0 when it does not.
    int MatchQuality(int sourceRow) const;
    // A new search or text role: filter (and order) again.
    virtual void Refilter() = 0;

private:
    int TextRoleId() const;
    void ForgetTextRole();
    void WarnOfMissingTextRole() const;

    QString m_textRole = QStringLiteral("display");
    QString m_searchText;
    QStringList m_words;
    // -1 until found: a ListModel learns its roles with its first item.
    mutable int m_textRoleId = -1;
    QMetaObject::Connection m_sourceResetConnection;
};

} // namespace Orvo::UI::UIComponents
