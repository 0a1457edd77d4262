#pragma once

#include "FilterColumnFold.h"

#include <QString>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace Orvo::UI::UIComponents {

class FilterConditionBase;
class TableContentModel;

// The rows of a content model that pass the filters of its columns, worked out for all rows at once
// so that the filter model only looks its answers up. Each column's condition reads the column's
// folded form, which is kept between filters and refolded only where the cells changed; the
// conditions of several columns narrow one row set in turn, each looking only at the rows the
// columns before it let through. Large tables are judged in parts on Qt's thread pool.
class TableFilterRows
{
public:
    struct Condition
    {
        int sourceColumn = -1;
        QString columnId;
        const FilterConditionBase* condition = nullptr;
    };

    // Judges every submitted row of model by the conditions, in their order. Cells the feeder has
    // not delivered are asked for as a row-by-row filter asks for them: the whole column at once,
    // when the first row that needs the column is reached.
    void Compute(const TableContentModel& model, const std::vector<Condition>& conditions);
    // Judges again, by a condition narrower than the one it replaces, only the rows that pass now.
    void Narrow(const TableContentModel& model, const Condition& condition);
    // Whether the answers were computed from the model's current cells and rows, given the revision
    // of its grid and its number of submitted rows.
    bool IsCurrent(std::uint64_t gridRevision, int rowCount) const
    {
        return m_computed && m_revision == gridRevision && m_rowCount == rowCount;
    }
    bool IsCurrent(const TableContentModel& model) const;
    // Whether the submitted row passes; rows that could not be judged (a feeder failing to deliver
    // them) pass rather than vanish silently.
    bool Accepts(int row) const
    {
        const GridContentIndex index = GridContentIndex::FromRow(row);
        if (row < 0 || index.bulk >= static_cast<int>(m_accepted.size()))
            return true;
        return m_accepted[static_cast<std::size_t>(index.bulk)].test(static_cast<std::size_t>(index.offset));
    }
    // Forgets the answers and every folded column (another model).
    void Reset();

    // Tables with more rows are judged on several threads.
    static constexpr int c_rowsJudgedOnOneThread = 100'000;

private:
    void Apply(const TableContentModel& model, const Condition& condition);
    void JudgeBulks(const TableContentModel& model, const Condition& condition, FilterColumnFold& fold,
                    const std::vector<char>& cellByCell, int firstBulk, int endBulk);
    void Finish(const TableContentModel& model);

    std::vector<BulkRows> m_accepted;
    std::vector<BulkRows> m_unjudgeable;
    std::unordered_map<QString, FilterColumnFold> m_folds; // by column id
    bool m_computed = false;
    std::uint64_t m_revision = 0;
    int m_rowCount = -1;
};

} // namespace Orvo::UI::UIComponents
