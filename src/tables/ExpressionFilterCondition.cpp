#include "ExpressionFilterCondition.h"

#include "FilterCellText.h"
#include "FilterComparison.h"
#include "UnicodeStripped.h"

namespace Orvo::UI::UIComponents {

ExpressionFilterCondition::ExpressionFilterCondition(QString const& operand, Comparer comparer)
    : m_operand(UnicodeStripped(operand).toStdWString())
    , m_operandNumber(ComparedText::Read(m_operand).number)
    , m_operandLenient(FilterComparison::ReadLeniently(m_operand))
    , m_comparer(comparer)
{ }

BulkRows ExpressionFilterCondition::Narrow(const FilterFoldedBulk& bulk, BulkRows candidates,
                                           BulkRows& unjudged) const
{
    const FilterFoldedBulk::Numbers& numbers = *bulk.numbers;
    const FoldedSide operand { m_operandNumber, m_operandLenient };
    BulkRows accepted;
    for (std::size_t row = 0; row < static_cast<std::size_t>(bulk.rows); ++row) {
        if (!candidates.test(row))
            continue;
        // Nearly every cell of a numeric column is a number: that case skips the general reading.
        const std::optional<FoldedPair> pair = m_operandNumber && numbers.hasStrict.test(row)
            ? std::optional<FoldedPair>(FoldedPair { numbers.strict[row], *m_operandNumber })
            : ComparedNumbers(numbers.Side(row), operand);
        if (!pair) {
            unjudged.set(row); // compared as texts
            continue;
        }
        const auto [cell, value] = *pair;
        const int precision = numbers.precision[row];
        bool passes = false;
        switch (m_comparer) {
        case Comparer::Less:
            passes = FilterComparison::IsLess(cell, value, precision);
            break;
        case Comparer::LessOrEqual:
            passes = FilterComparison::IsLessOrEqual(cell, value, precision);
            break;
        case Comparer::Equal:
            passes = FilterComparison::Equal(cell, value, precision);
            break;
        case Comparer::NotEqual:
            passes = !FilterComparison::Equal(cell, value, precision);
            break;
        case Comparer::GreaterOrEqual:
            passes = FilterComparison::IsLessOrEqual(value, cell, precision);
            break;
        case Comparer::Greater:
            passes = FilterComparison::IsLess(value, cell, precision);
            break;
        }
        accepted.set(row, passes);
    }
    return accepted;
}

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
