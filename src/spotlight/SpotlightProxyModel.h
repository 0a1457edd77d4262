#pragma once

#include "FuzzyMatcher.h"

#include <QHash>
#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

class SpotlightModel;

// What the spotlight shows for searchText: the answers to it first, then the entries that
// match it, grouped by kind (the group with the best match first), recent choices first within
// their group, then by how well they match. With nothing typed it shows the recent choices,
// latest first; with a calculation ("=2*3") only its answer. The "section" role names each row's group for
// the list's section headers.
class SpotlightProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(SpotlightProxyModel)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Roles
    {
        SectionRole = Qt::UserRole + 100,
        ScoreRole,
    };
    Q_ENUM(Roles)

    explicit SpotlightProxyModel(QObject* parent = nullptr);

    QString searchText() const { return m_searchText; }
    void setSearchText(const QString& searchText);
    int count() const { return rowCount(); }

    // The source row of a row shown; -1 when there is none.
    Q_INVOKABLE int sourceRow(int row) const;

    void setSourceModel(QAbstractItemModel* sourceModel) override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void searchTextChanged();
    void countChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    // How well the source row matches the search, recent choices raised; 0 when it does not.
    int Score(int sourceRow) const;
    int KindBest(int kind) const;
    QString Section(const QModelIndex& sourceIndex) const;
    void Forget();

    QString m_searchText;
    FuzzyMatcher m_matcher;
    // "=..." is a calculation: only its answer is shown.
    bool m_answersOnly = false;
    mutable QHash<QString, int> m_scores;
    mutable QHash<int, int> m_kindBest;
    mutable bool m_kindBestKnown = false;
    QList<QMetaObject::Connection> m_sourceConnections;
};

} // namespace Orvo::UI::UIComponents
