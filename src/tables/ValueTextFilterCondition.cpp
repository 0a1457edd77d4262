#include "ValueTextFilterCondition.h"

#include "FilterCellText.h"
#include "FilterComparison.h"
#include "TableCellContent.h"
#include "UnicodeStripped.h"

#include <QVariant>
#include <string>

namespace Orvo::UI::UIComponents {

namespace {

// The number is looked for as "%g" would print it, so "2.50" finds cells showing 2.5.
constexpr int c_significantDigits = 6;

std::optional<double> ReadWholeNumber(QString const& text)
{
    return FilterComparison::ReadNumber(text.toStdWString(), false);
}

} // namespace

ValueTextFilterCondition::ValueTextFilterCondition(QString const& text)
    : m_text(UnicodeStripped(text.trimmed()))
    , m_number(ReadWholeNumber(m_text))
{
    if (m_number) {
        m_boolean = *m_number != 0.0;
        m_numberText = QString::number(*m_number, 'g', c_significantDigits);
    }
}

bool ValueTextFilterCondition::Evaluate(TableCellContent const& cell) const
{
    // The list item text is folded like every other text a filter compares with, so that
    // accented choices are found by their plain spelling.
    if (const QString* listText = FilterCellText::CurrentListText(cell);
        listText && UnicodeStripped(*listText).contains(m_text, Qt::CaseInsensitive)) {
        return true;
    }

    switch (cell.valueType) {
    case TableValueType::Bool:
        return EvaluateBoolean(cell);
    case TableValueType::Integer:
    case TableValueType::Real:
        return m_number ? EvaluateNumber(cell) : EvaluateText(cell);
    case TableValueType::Color:
        return EvaluateColor(cell);
    default:
        return EvaluateText(cell);
    }
}

bool ValueTextFilterCondition::EvaluateBoolean(TableCellContent const& cell) const
{
    return m_boolean && FilterCellText::CurrentValue(cell) == QVariant(*m_boolean);
}

bool ValueTextFilterCondition::EvaluateNumber(TableCellContent const& cell) const
{
    return FilterCellText::ComparisonText(cell).contains(m_numberText, Qt::CaseSensitive);
}

// A colour cell is found by its colour's name, never by its value.
bool ValueTextFilterCondition::EvaluateColor(TableCellContent const& cell) const
{
    if (cell.text.isNull())
        return false;
    return UnicodeStripped(cell.text).contains(m_text, Qt::CaseInsensitive);
}

bool ValueTextFilterCondition::EvaluateText(TableCellContent const& cell) const
{
    return FilterCellText::ComparisonText(cell).contains(m_text, Qt::CaseInsensitive);
}

} // namespace Orvo::UI::UIComponents
