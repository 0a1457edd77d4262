// The structural model's road from a generated building to results on screen, at the size of a
// big project (100,000 members; QTC_BENCH_MEMBERS scales it for a quick look): generating it,
// analysing it, writing its results, and serving the results table a scrolled bulk of 100 rows
// from the middle, each beside a baseline measured in the same run.

#include "analysis/FrameAnalysis.h"
#include "model/ModelGenerator.h"
#include "results/ResultsDatabase.h"
#include "results/ResultsTableData.h"
#include "results/ResultsWriter.h"

#include <QGuiApplication>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <ctime>
#include <cstdio>
#include <map>
#include <memory>

using namespace Orvo::Kernel;
using Analysis::AnalysisResults;
using Results::ResultsTable;

namespace {

const int c_members = qEnvironmentVariableIsSet("QTC_BENCH_MEMBERS") ? qEnvironmentVariableIntValue("QTC_BENCH_MEMBERS")
                                                                      : 100'000;

// What one stage leaves for the next: built on demand, so that any benchmark also runs alone.
struct Pipeline
{
    Model::Structure structure;
    std::shared_ptr<const AnalysisResults> results;
    QTemporaryDir directory;
    QString path;
    std::shared_ptr<Results::ResultsDatabase> database;

    static Pipeline& Get()
    {
        if (!s_pipeline)
            s_pipeline = std::make_unique<Pipeline>();
        return *s_pipeline;
    }
    // Its database connection must close while Qt's SQL driver is still loaded.
    static void Release() { s_pipeline.reset(); }

    static inline std::unique_ptr<Pipeline> s_pipeline;

    const Model::Structure& Structure()
    {
        if (structure.Members().Empty())
            Model::ModelGenerator::Building(structure, Model::BuildingOptions::ForMemberCount(c_members));
        return structure;
    }

    const AnalysisResults& Analysed()
    {
        if (!results)
            results = Analysis::FrameAnalysis::Run(Structure()).results;
        return *results;
    }

    Results::ResultsDatabase& Database()
    {
        if (!database) {
            if (path.isEmpty()) {
                QString error;
                path = directory.filePath("results.sqlite");
                Results::ResultsWriter::Write(Analysed(), path, {}, error);
            }
            database = std::make_shared<Results::ResultsDatabase>(path);
        }
        return *database;
    }
};

std::vector<std::wstring> ColumnIds(const Results::ResultsTableData& table)
{
    std::vector<std::wstring> ids;
    for (const auto& column : table.GetColumns())
        ids.push_back(column.id);
    return ids;
}

void GenerateBuilding(benchmark::State& state)
{
    const auto options = Model::BuildingOptions::ForMemberCount(int(state.range(0)));
    for (auto _ : state) {
        Model::Structure structure;
        Model::ModelGenerator::Building(structure, options);
        benchmark::DoNotOptimize(structure.Members().Records().data());
    }
    state.counters["members"] = options.MemberCount();
    state.SetItemsProcessed(state.iterations() * options.MemberCount());
}

// The least a generator could cost: copying a finished building of the same size.
void Baseline_CopyBuilding(benchmark::State& state)
{
    Model::Structure original;
    Model::ModelGenerator::Building(original, Model::BuildingOptions::ForMemberCount(int(state.range(0))));
    for (auto _ : state) {
        Model::Structure copy = original;
        benchmark::DoNotOptimize(copy.Members().Records().data());
    }
}

void AnalyseBuilding(benchmark::State& state)
{
    Pipeline& pipeline = Pipeline::Get();
    const Model::Structure& structure = pipeline.Structure();
    double seconds = 0.0;
    for (auto _ : state) {
        // Processor time: the machine is shared, and the analysis runs on one thread.
        const std::clock_t start = std::clock();
        const auto outcome = Analysis::FrameAnalysis::Run(structure);
        seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
        if (!outcome.succeeded) {
            state.SkipWithError("the building could not be analysed");
            return;
        }
        pipeline.results = outcome.results;
    }
    state.counters["members"] = double(structure.Members().Size());
    state.counters["dofs"] = pipeline.results->DegreesOfFreedom();
    state.counters["dofs_per_s"] = pipeline.results->DegreesOfFreedom() / seconds;
    state.counters["load_cases"] = double(structure.LoadCases().Size());
}

void WriteResults(benchmark::State& state)
{
    Pipeline& pipeline = Pipeline::Get();
    const AnalysisResults& results = pipeline.Analysed();
    pipeline.path = pipeline.directory.filePath("results.sqlite");
    pipeline.database.reset();
    for (auto _ : state) {
        QString error;
        if (!Results::ResultsWriter::Write(results, pipeline.path, {}, error))
            state.SkipWithError(qPrintable(error));
    }
    Results::ResultsDatabase database(pipeline.path);
    double rows = 0;
    for (ResultsTable table : Results::c_allResultsTables)
        rows += database.RowCount(table);
    state.counters["rows"] = rows;
    state.counters["rows_per_s"] = benchmark::Counter(rows * double(state.iterations()), benchmark::Counter::kIsRate);
}

// Arguments: the table, and whether it is sorted by a value column.
void ServeMiddleBulk(benchmark::State& state)
{
    Pipeline& pipeline = Pipeline::Get();
    pipeline.Database();
    Results::ResultsTableData table(ResultsTable(state.range(0)), nullptr);
    table.SetDatabase(pipeline.database);
    if (state.range(1) != 0)
        table.Sort(table.GetColumns().back().id, Tables::TableSortOrder::Descending);
    const auto ids = ColumnIds(table);
    const int middle = table.GetRowCount() / 2 / 100 * 100;
    for (auto _ : state) {
        const auto cells = table.GetCells(middle, 100, ids);
        benchmark::DoNotOptimize(cells.data());
    }
    table.Sort({}, Tables::TableSortOrder::Unsorted);
    state.counters["table_rows"] = table.GetRowCount();
}

// What a table without a feeder would do: every row of the same table in a QStandardItemModel.
void Baseline_FillStandardItemModel(benchmark::State& state)
{
    Pipeline& pipeline = Pipeline::Get();
    const ResultsTable table = ResultsTable(state.range(0));
    const auto rows = pipeline.Database().ReadRows(table, 0, pipeline.Database().RowCount(table));
    for (auto _ : state) {
        auto model = std::make_unique<QStandardItemModel>(int(rows.size()), int(rows.front().size()));
        for (int row = 0; row < int(rows.size()); ++row) {
            for (int column = 0; column < int(rows[std::size_t(row)].size()); ++column)
                model->setItem(row, column, new QStandardItem(rows[std::size_t(row)][std::size_t(column)].toString()));
        }
        benchmark::DoNotOptimize(model.get());
        state.PauseTiming();
        model.reset();
        state.ResumeTiming();
    }
    state.counters["table_rows"] = double(rows.size());
}

class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            times[run.benchmark_name()] = run.GetAdjustedCPUTime(); // the machine is shared
    }
    std::map<std::string, double> times;
};

} // namespace

BENCHMARK(GenerateBuilding)->Unit(benchmark::kMillisecond)->Iterations(3)->Arg(c_members)->Arg(1'000'000);
BENCHMARK(Baseline_CopyBuilding)->Unit(benchmark::kMillisecond)->Iterations(3)->Arg(c_members)->Arg(1'000'000);
BENCHMARK(AnalyseBuilding)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(WriteResults)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(ServeMiddleBulk)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(50)
    ->Args({ int(ResultsTable::NodeDisplacements), 0 })
    ->Args({ int(ResultsTable::NodeDisplacements), 1 })
    ->Args({ int(ResultsTable::MemberStationForces), 0 })
    ->Args({ int(ResultsTable::MemberStationForces), 1 });
BENCHMARK(Baseline_FillStandardItemModel)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Arg(int(ResultsTable::NodeDisplacements));

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const auto ratio = [&reporter](const char* label, const std::string& ours, const std::string& baseline) {
        const auto mine = reporter.times.find(ours);
        const auto theirs = reporter.times.find(baseline);
        if (mine == reporter.times.end() || theirs == reporter.times.end())
            return;
        std::printf("%-52s %10.3f ms  baseline %10.3f ms  ratio %.3g\n", label, mine->second, theirs->second,
                    mine->second / theirs->second);
    };
    const std::string size = std::to_string(c_members);
    const std::string table = std::to_string(int(ResultsTable::NodeDisplacements));
    std::printf("\nRatios of processor time (ours / baseline, below 1 is faster):\n");
    ratio("generate a building / copy it", "GenerateBuilding/" + size + "/iterations:3",
          "Baseline_CopyBuilding/" + size + "/iterations:3");
    ratio("generate a 1,000,000-member building / copy it", "GenerateBuilding/1000000/iterations:3",
          "Baseline_CopyBuilding/1000000/iterations:3");
    ratio("serve the middle bulk / fill a QStandardItemModel", "ServeMiddleBulk/" + table + "/0/iterations:50",
          "Baseline_FillStandardItemModel/" + table + "/iterations:1");
    ratio("serve the middle bulk, sorted / fill a QStandardItemModel",
          "ServeMiddleBulk/" + table + "/1/iterations:50", "Baseline_FillStandardItemModel/" + table + "/iterations:1");
    benchmark::Shutdown();
    Pipeline::Release();
    return 0;
}
