#include "IntervalFilterCondition.h"

#include "FilterCellText.h"
#include "FilterComparison.h"
#include "UnicodeStripped.h"

#include <utility>

namespace Orvo::UI::UIComponents {

namespace {

constexpr int c_noPrecision = -1;

} // namespace

IntervalFilterCondition::IntervalFilterCondition(ValueLimit lower, ValueLimit upper)
    : m_lower(UnicodeStripped(lower.value).toStdWString())
    , m_upper(UnicodeStripped(upper.value).toStdWString())
    , m_lowerInclusive(lower.inclusive)
    , m_upperInclusive(upper.inclusive)
{
    // Bounds typed the wrong way round are put in order, but each keeps the bracket it was typed
    // with: "[5;1)" is the range from 1 exclusive to 5 inclusive. Users' saved filters rely on it.
    m_lowerNumber = ComparedText::Read(m_lower).number;
    m_upperNumber = ComparedText::Read(m_upper).number;
    if (!FilterComparison::IsLess({ m_lower, m_lowerNumber }, { m_upper, m_upperNumber }, c_noPrecision)) {
        std::swap(m_lower, m_upper);
        std::swap(m_lowerNumber, m_upperNumber);
        std::swap(m_lowerInclusive, m_upperInclusive);
    }
    m_lowerLenient = FilterComparison::ReadLeniently(m_lower);
    m_upperLenient = FilterComparison::ReadLeniently(m_upper);
}

BulkRows IntervalFilterCondition::Narrow(const FilterFoldedBulk& bulk, BulkRows candidates,
                                         BulkRows& unjudged) const
{
    const FilterFoldedBulk::Numbers& numbers = *bulk.numbers;
    const FoldedSide lower { m_lowerNumber, m_lowerLenient };
    const FoldedSide upper { m_upperNumber, m_upperLenient };
    BulkRows accepted;
    // Nearly every cell of a numeric column is a number: those are judged all at once.
    if (m_lowerNumber && m_upperNumber && bulk.rows > 0) {
        const double lowerNumber = *m_lowerNumber;
        const double upperNumber = *m_upperNumber;
        const BulkRows passing = numbers.Passing(bulk.rows, [&](double value, double tolerance) {
            const bool aboveLower = m_lowerInclusive
                ? FilterComparison::IsLessOrEqualWithin(lowerNumber, value, tolerance)
                : FilterComparison::IsLessWithin(lowerNumber, value, tolerance);
            const bool belowUpper = m_upperInclusive
                ? FilterComparison::IsLessOrEqualWithin(value, upperNumber, tolerance)
                : FilterComparison::IsLessWithin(value, upperNumber, tolerance);
            return aboveLower && belowUpper;
        });
        const BulkRows numbered = candidates & numbers.hasStrict;
        accepted = passing & numbered;
        candidates &= ~numbered;
    }
    if (candidates.none())
        return accepted;
    for (std::size_t row = 0; row < static_cast<std::size_t>(bulk.rows); ++row) {
        if (!candidates.test(row))
            continue;
        const int precision = numbers.precision[row];
        const FoldedSide cell = numbers.Side(row);
        const std::optional<FoldedPair> fromLower = ComparedNumbers(lower, cell);
        if (!fromLower) {
            unjudged.set(row);
            continue;
        }
        const bool aboveLower = m_lowerInclusive
            ? FilterComparison::IsLessOrEqual(fromLower->a, fromLower->b, precision)
            : FilterComparison::IsLess(fromLower->a, fromLower->b, precision);
        if (!aboveLower)
            continue;
        const std::optional<FoldedPair> toUpper = ComparedNumbers(cell, upper);
        if (!toUpper) {
            unjudged.set(row);
            continue;
        }
        accepted.set(row,
                     m_upperInclusive ? FilterComparison::IsLessOrEqual(toUpper->a, toUpper->b, precision)
                                      : FilterComparison::IsLess(toUpper->a, toUpper->b, precision));
    }
    return accepted;
}

bool IntervalFilterCondition::Evaluate(TableCellContent const& cell) const
{
    thread_local std::wstring cellText;
    FilterCellText::WriteComparisonText(cell, cellText);
    const ComparedText cellSide = ComparedText::Read(cellText);
    const ComparedText lower { m_lower, m_lowerNumber };
    const ComparedText upper { m_upper, m_upperNumber };
    const int precision = FilterCellText::Precision(cell);

    const bool aboveLower = m_lowerInclusive ? FilterComparison::IsLessOrEqual(lower, cellSide, precision)
                                             : FilterComparison::IsLess(lower, cellSide, precision);
    if (!aboveLower)
        return false;
    return m_upperInclusive ? FilterComparison::IsLessOrEqual(cellSide, upper, precision)
                            : FilterComparison::IsLess(cellSide, upper, precision);
}

} // namespace Orvo::UI::UIComponents
