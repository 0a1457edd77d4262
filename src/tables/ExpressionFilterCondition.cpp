#include "ExpressionFilterCondition.h"

#include "FilterCellText.h"
#include "FilterComparison.h"
#include "UnicodeStripped.h"

namespace Orvo::UI::UIComponents {

ExpressionFilterCondition::ExpressionFilterCondition(QString const& operand, Comparer comparer)
    : m_operand(UnicodeStripped(operand).toStdWString())
    , m_comparer(comparer)
{ }

bool ExpressionFilterCondition::Evaluate(TableCellContent const& cell) const
{
    // One buffer per thread for the cell's text, so that filtering a column does not allocate
    // a wide string per cell.
    thread_local std::wstring cellText;
    FilterCellText::WriteComparisonText(cell, cellText);
    const int precision = FilterCellText::Precision(cell);

    switch (m_comparer) {
    case Comparer::Less:
        return IsLess(cellText, m_operand, precision);
    case Comparer::LessOrEqual:
        return IsLessOrEqual(cellText, m_operand, precision);
    case Comparer::Equal:
        return Equal(cellText, m_operand, precision);
    case Comparer::NotEqual:
        return !Equal(cellText, m_operand, precision);
    case Comparer::GreaterOrEqual:
        return IsLessOrEqual(m_operand, cellText, precision);
    case Comparer::Greater:
        return IsLess(m_operand, cellText, precision);
    }
    return false;
}

bool ExpressionFilterCondition::Equal(std::wstring const& a, std::wstring const& b, int precision) const
{
    return FilterComparison::Equal(a, b, precision);
}

bool ExpressionFilterCondition::IsLess(std::wstring const& a, std::wstring const& b, int precision) const
{
    return FilterComparison::IsLess(a, b, precision);
}

bool ExpressionFilterCondition::IsLessOrEqual(std::wstring const& a, std::wstring const& b,
                                              int precision) const
{
    return FilterComparison::IsLessOrEqual(a, b, precision);
}

} // namespace Orvo::UI::UIComponents
