#include "SearchableProxyModel.h"

#include "CommonLogging.h"
#include "SearchText.h"

namespace Orvo::UI::UIComponents {

SearchableProxyModel::SearchableProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    connect(this, &QAbstractItemModel::rowsInserted, this, &SearchableProxyModel::countChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &SearchableProxyModel::countChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &SearchableProxyModel::countChanged);
    connect(this, &QAbstractItemModel::layoutChanged, this, &SearchableProxyModel::countChanged);
}

void SearchableProxyModel::setTextRole(const QString& textRole)
{
    if (m_textRole == textRole)
        return;
    m_textRole = textRole;
    ForgetTextRole();
    WarnOfMissingTextRole();
    Refilter();
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0), { ItemTextRole });
    emit textRoleChanged();
}

void SearchableProxyModel::setSearchText(const QString& searchText)
{
    if (m_searchText == searchText)
        return;
    m_searchText = searchText;
    m_words = SearchText::Words(searchText);
    Refilter();
    emit searchTextChanged();
}

void SearchableProxyModel::setSourceModel(QAbstractItemModel* model)
{
    disconnect(m_sourceResetConnection);
    ForgetTextRole();
    QSortFilterProxyModel::setSourceModel(model);
    // A reset may bring other roles.
    if (model)
        m_sourceResetConnection = connect(model, &QAbstractItemModel::modelAboutToBeReset, this,
                                          &SearchableProxyModel::ForgetTextRole);
    WarnOfMissingTextRole();
    emit countChanged();
}

QVariant SearchableProxyModel::data(const QModelIndex& index, int role) const
{
    if (role == ItemTextRole)
        return index.isValid() ? SourceText(mapToSource(index).row()) : QVariant();
    return QSortFilterProxyModel::data(index, role);
}

QHash<int, QByteArray> SearchableProxyModel::roleNames() const
{
    QHash<int, QByteArray> names = QSortFilterProxyModel::roleNames();
    names.insert(ItemTextRole, "itemText");
    return names;
}

QString SearchableProxyModel::SourceText(int sourceRow) const
{
    const int role = TextRoleId();
    if (role < 0)
        return QString();
    return sourceModel()->index(sourceRow, 0).data(role).toString();
}

int SearchableProxyModel::MatchQuality(int sourceRow) const
{
    return SearchText::MatchQuality(SearchText::Folded(SourceText(sourceRow)), m_words);
}

int SearchableProxyModel::TextRoleId() const
{
    if (m_textRoleId < 0 && sourceModel())
        m_textRoleId = sourceModel()->roleNames().key(m_textRole.toUtf8(), -1);
    return m_textRoleId;
}

void SearchableProxyModel::ForgetTextRole()
{
    m_textRoleId = -1;
}

void SearchableProxyModel::WarnOfMissingTextRole() const
{
    // A model without items may not know its roles yet.
    if (sourceModel() && sourceModel()->rowCount() > 0 && TextRoleId() < 0)
        WarnAtComboBoxBoundary(QByteArray(metaObject()->className()).split(':').last().constData(),
                               QStringLiteral("the model has no role \"%1\" to search").arg(m_textRole));
}

} // namespace Orvo::UI::UIComponents
