#include "CountrySearchModel.h"

#include "CountryListModel.h"

namespace Orvo::UI::UIComponents {

CountrySearchModel::CountrySearchModel(QObject* parent)
    : ComboBoxProxyModel(parent)
{
    setTextRole(QStringLiteral("name"));
}

bool CountrySearchModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    return ComboBoxProxyModel::filterAcceptsRow(sourceRow, sourceParent)
        || (!sourceParent.isValid() && IsCodeOfSearch(sourceRow));
}

bool CountrySearchModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const bool leftIsCode = IsCodeOfSearch(left.row());
    if (leftIsCode != IsCodeOfSearch(right.row()))
        return leftIsCode;
    return ComboBoxProxyModel::lessThan(left, right);
}

bool CountrySearchModel::IsCodeOfSearch(int sourceRow) const
{
    if (Words().size() != 1 || !sourceModel())
        return false;
    const QString code = sourceModel()->index(sourceRow, 0).data(CountryListModel::CodeRole).toString();
    return !code.isEmpty() && code.compare(Words().constFirst(), Qt::CaseInsensitive) == 0;
}

} // namespace Orvo::UI::UIComponents
