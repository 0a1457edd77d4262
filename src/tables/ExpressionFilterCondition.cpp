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

namespace {

using Comparer = ExpressionFilterCondition::Comparer;

template<Comparer comparer> bool Passes(double cell, double value, double tolerance)
{
    switch (comparer) {
    case Comparer::Less:
        return FilterComparison::IsLessWithin(cell, value, tolerance);
    case Comparer::LessOrEqual:
        return FilterComparison::IsLessOrEqualWithin(cell, value, tolerance);
    case Comparer::Equal:
        return FilterComparison::EqualWithin(cell, value, tolerance);
    case Comparer::NotEqual:
        return !FilterComparison::EqualWithin(cell, value, tolerance);
    case Comparer::GreaterOrEqual:
        return FilterComparison::IsLessOrEqualWithin(value, cell, tolerance);
    case Comparer::Greater:
        return FilterComparison::IsLessWithin(value, cell, tolerance);
    }
    return false;
}

// The rows whose number compares with the operand number, the comparer chosen once per bulk.
template<Comparer comparer>
BulkRows NumbersPassing(const FilterFoldedBulk::Numbers& numbers, int rows, double operand)
{
    return numbers.Passing(rows, [operand](double cell, double tolerance) {
        return Passes<comparer>(cell, operand, tolerance);
    });
}

BulkRows NumbersPassing(Comparer comparer, const FilterFoldedBulk::Numbers& numbers, int rows, double operand)
{
    switch (comparer) {
    case Comparer::Less:
        return NumbersPassing<Comparer::Less>(numbers, rows, operand);
    case Comparer::LessOrEqual:
        return NumbersPassing<Comparer::LessOrEqual>(numbers, rows, operand);
    case Comparer::Equal:
        return NumbersPassing<Comparer::Equal>(numbers, rows, operand);
    case Comparer::NotEqual:
        return NumbersPassing<Comparer::NotEqual>(numbers, rows, operand);
    case Comparer::GreaterOrEqual:
        return NumbersPassing<Comparer::GreaterOrEqual>(numbers, rows, operand);
    case Comparer::Greater:
        return NumbersPassing<Comparer::Greater>(numbers, rows, operand);
    }
    return {};
}

} // namespace

BulkRows ExpressionFilterCondition::Narrow(const FilterFoldedBulk& bulk, BulkRows candidates,
                                           BulkRows& unjudged) const
{
    const FilterFoldedBulk::Numbers& numbers = *bulk.numbers;
    const FoldedSide operand { m_operandNumber, m_operandLenient };
    BulkRows accepted;
    // Nearly every cell of a numeric column is a number: those are judged all at once.
    if (m_operandNumber && bulk.rows > 0) {
        const BulkRows numbered = candidates & numbers.hasStrict;
        accepted = NumbersPassing(m_comparer, numbers, bulk.rows, *m_operandNumber) & numbered;
        candidates &= ~numbered;
    }
    if (candidates.none())
        return accepted;
    for (std::size_t row = 0; row < static_cast<std::size_t>(bulk.rows); ++row) {
        if (!candidates.test(row))
            continue;
        const std::optional<FoldedPair> pair = ComparedNumbers(numbers.Side(row), operand);
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
