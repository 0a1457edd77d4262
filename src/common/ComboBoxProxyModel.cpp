#include "ComboBoxProxyModel.h"

#include "SearchText.h"

namespace Orvo::UI::UIComponents {

ComboBoxProxyModel::ComboBoxProxyModel(QObject* parent)
    : SearchableProxyModel(parent)
{
    setDynamicSortFilter(true);
    sort(0);
}

void ComboBoxProxyModel::Refilter()
{
    const int before = rowCount();
    invalidate();
    if (rowCount() != before)
        emit countChanged();
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

bool ComboBoxProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (sourceParent.isValid())
        return false;
    return Words().isEmpty() || MatchQuality(sourceRow) > 0;
}

bool ComboBoxProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    if (!Words().isEmpty()) {
        const int leftQuality = MatchQuality(left.row());
        const int rightQuality = MatchQuality(right.row());
        if (leftQuality != rightQuality)
            return leftQuality > rightQuality;
    }
    return left.row() < right.row();
}

} // namespace Orvo::UI::UIComponents
