// Speed and memory of the table models at the sizes the host's tables reach (up to a million
// rows), each measured against the Qt model a plain implementation would use, in the same run.

#include "tables/FilterBarModel.h"
#include "tables/TableContentModel.h"

#include "tables/UnicodeStripped.h"

#include "HeapAllocations.h"
#include <QAbstractTableModel>
#include <QClipboard>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <atomic>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <malloc.h>
#include <map>
#include <memory>
#include <string>

using namespace Orvo::UI::UIComponents;

namespace {

// QTC_BENCH_ROWS scales the tables down for a quick look; the goals are set for a million rows.
const int c_filterRows = qEnvironmentVariableIsSet("QTC_BENCH_ROWS")
    ? qEnvironmentVariableIntValue("QTC_BENCH_ROWS")
    : 1'000'000;

// Short member names, about one in ten with a letter outside ASCII.
std::vector<QString> MakeTexts(int count)
{
    static const char* syllables[] = { "ka", "lo", "mi", "ne", "po", "ru", "sa", "te", "vu", "za" };
    static const QString accented[]
        = { QStringLiteral("ü"), QStringLiteral("ø"), QStringLiteral("é"), QStringLiteral("ł") };
    QRandomGenerator random(42);
    std::vector<QString> texts;
    texts.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        QString text;
        for (int s = 0; s < 3; ++s)
            text += QLatin1String(syllables[random.bounded(10)]);
        if (random.bounded(10) == 0)
            text.insert(random.bounded(text.size()), accented[random.bounded(4)]);
        text += QString::number(i % 100);
        texts.push_back(std::move(text));
    }
    return texts;
}

std::vector<double> MakeReals(int count)
{
    QRandomGenerator random(7);
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        values.push_back(random.bounded(1000.0));
    return values;
}

// A content model fed from vectors, as the host's controller would feed it from its objects.
struct FedTable
{
    explicit FedTable(std::vector<TableColumn> columns,
                      std::function<TableCellContent(int row, int column)> cellOf, int rows)
        : cellAt(std::move(cellOf))
        , rowCount(rows)
    {
        QObject::connect(&model, &TableContentModel::setRowsRequest, [this](int index, int count, auto ids) {
            ++requests;
            std::vector<TableColumnContent> contents;
            for (const QString& id : ids) {
                const int column = model.FindColumnIndex(id);
                TableColumnContent content { id, {} };
                content.cells.reserve(static_cast<std::size_t>(count));
                for (int row = index; row < index + count; ++row)
                    content.cells.push_back(cellAt(row, column));
                contents.push_back(std::move(content));
            }
            model.SetColumnsContent(index, std::move(contents));
        });
        QObject::connect(&model, &TableContentModel::updateDataRequest, [this](auto) { ++updates; });
        model.setAllowEdit(true);
        model.AddColumns(std::move(columns));
        model.SetRowCount(rows);
        model.setFilterBarModel(&filterBar);
    }
    void SetFilter(int column, const QString& text)
    {
        filterBar.setData(filterBar.index(column), text, FilterBarModel::ConditionTextRole);
    }

    TableContentModel model;
    FilterBarModel filterBar;
    std::function<TableCellContent(int, int)> cellAt;
    int rowCount;
    int requests = 0;
    int updates = 0;
};

TableColumn Column(const QString& id, TableValueType type)
{
    TableColumn column;
    column.id = id;
    column.label = id;
    column.type = type;
    return column;
}

const std::vector<QString>& Texts()
{
    static const std::vector<QString> texts = MakeTexts(c_filterRows);
    return texts;
}

const std::vector<double>& Reals()
{
    static const std::vector<double> values = MakeReals(c_filterRows);
    return values;
}

TableCellContent TextCell(int row)
{
    TableCellContent cell;
    cell.content = Texts()[static_cast<std::size_t>(row)];
    cell.valueType = TableValueType::String;
    return cell;
}

TableCellContent RealCell(int row)
{
    TableCellContent cell;
    cell.content = Reals()[static_cast<std::size_t>(row)];
    cell.valueType = TableValueType::Real;
    cell.decimals = 2;
    return cell;
}

FedTable& TextTable(int rows)
{
    static std::map<int, std::unique_ptr<FedTable>> tables;
    auto& table = tables[rows];
    if (!table)
        table = std::make_unique<FedTable>(
            std::vector<TableColumn> { Column("name", TableValueType::String) },
            [](int row, int) { return TextCell(row); }, rows);
    return *table;
}

FedTable& RealTable(int rows)
{
    static std::map<int, std::unique_ptr<FedTable>> tables;
    auto& table = tables[rows];
    if (!table)
        table = std::make_unique<FedTable>(
            std::vector<TableColumn> { Column("length", TableValueType::Real) },
            [](int row, int) { return RealCell(row); }, rows);
    return *table;
}

QStandardItemModel& BaselineTexts(int rows)
{
    static std::map<int, std::unique_ptr<QStandardItemModel>> models;
    auto& model = models[rows];
    if (!model) {
        model = std::make_unique<QStandardItemModel>(rows, 1);
        for (int row = 0; row < rows; ++row)
            model->setItem(row, 0, new QStandardItem(Texts()[static_cast<std::size_t>(row)]));
    }
    return *model;
}

QStandardItemModel& BaselineReals(int rows)
{
    static std::map<int, std::unique_ptr<QStandardItemModel>> models;
    auto& model = models[rows];
    if (!model) {
        model = std::make_unique<QStandardItemModel>(rows, 1);
        for (int row = 0; row < rows; ++row) {
            auto* item = new QStandardItem;
            item->setData(Reals()[static_cast<std::size_t>(row)], Qt::DisplayRole);
            model->setItem(row, 0, item);
        }
    }
    return *model;
}

// What a plain numeric filter on Qt's proxy looks like: compare data().toDouble() with bounds.
class NumericProxy : public QSortFilterProxyModel
{
public:
    void SetRange(double lower, double upper)
    {
        m_lower = lower;
        m_upper = upper;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& parent) const override
    {
        const double value = sourceModel()->index(sourceRow, 0, parent).data().toDouble();
        return value >= m_lower && value <= m_upper;
    }

private:
    double m_lower = -1e300;
    double m_upper = 1e300;
};

// ---- Filtering -------------------------------------------------------------------------------------------
// Every run ends by asking the row count, as a view does after the filter changed.

int Rows(const benchmark::State& state)
{
    return static_cast<int>(state.range(0));
}

// Alternates between two filter texts so that every iteration filters again.
void RunFilters(benchmark::State& state, FedTable& table, const QString& first, const QString& second)
{
    table.SetFilter(0, second); // caches the column
    table.model.contentFilterModel()->rowCount();
    bool flip = false;
    const std::size_t allocationsBefore = HeapAllocations();
    for (auto _ : state) {
        table.SetFilter(0, flip ? second : first);
        benchmark::DoNotOptimize(table.model.contentFilterModel()->rowCount());
        flip = !flip;
    }
    state.counters["allocations per cell"] = static_cast<double>(HeapAllocations() - allocationsBefore)
        / (static_cast<double>(state.iterations()) * table.rowCount);
    state.counters["rows shown"] = table.model.contentFilterModel()->rowCount();
    table.SetFilter(0, QString());
}

// The proxy's own floor: the same content model behind Qt's proxy, whose filter only looks up an
// answer known in advance (the rows "ka" and "mi" accept). What remains is the proxy's mapping.
class KnownAnswerProxy : public QSortFilterProxyModel
{
public:
    void SetAnswers(const std::vector<char>* answers)
    {
        m_answers = answers;
        invalidate();
    }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex&) const override
    {
        return !m_answers || sourceRow >= static_cast<int>(m_answers->size())
            || (*m_answers)[static_cast<std::size_t>(sourceRow)] != 0;
    }

private:
    const std::vector<char>* m_answers = nullptr;
};

std::vector<char> RowsContaining(int rows, const QString& text)
{
    std::vector<char> answers(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row)
        answers[static_cast<std::size_t>(row)]
            = UnicodeStripped(Texts()[static_cast<std::size_t>(row)]).contains(text, Qt::CaseInsensitive);
    return answers;
}

// Alternates the proxy between two known sets of answers, as RunFilters alternates filter texts.
void RunProxyFloor(benchmark::State& state, FedTable& table, const std::vector<char>& first,
                   const std::vector<char>& second)
{
    KnownAnswerProxy proxy;
    proxy.setDynamicSortFilter(false);
    proxy.setSourceModel(&table.model);
    proxy.SetAnswers(&second);
    proxy.rowCount();
    bool flip = false;
    for (auto _ : state) {
        proxy.SetAnswers(flip ? &second : &first);
        benchmark::DoNotOptimize(proxy.rowCount());
        flip = !flip;
    }
    state.counters["rows shown"] = proxy.rowCount();
}

void ProxyFloor_Refilter(benchmark::State& state)
{
    RunProxyFloor(state, TextTable(Rows(state)), RowsContaining(Rows(state), QStringLiteral("ka")),
                  RowsContaining(Rows(state), QStringLiteral("mi")));
}

// The same floor for the interval filter, whose ranges let about half of the rows through.
void ProxyFloor_IntervalRefilter(benchmark::State& state)
{
    const auto rowsWithin = [&](double lower, double upper) {
        std::vector<char> answers(static_cast<std::size_t>(Rows(state)));
        for (std::size_t row = 0; row < answers.size(); ++row)
            answers[row] = Reals()[row] >= lower && Reals()[row] < upper;
        return answers;
    };
    RunProxyFloor(state, RealTable(Rows(state)), rowsWithin(100, 600), rowsWithin(200, 700));
}

void ContentsFilter_Refilter(benchmark::State& state)
{
    RunFilters(state, TextTable(Rows(state)), QStringLiteral("ka"), QStringLiteral("mi"));
}

void Baseline_ContentsFilter_Refilter(benchmark::State& state)
{
    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(&BaselineTexts(Rows(state)));
    proxy.setFilterFixedString(QStringLiteral("mi"));
    proxy.rowCount();
    bool flip = false;
    for (auto _ : state) {
        proxy.setFilterFixedString(flip ? QStringLiteral("mi") : QStringLiteral("ka"));
        benchmark::DoNotOptimize(proxy.rowCount());
        flip = !flip;
    }
    state.counters["rows shown"] = proxy.rowCount();
}

void ContentsFilter_FirstWithDelivery(benchmark::State& state)
{
    FedTable& table = TextTable(Rows(state));
    for (auto _ : state) {
        state.PauseTiming();
        table.SetFilter(0, QString());
        table.model.SetRowCount(Rows(state)); // drops the cache
        table.model.contentFilterModel()->rowCount();
        state.ResumeTiming();
        table.SetFilter(0, QStringLiteral("lo"));
        benchmark::DoNotOptimize(table.model.contentFilterModel()->rowCount());
    }
    table.SetFilter(0, QString());
}

void Baseline_ContentsFilter_First(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto proxy = std::make_unique<QSortFilterProxyModel>();
        proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
        proxy->setSourceModel(&BaselineTexts(Rows(state)));
        proxy->rowCount();
        state.ResumeTiming();
        proxy->setFilterFixedString(QStringLiteral("lo"));
        benchmark::DoNotOptimize(proxy->rowCount());
        state.PauseTiming();
        proxy.reset();
        state.ResumeTiming();
    }
}

void ClearFilter(benchmark::State& state)
{
    FedTable& table = TextTable(Rows(state));
    for (auto _ : state) {
        state.PauseTiming();
        table.SetFilter(0, QStringLiteral("ka"));
        table.model.contentFilterModel()->rowCount();
        state.ResumeTiming();
        table.SetFilter(0, QString());
        benchmark::DoNotOptimize(table.model.contentFilterModel()->rowCount());
    }
}

void Baseline_ClearFilter(benchmark::State& state)
{
    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(&BaselineTexts(Rows(state)));
    for (auto _ : state) {
        state.PauseTiming();
        proxy.setFilterFixedString(QStringLiteral("ka"));
        proxy.rowCount();
        state.ResumeTiming();
        proxy.setFilterFixedString(QString());
        benchmark::DoNotOptimize(proxy.rowCount());
    }
}

void NumericFilter_LessOrEqual(benchmark::State& state)
{
    RunFilters(state, RealTable(Rows(state)), QStringLiteral("<=500"), QStringLiteral("<=250.5"));
}

void NumericFilter_Interval(benchmark::State& state)
{
    RunFilters(state, RealTable(Rows(state)), QStringLiteral("[100;600]"), QStringLiteral("[200;700)"));
}

void RunNumericBaseline(benchmark::State& state, std::pair<double, double> first,
                        std::pair<double, double> second)
{
    NumericProxy proxy;
    proxy.setSourceModel(&BaselineReals(Rows(state)));
    proxy.SetRange(second.first, second.second);
    proxy.rowCount();
    bool flip = false;
    for (auto _ : state) {
        const auto range = flip ? second : first;
        proxy.SetRange(range.first, range.second);
        benchmark::DoNotOptimize(proxy.rowCount());
        flip = !flip;
    }
}

void Baseline_NumericFilter_LessOrEqual(benchmark::State& state)
{
    RunNumericBaseline(state, { -1e300, 500 }, { -1e300, 250.5 });
}

void Baseline_NumericFilter_Interval(benchmark::State& state)
{
    RunNumericBaseline(state, { 100, 600 }, { 200, 699.999999 });
}

// ---- Serving a scrolled bulk
// --------------------------------------------------------------------------------

void ServeScrolledBulk(benchmark::State& state)
{
    constexpr int columns = 20;
    std::vector<TableColumn> definitions;
    for (int column = 0; column < columns; ++column)
        definitions.push_back(Column(QStringLiteral("c%1").arg(column),
                                     column % 2 ? TableValueType::Real : TableValueType::String));
    static const QStringList materials { "S235", "S355" };
    FedTable table(
        std::move(definitions),
        [](int row, int column) {
            TableCellContent cell = column % 2 ? RealCell(row) : TextCell(row);
            cell.editable = true;
            if (column == 4) {
                cell.parametersNames = materials;
                cell.parameterIndex = row % 2;
            }
            return cell;
        },
        c_filterRows);
    TableContentFilterModel* view = table.model.contentFilterModel();
    const QList<int> roles = table.model.roleNames().keys();
    int bulk = 0;
    for (auto _ : state) {
        const int first = (bulk++ % (c_filterRows / TableContentModel::c_rowsCountBulk))
            * TableContentModel::c_rowsCountBulk;
        for (int row = first; row < first + TableContentModel::c_rowsCountBulk; ++row) {
            for (int column = 0; column < columns; ++column) {
                const QModelIndex index = view->index(row, column);
                for (int role : roles)
                    benchmark::DoNotOptimize(view->data(index, role));
            }
        }
    }
    state.counters["requests per bulk"] = static_cast<double>(table.requests) / static_cast<double>(bulk);
}

// ---- Clipboard --------------------------------------------------------------------------------------------

FedTable& ClipboardTable()
{
    static FedTable table(
        [] {
            std::vector<TableColumn> definitions;
            for (int column = 0; column < 10; ++column)
                definitions.push_back(Column(QStringLiteral("c%1").arg(column),
                                             column % 2 ? TableValueType::Real : TableValueType::String));
            return definitions;
        }(),
        [](int row, int column) {
            TableCellContent cell = column % 2 ? RealCell(row) : TextCell(row);
            cell.editable = true;
            return cell;
        },
        20'000);
    return table;
}

void CopyBlock(benchmark::State& state)
{
    FedTable& table = ClipboardTable();
    table.model.selectionModel()->select(table.model.index(0, 0), TableSelectionModel::CleanSelect);
    table.model.selectionModel()->selectRegion(table.model.index(9'999, 9), TableSelectionModel::CleanSelect);
    for (auto _ : state)
        table.model.copyToClipboard();
    state.counters["bytes"] = static_cast<double>(QGuiApplication::clipboard()->text().size());
}

void PasteBlock(benchmark::State& state)
{
    FedTable& table = ClipboardTable();
    table.model.selectionModel()->select(table.model.index(0, 0), TableSelectionModel::CleanSelect);
    table.model.selectionModel()->selectRegion(table.model.index(9'999, 9), TableSelectionModel::CleanSelect);
    table.model.copyToClipboard();
    int dataChanges = 0;
    QObject::connect(&table.model, &QAbstractItemModel::dataChanged, [&]() { ++dataChanges; });
    int pastes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        table.model.SetRowCount(20'000); // no pending edits, a cold cache
        for (int row = 10'000; row < 20'000; row += TableContentModel::c_rowsCountBulk)
            table.model.GetFilledCell(row, 0, TableContentModel::ContentRequest::VisibleColumns);
        table.model.contentFilterModel()->selectionModel()->select(
            table.model.contentFilterModel()->index(10'000, 0), TableSelectionModel::CleanSelect);
        dataChanges = 0;
        state.ResumeTiming();
        table.model.pasteFromClipboard();
        table.model.confirmUpdate();
        ++pastes;
    }
    state.counters["updates per paste"] = static_cast<double>(table.updates) / pastes;
    state.counters["dataChanged per paste"] = dataChanges;
}

// ---- Memory
// ------------------------------------------------------------------------------------------------

std::size_t HeapInUse()
{
    malloc_trim(0);
    return mallinfo2().uordblks;
}

// The host's typical wide table: 10 text and 10 real columns.
constexpr int c_wideColumns = 20;

std::vector<TableColumn> WideColumns()
{
    std::vector<TableColumn> definitions;
    for (int column = 0; column < c_wideColumns; ++column)
        definitions.push_back(Column(QStringLiteral("c%1").arg(column),
                                     column % 2 ? TableValueType::Real : TableValueType::String));
    return definitions;
}

TableCellContent WideCell(int row, int column)
{
    return column % 2 ? RealCell(row) : TextCell(row);
}

// A tenth of the rows is enough to tell the cost per cell, and keeps the run short.
const int c_memoryRows = std::max(1, c_filterRows / 10);

void MemoryPerCachedCell(benchmark::State& state)
{
    for (auto _ : state) {
        const std::size_t before = HeapInUse();
        auto table = std::make_unique<FedTable>(WideColumns(), WideCell, c_memoryRows);
        for (int column = 0; column < c_wideColumns; ++column)
            table->model.GetFilledCell(0, column, TableContentModel::ContentRequest::WholeColumn);
        const std::size_t ours = HeapInUse() - before;
        table.reset();

        const std::size_t beforeBaseline = HeapInUse();
        auto items = std::make_unique<QStandardItemModel>(c_memoryRows, c_wideColumns);
        for (int row = 0; row < c_memoryRows; ++row) {
            for (int column = 0; column < c_wideColumns; ++column) {
                auto* item = new QStandardItem;
                item->setData(WideCell(row, column).content, Qt::DisplayRole);
                items->setItem(row, column, item);
            }
        }
        const std::size_t baseline = HeapInUse() - beforeBaseline;
        items.reset();
        const double cells = static_cast<double>(c_memoryRows) * c_wideColumns;
        state.counters["bytes per cached cell"] = static_cast<double>(ours) / cells;
        state.counters["bytes per QStandardItem"] = static_cast<double>(baseline) / cells;
        state.counters["ratio"] = static_cast<double>(ours) / static_cast<double>(baseline);
    }
}

// A million rows are announced, and the view asks for its first screen: the first bulk of every
// column through the filter model, each cell's shown text.
void FirstScreen(benchmark::State& state)
{
    FedTable table(WideColumns(), WideCell, 0);
    TableContentFilterModel* view = table.model.contentFilterModel();
    for (auto _ : state) {
        state.PauseTiming();
        table.model.SetRowCount(0);
        state.ResumeTiming();
        table.model.SetRowCount(c_filterRows);
        for (int row = 0; row < std::min(c_filterRows, TableContentModel::c_rowsCountBulk); ++row) {
            for (int column = 0; column < c_wideColumns; ++column)
                benchmark::DoNotOptimize(
                    view->data(view->index(row, column), TableContentFilterModel::DisplayTextRole));
        }
    }
}

// What Qt's proxy costs by itself when a million rows are announced: the same proxy over a model
// that holds nothing and answers every cell with one text, announcing its rows the same way. The
// proxy maps every row when they come, which no model behind it can spare it.
class AnnouncingModel : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_rows;
    }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : c_wideColumns;
    }
    QVariant data(const QModelIndex&, int) const override { return m_text; }
    void SetRowCount(int rows)
    {
        if (m_rows > 0) {
            beginRemoveRows(QModelIndex(), 0, m_rows - 1);
            m_rows = 0;
            endRemoveRows();
        }
        if (rows > 0) {
            beginInsertRows(QModelIndex(), 0, rows - 1);
            m_rows = rows;
            endInsertRows();
        }
    }

private:
    int m_rows = 0;
    QVariant m_text = QStringLiteral("S235");
};

void ProxyFloor_FirstScreen(benchmark::State& state)
{
    AnnouncingModel model;
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.rowCount();
    for (auto _ : state) {
        state.PauseTiming();
        model.SetRowCount(0);
        state.ResumeTiming();
        model.SetRowCount(c_filterRows);
        for (int row = 0; row < std::min(c_filterRows, TableContentModel::c_rowsCountBulk); ++row) {
            for (int column = 0; column < c_wideColumns; ++column)
                benchmark::DoNotOptimize(proxy.data(proxy.index(row, column)));
        }
    }
}

// Keeps every run's time per iteration so that the ratios can be printed at the end.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            times[run.benchmark_name()] = run.GetAdjustedRealTime(); // in the run's time unit (ms here)
            for (const auto& [name, counter] : run.counters)
                counters[run.benchmark_name() + ":" + name] = counter.value;
        }
    }
    std::map<std::string, double> times;
    std::map<std::string, double> counters;
};

} // namespace

// Qt's proxy re-filters incrementally, which grows with the square of the row count: a million
// rows take it minutes. Each pair is therefore compared at c_baselineRows (QTC_BENCH_FULL_BASELINE=1
// compares at the full size), and our own runs are measured at the full size as well.
const int c_baselineRows
    = qEnvironmentVariableIsSet("QTC_BENCH_FULL_BASELINE") ? c_filterRows : std::min(200'000, c_filterRows);
#define QTC_PAIR(ours, baseline, ourIterations)                                                              \
    BENCHMARK(ours)                                                                                          \
        ->Unit(benchmark::kMillisecond)                                                                      \
        ->Iterations(ourIterations)                                                                          \
        ->Arg(c_baselineRows)                                                                                \
        ->Arg(c_filterRows);                                                                                 \
    BENCHMARK(baseline)->Unit(benchmark::kMillisecond)->Iterations(1)->Arg(c_baselineRows)

QTC_PAIR(ContentsFilter_Refilter, Baseline_ContentsFilter_Refilter, 10);
QTC_PAIR(ContentsFilter_FirstWithDelivery, Baseline_ContentsFilter_First, 2);
QTC_PAIR(ClearFilter, Baseline_ClearFilter, 5);
QTC_PAIR(NumericFilter_LessOrEqual, Baseline_NumericFilter_LessOrEqual, 10);
QTC_PAIR(NumericFilter_Interval, Baseline_NumericFilter_Interval, 10);
BENCHMARK(ServeScrolledBulk)->Unit(benchmark::kMillisecond)->Iterations(200);
BENCHMARK(CopyBlock)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(PasteBlock)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(ProxyFloor_Refilter)->Unit(benchmark::kMillisecond)->Iterations(10)->Arg(c_filterRows);
BENCHMARK(ProxyFloor_IntervalRefilter)->Unit(benchmark::kMillisecond)->Iterations(10)->Arg(c_filterRows);
BENCHMARK(MemoryPerCachedCell)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(FirstScreen)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(ProxyFloor_FirstScreen)->Unit(benchmark::kMillisecond)->Iterations(5);

namespace {

void PrintGoal(const char* name, double measured, const char* unit, double target, bool met)
{
    std::printf("GOAL %s %.3f %s %.3f %s\n", name, measured, unit, target, met ? "met" : "missed");
}

// One line per goal, for scripts: GOAL <name> <measured> <unit> <target> met|missed.
void PrintGoals(const RatioReporter& reporter)
{
    const auto time = [&](const std::string& name) {
        const auto found = reporter.times.find(name);
        return found == reporter.times.end() ? -1.0 : found->second;
    };
    const auto counter = [&](const std::string& name) {
        const auto found = reporter.counters.find(name);
        return found == reporter.counters.end() ? -1.0 : found->second;
    };
    const std::string full = std::to_string(c_filterRows);
    const std::string base = std::to_string(c_baselineRows);
    constexpr double c_frameMs = 16.0;
    std::printf("\n");

    const double contains = time("ContentsFilter_Refilter/" + full + "/iterations:10");
    const double floor = time("ProxyFloor_Refilter/" + full + "/iterations:10");
    PrintGoal("contains_refilter", contains, "ms", c_frameMs, contains >= 0 && contains <= c_frameMs);
    const double overFloor = floor > 0 ? contains / floor : -1.0;
    PrintGoal("contains_refilter_vs_proxy_floor", overFloor, "ratio", 1.5,
              overFloor >= 0 && overFloor <= 1.5);

    for (const char* name : { "NumericFilter_LessOrEqual", "NumericFilter_Interval" }) {
        const std::string run = std::string(name) + "/" + full + "/iterations:10";
        const double ms = time(run);
        const double allocations = counter(run + ":allocations per cell");
        const std::string goal
            = std::string(name == std::string("NumericFilter_Interval") ? "interval" : "numeric");
        PrintGoal((goal + "_refilter").c_str(), ms, "ms", c_frameMs, ms >= 0 && ms <= c_frameMs);
        // The proxy's own few vectors per re-filter remain; none may come per cell, which would show
        // as one or more per cell here.
        std::printf("GOAL %s_allocations_per_cell %.6f allocations 0 %s\n", goal.c_str(), allocations,
                    allocations >= 0 && allocations < 0.001 ? "met" : "missed");
    }

    const double oursAtBase = time("ContentsFilter_Refilter/" + base + "/iterations:10");
    const double qtAtBase = time("Baseline_ContentsFilter_Refilter/" + base + "/iterations:1");
    const double speedUp = oursAtBase > 0 && qtAtBase > 0 ? qtAtBase / oursAtBase : -1.0;
    PrintGoal("contains_refilter_vs_qstandarditemmodel", speedUp, "speedup", 50.0, speedUp >= 50.0);

    const double memory = counter("MemoryPerCachedCell/iterations:1:ratio");
    PrintGoal("memory_per_cell_vs_qstandarditem", memory, "ratio", 0.25, memory >= 0 && memory <= 0.25);

    const double firstScreen = time("FirstScreen/iterations:5");
    PrintGoal("first_screen", firstScreen, "ms", c_frameMs, firstScreen >= 0 && firstScreen <= c_frameMs);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    auto ratio = [&](const char* name, const char* baseline) {
        const auto ours = reporter.times.find(name);
        const auto theirs = reporter.times.find(baseline);
        if (ours == reporter.times.end() || theirs == reporter.times.end())
            return;
        std::printf("%-34s %9.2f ms  baseline %9.2f ms  speed-up %.2fx\n", name, ours->second, theirs->second,
                    theirs->second / ours->second);
    };
    std::printf("\nRatios against the Qt baselines at %d rows:\n", c_baselineRows);
    const std::string size = std::to_string(c_baselineRows);
    ratio(("ContentsFilter_Refilter/" + size + "/iterations:10").c_str(),
          ("Baseline_ContentsFilter_Refilter/" + size + "/iterations:1").c_str());
    ratio(("ContentsFilter_FirstWithDelivery/" + size + "/iterations:2").c_str(),
          ("Baseline_ContentsFilter_First/" + size + "/iterations:1").c_str());
    ratio(("ClearFilter/" + size + "/iterations:5").c_str(),
          ("Baseline_ClearFilter/" + size + "/iterations:1").c_str());
    ratio(("NumericFilter_LessOrEqual/" + size + "/iterations:10").c_str(),
          ("Baseline_NumericFilter_LessOrEqual/" + size + "/iterations:1").c_str());
    ratio(("NumericFilter_Interval/" + size + "/iterations:10").c_str(),
          ("Baseline_NumericFilter_Interval/" + size + "/iterations:1").c_str());
    const auto firstScreen = reporter.times.find("FirstScreen/iterations:5");
    const auto proxyAlone = reporter.times.find("ProxyFloor_FirstScreen/iterations:5");
    if (firstScreen != reporter.times.end() && proxyAlone != reporter.times.end()) {
        std::printf("First screen at %d rows: %.2f ms, of which Qt's proxy alone takes %.2f ms\n",
                    c_filterRows, firstScreen->second, proxyAlone->second);
    }
    const std::string full = std::to_string(c_filterRows);
    const auto interval = reporter.times.find("NumericFilter_Interval/" + full + "/iterations:10");
    const auto intervalFloor = reporter.times.find("ProxyFloor_IntervalRefilter/" + full + "/iterations:10");
    if (interval != reporter.times.end() && intervalFloor != reporter.times.end()) {
        std::printf("Interval re-filter at %d rows: %.2f ms, Qt's proxy alone at the same rows shown %.2f ms "
                    "(%.2fx)\n",
                    c_filterRows, interval->second, intervalFloor->second,
                    interval->second / intervalFloor->second);
    }
    PrintGoals(reporter);
    benchmark::Shutdown();
    return 0;
}
