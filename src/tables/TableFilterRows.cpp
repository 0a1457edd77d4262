#include "TableFilterRows.h"

#include "FilterConditionBase.h"
#include "TableContentModel.h"
#include "TablesLogging.h"

#include <QSemaphore>
#include <QThreadPool>
#include <algorithm>

namespace Orvo::UI::UIComponents {

namespace {

constexpr int c_bulkRows = GridContentIndex::c_rowsCountBulk;
constexpr const char* c_operation = "TableContentFilterModel::filterAcceptsRow";

BulkRows FirstRows(int count)
{
    BulkRows rows;
    for (int offset = 0; offset < count; ++offset)
        rows.set(static_cast<std::size_t>(offset));
    return rows;
}

template<typename Visit> void ForEachRow(const BulkRows& rows, Visit&& visit)
{
    if (rows.none())
        return;
    for (std::size_t offset = 0; offset < rows.size(); ++offset) {
        if (rows.test(offset))
            visit(static_cast<int>(offset));
    }
}

// Runs judge(firstBulk, endBulk) over all bulks, in parts on the thread pool for large tables.
template<typename Judge> void InParts(int bulkCount, Judge&& judge)
{
    QThreadPool* pool = QThreadPool::globalInstance();
    const int parts = bulkCount * c_bulkRows > TableFilterRows::c_rowsJudgedOnOneThread
        ? std::max(1, std::min(pool->maxThreadCount(), bulkCount))
        : 1;
    if (parts == 1) {
        judge(0, bulkCount);
        return;
    }
    QSemaphore done;
    const int perPart = (bulkCount + parts - 1) / parts;
    int started = 0;
    for (int part = 1; part < parts; ++part) {
        const int first = part * perPart;
        const int end = std::min(bulkCount, first + perPart);
        if (first >= end)
            continue;
        ++started;
        pool->start([&judge, &done, first, end]() {
            judge(first, end);
            done.release();
        });
    }
    judge(0, std::min(bulkCount, perPart));
    done.acquire(started);
}

} // namespace

void TableFilterRows::Compute(const TableContentModel& model, const std::vector<Condition>& conditions)
{
    const int rows = model.rowCountSubmitted();
    const int bulks = (rows + c_bulkRows - 1) / c_bulkRows;
    m_accepted.assign(static_cast<std::size_t>(bulks), FirstRows(c_bulkRows));
    if (bulks > 0)
        m_accepted.back() = FirstRows(TableContentGrid::BulkRowCount(bulks - 1, rows));
    m_unjudgeable.assign(static_cast<std::size_t>(bulks), BulkRows());
    for (const Condition& condition : conditions)
        Apply(model, condition);
    Finish(model);
}

void TableFilterRows::Narrow(const TableContentModel& model, const Condition& condition)
{
    Apply(model, condition);
    Finish(model);
}

void TableFilterRows::Finish(const TableContentModel& model)
{
    m_computed = true;
    m_revision = model.Grid().Revision();
    m_rowCount = model.rowCountSubmitted();
}

bool TableFilterRows::IsCurrent(const TableContentModel& model) const
{
    return IsCurrent(model.Grid().Revision(), model.rowCountSubmitted());
}

void TableFilterRows::Reset()
{
    m_accepted.clear();
    m_unjudgeable.clear();
    m_folds.clear();
    m_computed = false;
}

void TableFilterRows::Apply(const TableContentModel& model, const Condition& condition)
{
    const TableContentGrid& grid = model.Grid();
    const int rows = model.rowCountSubmitted();
    const int bulks = static_cast<int>(m_accepted.size());
    const int column = condition.sourceColumn;
    const unsigned parts = condition.condition->FoldedParts();

    // On this thread, in row order: the feeder is asked for what it has not delivered yet.
    std::vector<char> cellByCell(static_cast<std::size_t>(bulks), parts == FilterColumnFold::NoPart);
    for (int bulk = 0; bulk < bulks; ++bulk) {
        const std::size_t b = static_cast<std::size_t>(bulk);
        const BulkRows candidates = m_accepted[b] & ~m_unjudgeable[b];
        const int bulkRows = TableContentGrid::BulkRowCount(bulk, rows);
        if (candidates.none() || grid.IsBulkFilled(bulk, column, bulkRows))
            continue;
        ForEachRow(candidates, [&](int offset) {
            if (grid.IsFilled({ bulk, offset }, column))
                return;
            try {
                model.GetFilledCell(bulk * c_bulkRows + offset, column,
                                    TableContentModel::ContentRequest::WholeColumn);
            } catch (const std::exception& error) {
                LogCaughtException(c_operation, error);
                m_unjudgeable[b].set(static_cast<std::size_t>(offset));
            }
        });
        // Rows the filter does not look at may still be missing: then the bulk is judged cell by cell.
        cellByCell[b] = cellByCell[b] || !grid.IsBulkFilled(bulk, column, bulkRows);
    }

    FilterColumnFold& fold = m_folds[condition.columnId];
    fold.Resize(bulks);
    InParts(bulks, [&](int first, int end) { JudgeBulks(model, condition, fold, cellByCell, first, end); });
}

void TableFilterRows::JudgeBulks(const TableContentModel& model, const Condition& condition,
                                 FilterColumnFold& fold, const std::vector<char>& cellByCell, int firstBulk,
                                 int endBulk)
{
    const TableContentGrid& grid = model.Grid();
    const int rows = model.rowCountSubmitted();
    const int column = condition.sourceColumn;
    const FilterConditionBase& test = *condition.condition;
    for (int bulk = firstBulk; bulk < endBulk; ++bulk) {
        const std::size_t b = static_cast<std::size_t>(bulk);
        const BulkRows candidates = m_accepted[b] & ~m_unjudgeable[b];
        if (candidates.none())
            continue;
        BulkRows passed;
        BulkRows unjudged;
        if (cellByCell[b]) {
            unjudged = candidates;
        } else {
            try {
                const FilterFoldedBulk& folded = fold.Refresh(
                    grid, bulk, column, TableContentGrid::BulkRowCount(bulk, rows), test.FoldedParts());
                passed = test.Narrow(folded, candidates, unjudged);
            } catch (const std::exception& error) {
                LogCaughtException(c_operation, error);
                passed.reset();
                unjudged = candidates;
            }
        }
        ForEachRow(unjudged, [&](int offset) {
            try {
                if (test.Evaluate(grid.GetCell({ bulk, offset }, column)))
                    passed.set(static_cast<std::size_t>(offset));
            } catch (const std::exception& error) {
                LogCaughtException(c_operation, error);
                m_unjudgeable[b].set(static_cast<std::size_t>(offset));
            }
        });
        // Rows that could not be judged stay shown, whatever the other columns say.
        m_accepted[b] = passed | (m_accepted[b] & m_unjudgeable[b]);
    }
}

} // namespace Orvo::UI::UIComponents
