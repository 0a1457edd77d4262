#pragma once

#include "FilterConditionBase.h"

#include <QString>
#include <cstdint>
#include <optional>
#include <string>

namespace Orvo::UI::UIComponents {

struct ComparedText;

// A filter text such as "<=5" or "<>abc": the cell's text compared with one operand.
class ExpressionFilterCondition : public FilterConditionBase
{
public:
    enum class Comparer : std::int32_t
    {
        Less = 0,
        LessOrEqual = 1,
        Equal = 2,
        NotEqual = 3,
        GreaterOrEqual = 4,
        Greater = 5,
    };

    ExpressionFilterCondition(QString const& operand, Comparer comparer);

    bool Evaluate(TableCellContent const& cell) const override;
    unsigned FoldedParts() const override { return FilterColumnFold::NumbersPart; }
    BulkRows Narrow(const FilterFoldedBulk& bulk, BulkRows candidates, BulkRows& unjudged) const override;

private:
    bool Equal(ComparedText const& a, ComparedText const& b, int precision) const;
    bool IsLess(ComparedText const& a, ComparedText const& b, int precision) const;
    bool IsLessOrEqual(ComparedText const& a, ComparedText const& b, int precision) const;

    std::wstring m_operand;
    std::optional<double> m_operandNumber; // read once rather than for every cell
    std::optional<double> m_operandLenient; // and as read against a number
    Comparer m_comparer;
};

} // namespace Orvo::UI::UIComponents
