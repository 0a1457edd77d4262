#include "ComboBoxProxyModel.h"

#include "CommonLogging.h"
#include "SearchText.h"

namespace Orvo::UI::UIComponents {

ComboBoxProxyModel::ComboBoxProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setDynamicSortFilter(true);
    sort(0);
    connect(this, &QAbstractItemModel::rowsInserted, this, &ComboBoxProxyModel::countChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &ComboBoxProxyModel::countChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &ComboBoxProxyModel::countChanged);
    connect(this, &QAbstractItemModel::layoutChanged, this, &ComboBoxProxyModel::countChanged);
}

void ComboBoxProxyModel::setTextRole(const QString& textRole)
{
    if (m_textRole == textRole)
        return;
    m_textRole = textRole;
    CheckTextRole();
    Refilter();
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0), { ItemTextRole });
    emit textRoleChanged();
}

void ComboBoxProxyModel::setSearchText(const QString& searchText)
{
    if (m_searchText == searchText)
        return;
    m_searchText = searchText;
    m_words = SearchText::Words(searchText);
    Refilter();
    emit searchTextChanged();
}

void ComboBoxProxyModel::setSourceModel(QAbstractItemModel* model)
{
    QSortFilterProxyModel::setSourceModel(model);
    CheckTextRole();
    emit countChanged();
}

void ComboBoxProxyModel::Refilter()
{
    const int before = rowCount();
    invalidate();
    if (rowCount() != before)
        emit countChanged();
}

QVariant ComboBoxProxyModel::data(const QModelIndex& index, int role) const
{
    if (role == ItemTextRole)
        return index.isValid() ? SourceText(mapToSource(index).row()) : QVariant();
    return QSortFilterProxyModel::data(index, role);
}

QHash<int, QByteArray> ComboBoxProxyModel::roleNames() const
{
    QHash<int, QByteArray> names = QSortFilterProxyModel::roleNames();
    names.insert(ItemTextRole, "itemText");
    return names;
}

int ComboBoxProxyModel::sourceRow(int row) const
{
    if (row < 0 || row >= rowCount())
        return -1;
    return mapToSource(index(row, 0)).row();
}

int ComboBoxProxyModel::rowOfSource(int sourceRow) const
{
    if (!sourceModel() || sourceRow < 0 || sourceRow >= sourceModel()->rowCount())
        return -1;
    return mapFromSource(sourceModel()->index(sourceRow, 0)).row();
}

QString ComboBoxProxyModel::textAt(int row) const
{
    const int source = sourceRow(row);
    return source < 0 ? QString() : SourceText(source);
}

int ComboBoxProxyModel::findText(const QString& text) const
{
    const QString folded = SearchText::Folded(text);
    for (int row = 0; row < rowCount(); ++row) {
        if (SearchText::Folded(textAt(row)) == folded)
            return row;
    }
    return -1;
}

int ComboBoxProxyModel::TextRoleId() const
{
    if (!sourceModel())
        return -1;
    return sourceModel()->roleNames().key(m_textRole.toUtf8(), -1);
}

void ComboBoxProxyModel::CheckTextRole() const
{
    // A model without roles yet (an empty ListModel) learns them with its first item.
    if (sourceModel() && sourceModel()->rowCount() > 0 && TextRoleId() < 0)
        WarnAtComboBoxBoundary("ComboBoxProxyModel",
                               QStringLiteral("the model has no role \"%1\" to search").arg(m_textRole));
}

QString ComboBoxProxyModel::SourceText(int sourceRow) const
{
    const int role = TextRoleId();
    if (role < 0)
        return QString();
    return sourceModel()->index(sourceRow, 0).data(role).toString();
}

int ComboBoxProxyModel::Quality(int sourceRow) const
{
    return SearchText::MatchQuality(SearchText::Folded(SourceText(sourceRow)), m_words);
}

bool ComboBoxProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (sourceParent.isValid())
        return false;
    return m_words.isEmpty() || Quality(sourceRow) > 0;
}

bool ComboBoxProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    if (!m_words.isEmpty()) {
        const int leftQuality = Quality(left.row());
        const int rightQuality = Quality(right.row());
        if (leftQuality != rightQuality)
            return leftQuality > rightQuality;
    }
    return left.row() < right.row();
}

} // namespace Orvo::UI::UIComponents
