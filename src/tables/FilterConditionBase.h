#pragma once

#include "FilterColumnFold.h"

namespace Orvo::UI::UIComponents {

struct TableCellContent;

// A test made once from a column's filter text and then asked of every cell of that column.
class FilterConditionBase
{
public:
    virtual ~FilterConditionBase() = default;
    virtual bool Evaluate(TableCellContent const& cell) const = 0;

    // The parts of a folded bulk this condition reads; NoPart when it has to see every cell.
    virtual unsigned FoldedParts() const { return FilterColumnFold::NoPart; }
    // The rows among candidates that pass, judged from the folded bulk, which has the parts
    // FoldedParts() names. Rows it cannot judge from that are left out of the result and put into
    // unjudged, for Evaluate to decide from their cells. The answers are the ones Evaluate gives.
    virtual BulkRows Narrow(const FilterFoldedBulk&, BulkRows candidates, BulkRows& unjudged) const
    {
        unjudged |= candidates;
        return {};
    }
    // Whether every cell this condition accepts is accepted by previous too (a searched text that
    // only grew), so that only the rows previous let through need to be looked at again.
    virtual bool IsNarrowerThan(const FilterConditionBase& /*previous*/) const { return false; }

protected:
    FilterConditionBase() = default;
    FilterConditionBase(const FilterConditionBase&) = default;
    FilterConditionBase(FilterConditionBase&&) = default;
    FilterConditionBase& operator=(const FilterConditionBase&) = default;
    FilterConditionBase& operator=(FilterConditionBase&&) = default;
};

} // namespace Orvo::UI::UIComponents
