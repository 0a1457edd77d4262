#include "FilterCellText.h"

#include "TableCellContent.h"
#include "UnicodeStripped.h"

namespace Orvo::UI::UIComponents {

namespace {

// Without decimals of its own a real value is compared with all the digits a double carries.
constexpr int c_realDecimalsWithoutPrecision = 15;

bool HasCurrentListItem(TableCellContent const& cell, qsizetype listSize)
{
    return cell.parameterIndex >= 0 && cell.parameterIndex < listSize;
}

} // namespace

// An index that points past the list (a host delivering inconsistent data) is read as no list
// item, so that such a cell filters by its own value rather than failing.
const QVariant& FilterCellText::CurrentValue(TableCellContent const& cell)
{
    if (HasCurrentListItem(cell, cell.parametersValues.size()))
        return cell.parametersValues[cell.parameterIndex];
    return cell.content;
}

const QString* FilterCellText::CurrentListText(TableCellContent const& cell)
{
    if (HasCurrentListItem(cell, cell.parametersNames.size()))
        return &cell.parametersNames[cell.parameterIndex];
    return nullptr;
}

int FilterCellText::Precision(TableCellContent const& cell)
{
    if (cell.decimals && *cell.decimals >= 0)
        return *cell.decimals;
    return -1;
}

QString FilterCellText::ComparisonText(TableCellContent const& cell)
{
    const QVariant& value = CurrentValue(cell);
    if (cell.valueType == TableValueType::Real) {
        const int precision = Precision(cell);
        return QString::number(value.toDouble(), 'f',
                               precision >= 0 ? precision : c_realDecimalsWithoutPrecision);
    }
    return UnicodeStripped(value.toString().trimmed());
}

void FilterCellText::WriteComparisonText(TableCellContent const& cell, std::wstring& text)
{
    const QString comparisonText = ComparisonText(cell);
    // UTF-16 never needs more wide characters than it has code units.
    text.resize(std::size_t(comparisonText.size()));
    text.resize(std::size_t(comparisonText.toWCharArray(text.data())));
}

} // namespace Orvo::UI::UIComponents
