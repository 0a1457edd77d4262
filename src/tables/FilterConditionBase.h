#pragma once

namespace Orvo::UI::UIComponents {

struct TableCellContent;

// A test made once from a column's filter text and then asked of every cell of that column.
class FilterConditionBase
{
public:
    virtual ~FilterConditionBase() = default;
    virtual bool Evaluate(TableCellContent const& cell) const = 0;

protected:
    FilterConditionBase() = default;
    FilterConditionBase(const FilterConditionBase&) = default;
    FilterConditionBase(FilterConditionBase&&) = default;
    FilterConditionBase& operator=(const FilterConditionBase&) = default;
    FilterConditionBase& operator=(FilterConditionBase&&) = default;
};

} // namespace Orvo::UI::UIComponents
