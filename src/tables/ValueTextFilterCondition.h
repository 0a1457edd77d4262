#pragma once

#include "FilterConditionBase.h"
#include "FilterTextScan.h"

#include <QString>
#include <optional>

namespace Orvo::UI::UIComponents {

// Any filter text that is neither an interval nor a comparison: cells whose text contains it.
// A text that is a number also finds numeric cells showing that number and check boxes
// (0 finds the unchecked ones, any other number the checked ones).
class ValueTextFilterCondition : public FilterConditionBase
{
public:
    explicit ValueTextFilterCondition(QString const& text);

    bool Evaluate(TableCellContent const& cell) const override;
    unsigned FoldedParts() const override { return FilterColumnFold::TextsPart; }
    BulkRows Narrow(const FilterFoldedBulk& bulk, BulkRows candidates, BulkRows& unjudged) const override;
    bool IsNarrowerThan(const FilterConditionBase& previous) const override;

private:
    bool EvaluateBoolean(TableCellContent const& cell) const;
    bool EvaluateNumber(TableCellContent const& cell) const;
    bool EvaluateColor(TableCellContent const& cell) const;
    bool EvaluateText(TableCellContent const& cell) const;

    QString m_text;
    std::optional<double> m_number;
    std::optional<bool> m_boolean;
    QString m_numberText; // m_number as numeric cells show it, looked for in their text
    // Both texts in the search form of folded bulks. The number's text is looked for case-sensitively,
    // which a folded text answers only when it has no letters (and the cell's text folded unchanged).
    QString m_foldedText;
    FilterSearchText m_search;
    FilterSearchText m_numberSearch;
    bool m_numberSearchFolds = false;
};

} // namespace Orvo::UI::UIComponents
