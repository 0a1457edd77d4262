#include "TableFilterRows.h"

#include "FilterConditionBase.h"
#include "TableContentModel.h"
#include "TablesLogging.h"

#include <QThread>
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

std::atomic<int> g_rowsJudgedOnOneThread { 100'000 };

} // namespace

int TableFilterRows::RowsJudgedOnOneThread()
{
    return g_rowsJudgedOnOneThread.load(std::memory_order_relaxed);
}

void TableFilterRows::SetRowsJudgedOnOneThread(int rows)
{
    g_rowsJudgedOnOneThread.store(std::max(0, rows), std::memory_order_relaxed);
}

TableFilterRows::~TableFilterRows()
{
    Join();
}

void TableFilterRows::Compute(const TableContentModel& model, const std::vector<Condition>& conditions,
                              Asking asking)
{
    Unanswer();
    const int rows = model.rowCountSubmitted();
    const int bulks = (rows + c_bulkRows - 1) / c_bulkRows;
    m_accepted.assign(static_cast<std::size_t>(bulks), FirstRows(c_bulkRows));
    if (bulks > 0)
        m_accepted.back() = FirstRows(TableContentGrid::BulkRowCount(bulks - 1, rows));
    m_unjudgeable.assign(static_cast<std::size_t>(bulks), BulkRows());
    Judge(model, conditions, asking);
}

void TableFilterRows::Narrow(const TableContentModel& model, const Condition& condition, Asking asking)
{
    Unanswer();
    Judge(model, { condition }, asking);
}

// Narrows the current answers by the conditions, in their order.
void TableFilterRows::Judge(const TableContentModel& model, const std::vector<Condition>& conditions,
                            Asking asking)
{
    const bool stream = asking == Asking::InOrder && model.rowCountSubmitted() > RowsJudgedOnOneThread()
        && std::all_of(conditions.begin(), conditions.end(),
                       [&](const Condition& condition) { return IsDelivered(model, condition); });
    if (stream) {
        std::vector<Prepared> prepared;
        for (const Condition& condition : conditions)
            prepared.push_back(Prepare(model, condition, Delivery::Done));
        Start(model, std::move(prepared));
    } else {
        for (const Condition& condition : conditions)
            Apply(model, condition);
    }
    Finish(model);
}

void TableFilterRows::Finish(const TableContentModel& model)
{
    m_computed = true;
    m_revision = model.Grid().Revision();
    m_rowCount = model.rowCountSubmitted();
    m_rowsAnswered = m_stream ? 0 : m_rowCount;
}

void TableFilterRows::Unanswer()
{
    Join();
    m_rowsAnswered = 0;
}

bool TableFilterRows::IsCurrent(const TableContentModel& model) const
{
    return IsCurrent(model.Grid().Revision(), model.rowCountSubmitted());
}

void TableFilterRows::Reset()
{
    Join();
    m_accepted.clear();
    m_unjudgeable.clear();
    m_folds.clear();
    m_computed = false;
    m_rowsAnswered = 0;
}

// Whether every cell of the condition's column is in the grid, so that judging needs no delivery.
bool TableFilterRows::IsDelivered(const TableContentModel& model, const Condition& condition)
{
    const TableContentGrid& grid = model.Grid();
    FilterColumnFold& fold = m_folds[condition.columnId];
    if (fold.IsKnownDelivered(grid.Revision(), condition.sourceColumn))
        return true;
    const int rows = model.rowCountSubmitted();
    const int bulks = static_cast<int>(m_accepted.size());
    for (int bulk = 0; bulk < bulks; ++bulk) {
        if (!grid.IsBulkFilled(bulk, condition.sourceColumn, TableContentGrid::BulkRowCount(bulk, rows)))
            return false;
    }
    fold.SetDelivered(grid.Revision(), condition.sourceColumn);
    return true;
}

TableFilterRows::Prepared TableFilterRows::Prepare(const TableContentModel& model, const Condition& condition,
                                                   Delivery delivery)
{
    const TableContentGrid& grid = model.Grid();
    const int rows = model.rowCountSubmitted();
    const int bulks = static_cast<int>(m_accepted.size());
    const int column = condition.sourceColumn;
    Prepared prepared { condition, &m_folds[condition.columnId],
                        std::vector<char>(static_cast<std::size_t>(bulks),
                                          condition.condition->FoldedParts() == FilterColumnFold::NoPart) };
    prepared.fold->Resize(bulks);
    if (delivery == Delivery::Done)
        return prepared;
    // On this thread, in row order: the feeder is asked for what it has not delivered yet.
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
        prepared.cellByCell[b] = prepared.cellByCell[b] || !grid.IsBulkFilled(bulk, column, bulkRows);
    }
    return prepared;
}

void TableFilterRows::Apply(const TableContentModel& model, const Condition& condition)
{
    Prepared prepared = Prepare(model, condition, Delivery::AskFeeder);
    if (model.rowCountSubmitted() <= RowsJudgedOnOneThread()) {
        JudgeBulks(model, prepared, 0, static_cast<int>(m_accepted.size()));
        return;
    }
    Start(model, { std::move(prepared) });
    Join();
}

void TableFilterRows::Start(const TableContentModel& model, std::vector<Prepared> conditions)
{
    auto stream = std::make_unique<Stream>();
    stream->model = &model;
    stream->conditions = std::move(conditions);
    const int bulks = static_cast<int>(m_accepted.size());
    stream->partCount = (bulks + c_bulksPerPart - 1) / c_bulksPerPart;
    stream->judged = std::make_unique<std::atomic<bool>[]>(static_cast<std::size_t>(stream->partCount));
    for (int part = 0; part < stream->partCount; ++part)
        stream->judged[static_cast<std::size_t>(part)].store(false, std::memory_order_relaxed);
    m_stream = std::move(stream);
    Stream* running = m_stream.get();
    running->published.store(true, std::memory_order_release);
    // The asking thread is one of the judges: the pool adds the others, from its idle threads only,
    // so that a pool busy with other work never keeps the asking thread waiting.
    QThreadPool* pool = QThreadPool::globalInstance();
    const int workers = std::min(pool->maxThreadCount() - 1, running->partCount - 1);
    for (int worker = 0; worker < workers; ++worker) {
        running->workersRunning.fetch_add(1, std::memory_order_relaxed);
        const bool started = pool->tryStart([this, running]() {
            if (running->published.load(std::memory_order_acquire)) {
                while (JudgeNextPart(*running)) { }
            }
            running->workersRunning.fetch_sub(1, std::memory_order_release);
        });
        if (!started) {
            running->workersRunning.fetch_sub(1, std::memory_order_relaxed);
            break;
        }
    }
}

bool TableFilterRows::JudgeNextPart(Stream& stream)
{
    const int part = stream.nextPart.fetch_add(1, std::memory_order_relaxed);
    if (part >= stream.partCount)
        return false;
    JudgePart(stream, part);
    return true;
}

void TableFilterRows::JudgePart(Stream& stream, int part)
{
    const int first = part * c_bulksPerPart;
    const int end = std::min(static_cast<int>(m_accepted.size()), first + c_bulksPerPart);
    for (const Prepared& prepared : stream.conditions)
        JudgeBulks(*stream.model, prepared, first, end);
    stream.judged[static_cast<std::size_t>(part)].store(true, std::memory_order_release);
}

void TableFilterRows::AwaitBulk(int bulk)
{
    Stream& stream = *m_stream;
    const int part = bulk / c_bulksPerPart;
    while (!stream.judged[static_cast<std::size_t>(part)].load(std::memory_order_acquire)) {
        // Rather than wait idle, judge what no one has claimed yet; then wait for the others.
        if (!JudgeNextPart(stream))
            QThread::yieldCurrentThread();
    }
    while (stream.judgedParts < stream.partCount
           && stream.judged[static_cast<std::size_t>(stream.judgedParts)].load(std::memory_order_acquire))
        ++stream.judgedParts;
    m_rowsAnswered = std::min(m_rowCount, stream.judgedParts * c_bulksPerPart * c_bulkRows);
    if (stream.judgedParts == stream.partCount)
        Join();
}

bool TableFilterRows::AcceptsUnanswered(int row)
{
    const GridContentIndex index = GridContentIndex::FromRow(row);
    if (row < 0 || index.bulk >= static_cast<int>(m_accepted.size()))
        return true;
    // Within range, a row is unanswered only while its part may still be being judged.
    if (m_stream)
        AwaitBulk(index.bulk);
    return m_accepted[static_cast<std::size_t>(index.bulk)][static_cast<std::size_t>(index.offset)];
}

void TableFilterRows::Join()
{
    if (!m_stream)
        return;
    while (JudgeNextPart(*m_stream)) { }
    // The others are finishing their last part.
    while (m_stream->workersRunning.load(std::memory_order_acquire) != 0)
        QThread::yieldCurrentThread();
    m_stream.reset();
    m_rowsAnswered = std::min(m_computed ? m_rowCount : 0, static_cast<int>(m_accepted.size()) * c_bulkRows);
}

void TableFilterRows::JudgeBulks(const TableContentModel& model, const Prepared& prepared, int firstBulk,
                                 int endBulk)
{
    const TableContentGrid& grid = model.Grid();
    const int rows = model.rowCountSubmitted();
    const int column = prepared.condition.sourceColumn;
    const FilterConditionBase& test = *prepared.condition.condition;
    for (int bulk = firstBulk; bulk < endBulk; ++bulk) {
        const std::size_t b = static_cast<std::size_t>(bulk);
        const BulkRows candidates = m_accepted[b] & ~m_unjudgeable[b];
        if (candidates.none())
            continue;
        BulkRows passed;
        BulkRows unjudged;
        if (prepared.cellByCell[b]) {
            unjudged = candidates;
        } else {
            try {
                const FilterFoldedBulk& folded = prepared.fold->Refresh(
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
