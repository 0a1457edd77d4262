#include "ExpressionFilterCondition.h"

#include "FilterCellText.h"
#include "FilterComparison.h"
#include "UnicodeStripped.h"

namespace Orvo::UI::UIComponents {

ExpressionFilterCondition::ExpressionFilterCondition(QString const& operand, Comparer comparer)
    : m_operand(UnicodeStripped(operand).toStdWString())
    , m_operandNumber(ComparedText::Read(m_operand).number)
    , m_comparer(comparer)
{ }

bool ExpressionFilterCondition::Evaluate(TableCellContent const& cell) const
{
    // One buffer per thread for the cell's text, so that filtering a column does not allocate
    // a wide string per cell.
    thread_local std::wstring cellText;
    FilterCellText::WriteComparisonText(cell, cellText);
    const ComparedText cellSide = ComparedText::Read(cellText);
    const ComparedText operandSide { m_operand, m_operandNumber };
    const int precision = FilterCellText::Precision(cell);

    switch (m_comparer) {
    case Comparer::Less:
        return IsLess(cellSide, operandSide, precision);
    case Comparer::LessOrEqual:
        return IsLessOrEqual(cellSide, operandSide, precision);
    case Comparer::Equal:
        return Equal(cellSide, operandSide, precision);
    case Comparer::NotEqual:
        return !Equal(cellSide, operandSide, precision);
    case Comparer::GreaterOrEqual:
        return IsLessOrEqual(operandSide, cellSide, precision);
    case Comparer::Greater:
        return IsLess(operandSide, cellSide, precision);
    }
    return false;
}

bool ExpressionFilterCondition::Equal(ComparedText const& a, ComparedText const& b, int precision) const
{
    return FilterComparison::Equal(a, b, precision);
}

bool ExpressionFilterCondition::IsLess(ComparedText const& a, ComparedText const& b, int precision) const
{
    return FilterComparison::IsLess(a, b, precision);
}

bool ExpressionFilterCondition::IsLessOrEqual(ComparedText const& a, ComparedText const& b,
                                              int precision) const
{
    return FilterComparison::IsLessOrEqual(a, b, precision);
}

} // namespace Orvo::UI::UIComponents
