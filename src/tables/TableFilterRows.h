#pragma once

#include "FilterColumnFold.h"

#include <QString>
#include <atomic>
#include <cstdint>
#include <memory>
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
//
// A proxy rebuilding its mapping asks every row in order, and its own bookkeeping takes about as
// long as judging the rows. With InOrder, large tables whose filtered columns are all delivered are
// judged on the pool while the rows are being asked: Accepts answers as soon as the part holding
// the row is judged, and judges parts itself rather than wait idle. The judging ends when the last
// part has been asked for, or at Join.
class TableFilterRows
{
public:
    enum class Asking
    {
        AnyOrder,
        InOrder,
    };

    TableFilterRows() = default;
    TableFilterRows(const TableFilterRows&) = delete;
    TableFilterRows& operator=(const TableFilterRows&) = delete;
    ~TableFilterRows();

    struct Condition
    {
        int sourceColumn = -1;
        QString columnId;
        const FilterConditionBase* condition = nullptr;
    };

    // Judges every submitted row of model by the conditions, in their order. Cells the feeder has
    // not delivered are asked for as a row-by-row filter asks for them: the whole column at once,
    // when the first row that needs the column is reached.
    void Compute(const TableContentModel& model, const std::vector<Condition>& conditions,
                 Asking asking = Asking::AnyOrder);
    // Judges again, by a condition narrower than the one it replaces, only the rows that pass now.
    void Narrow(const TableContentModel& model, const Condition& condition, Asking asking = Asking::AnyOrder);
    // Finishes judging started for rows asked in order; nothing when all is judged.
    void Join();
    // Whether the answers were computed from the model's current cells and rows, given the revision
    // of its grid and its number of submitted rows.
    bool IsCurrent(std::uint64_t gridRevision, int rowCount) const
    {
        return m_computed && m_revision == gridRevision && m_rowCount == rowCount;
    }
    bool IsCurrent(const TableContentModel& model) const;
    bool IsCurrentRevision(std::uint64_t gridRevision) const { return m_revision == gridRevision; }
    // The answers no longer hold (the conditions changed): no row is answered until computed again.
    void Unanswer();
    // Whether the submitted row passes; rows that could not be judged (a feeder failing to deliver
    // them) pass rather than vanish silently.
    bool Accepts(int row) { return IsAnswered(row) ? Answer(row) : AcceptsUnanswered(row); }
    // The path the proxy takes a million times: whether the row's answer is final, and the answer.
    bool IsAnswered(int row) const
    {
        return static_cast<unsigned>(row) < static_cast<unsigned>(m_rowsAnswered);
    }
    bool Answer(int row) const
    {
        const GridContentIndex index = GridContentIndex::FromRow(row);
        return m_accepted[static_cast<std::size_t>(index.bulk)][static_cast<std::size_t>(index.offset)];
    }
    // Forgets the answers and every folded column (another model).
    void Reset();

    // Tables with more rows are judged on several threads: 100,000 unless changed (tests lower it,
    // so that small tables take the paths large ones take).
    static int RowsJudgedOnOneThread();
    static void SetRowsJudgedOnOneThread(int rows);

    // Bulks judged together by one thread while rows are asked in order.
    static constexpr int c_bulksPerPart = 32;

private:
    // A condition ready to be judged bulk by bulk: its column is delivered as far as it will be.
    struct Prepared
    {
        Condition condition;
        FilterColumnFold* fold = nullptr;
        std::vector<char> cellByCell; // by bulk: judged cell by cell, not from the fold
    };
    // The judging of parts while rows are asked in order.
    struct Stream
    {
        const TableContentModel* model = nullptr;
        std::vector<Prepared> conditions;
        int partCount = 0;
        std::atomic<int> nextPart { 0 };
        std::unique_ptr<std::atomic<bool>[]> judged; // by part
        // Everything above is set before the pool's threads read it: published after it, acquired
        // first by each of them (the pool's own hand-over is invisible to race checkers).
        std::atomic<bool> published { false };
        std::atomic<int> workersRunning { 0 };
        int judgedParts = 0; // asking thread only: parts 0 .. judgedParts - 1 are judged
    };

    enum class Delivery
    {
        AskFeeder, // cells the rows still shown need are asked for first
        Done, // every cell of the column is in the grid
    };
    Prepared Prepare(const TableContentModel& model, const Condition& condition, Delivery delivery);
    bool IsDelivered(const TableContentModel& model, const Condition& condition);
    void Judge(const TableContentModel& model, const std::vector<Condition>& conditions, Asking asking);
    void Apply(const TableContentModel& model, const Condition& condition);
    void Start(const TableContentModel& model, std::vector<Prepared> conditions);
    void JudgeBulks(const TableContentModel& model, const Prepared& prepared, int firstBulk, int endBulk);
    void JudgePart(Stream& stream, int part);
    // Claims and judges the next part not yet claimed; false when every part was claimed.
    bool JudgeNextPart(Stream& stream);
    void AwaitBulk(int bulk);
    bool AcceptsUnanswered(int row);
    void Finish(const TableContentModel& model);

    std::vector<BulkRows> m_accepted;
    std::vector<BulkRows> m_unjudgeable;
    std::unordered_map<QString, FilterColumnFold> m_folds; // by column id
    std::unique_ptr<Stream> m_stream;
    // Rows 0 .. m_rowsAnswered - 1 have their final answers; the others are out of range, or in
    // parts still being judged.
    int m_rowsAnswered = 0;
    bool m_computed = false;
    std::uint64_t m_revision = 0;
    int m_rowCount = -1;
};

} // namespace Orvo::UI::UIComponents
