#pragma once

#include "FilterConditionBase.h"

#include <QString>
#include <optional>
#include <string>

namespace Orvo::UI::UIComponents {

// A filter text such as "[1;5)" or "<a;c>": the cell's text between two bounds.
class IntervalFilterCondition : public FilterConditionBase
{
public:
    struct ValueLimit
    {
        QString value;
        bool inclusive = false;
    };

    IntervalFilterCondition(ValueLimit lower, ValueLimit upper);

    bool Evaluate(TableCellContent const& cell) const override;
    unsigned FoldedParts() const override { return FilterColumnFold::NumbersPart; }
    BulkRows Narrow(const FilterFoldedBulk& bulk, BulkRows candidates, BulkRows& unjudged) const override;

private:
    std::wstring m_lower;
    std::wstring m_upper;
    bool m_lowerInclusive;
    bool m_upperInclusive;
    // The bounds read as numbers once rather than for every cell.
    std::optional<double> m_lowerNumber;
    std::optional<double> m_upperNumber;
    std::optional<double> m_lowerLenient;
    std::optional<double> m_upperLenient;
};

} // namespace Orvo::UI::UIComponents
