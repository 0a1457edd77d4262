#include "EventRecorder.h"
#include "TestHost.h"
#include "analysis/AnalysisEvents.h"
#include "analysis/AnalysisService.h"
#include "analysis/FrameAnalysis.h"
#include "framework/EventBus.h"
#include "framework/IStringLoader.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"
#include "results/ResultsDatabase.h"
#include "results/ResultsTableData.h"
#include "results/ResultsWriter.h"
#include "tables/TableDataCatalog.h"
#include "tables/TableDataEvents.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Orvo::Kernel;
using namespace Orvo::Kernel::Analysis;
using namespace Orvo::Kernel::Results;
using Tables::TableSortOrder;

Q_DECLARE_METATYPE(ResultsTable)
Q_DECLARE_METATYPE(TableSortOrder)

namespace {

// Three by two bays, two storeys: 36 nodes, 12 supports, 58 members, 4 load cases and 2
// combinations, so every results table runs over several bulks of 100 rows.
Model::BuildingOptions SmallBuilding()
{
    return { 3, 2, 2, 6.0, 5.0, 3.5, 4 };
}

} // namespace

// Results written to SQLite and read back a run of rows at a time, as the results tables read them.
class tst_ResultsDatabase : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rowsCountEveryObjectOfEverySet_data();
    void rowsCountEveryObjectOfEverySet();
    void bulkReadsGiveTheAnalysisValues_data();
    void bulkReadsGiveTheAnalysisValues();
    void sortingOrdersTheWholeTable_data();
    void sortingOrdersTheWholeTable();
    void resultsTableCellsAndColumns();
    void stoppedWriteLeavesNoFile();
    void serviceRunsTheAnalysisAndFillsTheResultsTables();
    void serviceReportsWhyAnAnalysisFailed();

private:
    QTemporaryDir m_directory;
    Model::Structure m_structure;
    std::shared_ptr<const AnalysisResults> m_results;
    std::unique_ptr<ResultsDatabase> m_database;
};

void tst_ResultsDatabase::initTestCase()
{
    Model::ModelGenerator::Building(m_structure, SmallBuilding());
    const AnalysisOutcome outcome = FrameAnalysis::Run(m_structure);
    QVERIFY(outcome.succeeded);
    m_results = outcome.results;
    QString error;
    const QString path = m_directory.filePath("results.sqlite");
    std::vector<double> fractions;
    const auto progress = [&fractions](double fraction) {
        fractions.push_back(fraction);
        return true;
    };
    QVERIFY2(ResultsWriter::Write(*m_results, path, progress, error), qPrintable(error));
    QVERIFY(std::is_sorted(fractions.begin(), fractions.end()));
    m_database = std::make_unique<ResultsDatabase>(path);
    QVERIFY(m_database->IsOpen());
}

void tst_ResultsDatabase::rowsCountEveryObjectOfEverySet_data()
{
    QTest::addColumn<ResultsTable>("table");
    QTest::addColumn<int>("perSet");

    QTest::newRow("node displacements") << ResultsTable::NodeDisplacements << 36;
    QTest::newRow("support reactions") << ResultsTable::SupportReactions << 12;
    QTest::newRow("member end forces") << ResultsTable::MemberEndForces << 2 * 58;
    QTest::newRow("member station forces")
        << ResultsTable::MemberStationForces << ResultsSchema::c_stations * 58;
}

void tst_ResultsDatabase::rowsCountEveryObjectOfEverySet()
{
    QFETCH(ResultsTable, table);
    QFETCH(int, perSet);

    QCOMPARE(m_structure.Members().Size(), 58u);
    QCOMPARE(m_database->Sets().size(), 6u);
    QCOMPARE(m_database->RowCount(table), 6 * perSet);
    QCOMPARE(m_database->DegreesOfFreedom(), m_results->DegreesOfFreedom());
    QCOMPARE(m_database->Sets()[4].combination, true);
    QCOMPARE(m_database->Sets()[4].name, "ULS 1");
}

void tst_ResultsDatabase::bulkReadsGiveTheAnalysisValues_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("expected");

    QTest::newRow("first bulk") << 0 << 100 << 100;
    QTest::newRow("bulk in the middle, across load cases") << 100 << 100 << 100;
    QTest::newRow("last bulk, cut short") << 200 << 100 << 16;
    QTest::newRow("past the end") << 216 << 100 << 0;
    QTest::newRow("negative start") << -50 << 60 << 60;
}

void tst_ResultsDatabase::bulkReadsGiveTheAnalysisValues()
{
    QFETCH(int, first);
    QFETCH(int, count);
    QFETCH(int, expected);

    const auto rows = m_database->ReadRows(ResultsTable::NodeDisplacements, first, count);

    QCOMPARE(int(rows.size()), expected);
    const int nodes = int(m_results->Frame().nodes.size());
    for (int i = 0; i < expected; ++i) {
        const int row = std::max(0, first) + i;
        const std::size_t set = std::size_t(row / nodes);
        const std::size_t node = std::size_t(row % nodes);
        QCOMPARE(rows[std::size_t(i)][0].toInt(), int(set));
        QCOMPARE(rows[std::size_t(i)][1].toInt(), m_results->Frame().nodes[node].number);
        const Vector6 u = m_results->NodeDisplacement(set, node);
        QCOMPARE(rows[std::size_t(i)][4].toDouble(), u[2] * 1000.0);
    }
    // Member forces at a station are the analysis's section forces there.
    const auto stations
        = m_database->ReadRows(ResultsTable::MemberStationForces, 7 * ResultsSchema::c_stations + 2, 1);
    QCOMPARE(stations.size(), 1u);
    const Vector6 f = m_results->SectionForces(0, 7, m_results->Frame().members[7].length / 2);
    QCOMPARE(stations[0][2].toDouble(), m_results->Frame().members[7].length / 2);
    QCOMPARE(stations[0][7].toDouble(), f[4]);
}

void tst_ResultsDatabase::sortingOrdersTheWholeTable_data()
{
    QTest::addColumn<ResultsTable>("table");
    QTest::addColumn<QString>("column");
    QTest::addColumn<TableSortOrder>("order");

    QTest::newRow("displacements ascending")
        << ResultsTable::NodeDisplacements << "uz" << TableSortOrder::Ascending;
    QTest::newRow("moments descending")
        << ResultsTable::MemberStationForces << "my" << TableSortOrder::Descending;
    QTest::newRow("by object, ties in table order")
        << ResultsTable::MemberEndForces << "member" << TableSortOrder::Ascending;
}

void tst_ResultsDatabase::sortingOrdersTheWholeTable()
{
    QFETCH(ResultsTable, table);
    QFETCH(QString, column);
    QFETCH(TableSortOrder, order);
    const auto& columns = ResultsSchema::Columns(table);
    const int position = int(std::find_if(columns.begin(), columns.end(),
                                          [&column](const ResultsColumn& c) { return c.name == column; })
                             - columns.begin());
    const auto unsorted = m_database->ReadRows(table, 0, m_database->RowCount(table));

    QVERIFY(m_database->Sort(table, column, order));

    std::vector<std::vector<QVariant>> sorted;
    for (int first = 0; first < m_database->RowCount(table); first += 100) {
        const auto bulk = m_database->ReadRows(table, first, 100);
        sorted.insert(sorted.end(), bulk.begin(), bulk.end());
    }
    QCOMPARE(sorted.size(), unsorted.size());
    std::vector<std::vector<QVariant>> expected = unsorted;
    std::stable_sort(expected.begin(), expected.end(), [position, order](const auto& a, const auto& b) {
        const double left = a[std::size_t(position)].toDouble();
        const double right = b[std::size_t(position)].toDouble();
        return order == TableSortOrder::Ascending ? left < right : left > right;
    });
    QVERIFY(sorted == expected);

    QVERIFY(m_database->Sort(table, column, TableSortOrder::Unsorted));
    QVERIFY(m_database->ReadRows(table, 0, 1000000) == unsorted);
    QVERIFY(!m_database->Sort(table, "no_such_column", TableSortOrder::Ascending));
}

void tst_ResultsDatabase::resultsTableCellsAndColumns()
{
    TestHost host;
    const auto services = host.StartServices();
    ResultsTableData table(ResultsTable::MemberEndForces, services->Get<Framework::IStringLoader>());
    QCOMPARE(table.GetRowCount(), 0);
    QCOMPARE(table.GetId(), L"results.member_end_forces");
    QCOMPARE(table.GetTabInfo().label, L"Member end forces");
    const auto columns = table.GetColumns();
    QCOMPARE(columns.size(), 9u);
    QCOMPARE(columns[2].type, Tables::TableDataType::List);
    QCOMPARE(columns[7].label, L"My");
    QCOMPARE(columns[7].unit, "kNm");
    QVERIFY(std::all_of(columns.begin(), columns.end(), [](const auto& column) { return column.readOnly; }));

    auto database = std::make_shared<ResultsDatabase>(m_database->Path());
    QVERIFY(table.Sort(L"my", TableSortOrder::Ascending));
    table.SetDatabase(database);
    QCOMPARE(table.GetRowCount(), m_database->RowCount(ResultsTable::MemberEndForces));

    const auto cells
        = table.GetCells(table.GetRowCount() / 2, 100, { L"result_set", L"member_end", L"my", L"none" });
    QCOMPARE(cells.size(), 4u);
    QCOMPARE(cells[0].cells.size(), 100u);
    QVERIFY(cells[0].cells[0].content.toString().startsWith("LC")
            || cells[0].cells[0].content.toString().startsWith("CO"));
    QVERIFY(QStringList({ "Start", "End" }).contains(cells[1].cells[0].content.toString()));
    QCOMPARE(cells[2].cells[0].decimals, std::optional<std::int16_t>(2));
    for (std::size_t row = 1; row < cells[2].cells.size(); ++row)
        QVERIFY(cells[2].cells[row - 1].content.toDouble() <= cells[2].cells[row].content.toDouble());
    QVERIFY(!cells[3].cells[0].content.isValid());
    QVERIFY(!cells[2].cells[0].editable);
    QVERIFY(table.Sort(L"my", TableSortOrder::Unsorted));
    QCOMPARE(table.GetCells(0, 1, { L"result_set" })[0].cells[0].content.toString(), "LC1 Dead load");
}

void tst_ResultsDatabase::stoppedWriteLeavesNoFile()
{
    const QString path = m_directory.filePath("stopped.sqlite");
    QString error;

    QVERIFY(!ResultsWriter::Write(
        *m_results, path, [](double) { return false; }, error));

    QVERIFY(error.isEmpty());
    QVERIFY(!QFile::exists(path));
}

void tst_ResultsDatabase::serviceRunsTheAnalysisAndFillsTheResultsTables()
{
    TestHost host;
    const auto services = host.StartServices();
    auto model = services->Get<Framework::StructuralModel>();
    model->Replace(
        [](Model::Structure& structure) { Model::ModelGenerator::Building(structure, SmallBuilding()); });
    auto service = services->Get<AnalysisService>();
    auto tables = services->Get<Tables::TableDataCatalog>();
    EventRecorder<AnalysisFinishedEvent> finished(*services->Get<Framework::EventBus>());
    EventRecorder<Tables::TableDataChangedEvent> changed(*services->Get<Framework::EventBus>());
    QSignalSpy done(service.get(), &AnalysisService::finished);
    QSignalSpy progress(service.get(), &AnalysisService::progressChanged);
    const auto displacements = tables->FindTable(L"results.node_displacements");
    QVERIFY(displacements);
    QCOMPARE(displacements->GetRowCount(), 0);

    QVERIFY(service->start());
    QVERIFY(service->running());
    QVERIFY(!service->start());
    QVERIFY(done.wait(60000));

    QCOMPARE(done.takeFirst().at(0).toBool(), true);
    QVERIFY(!service->running());
    QVERIFY(progress.count() >= 3);
    QCOMPARE(service->progress(), 1.0);
    QVERIFY(service->hasResults());
    QVERIFY(service->resultsUpToDate());
    QCOMPARE(displacements->GetRowCount(), 6 * 36);
    QCOMPARE(service->summary().size(), 6);
    QVERIFY(service->summary()[0].toMap()["displacement"].toString().contains(" mm at Node "));
    QVERIFY(service->statusText().startsWith("Analysed 144 degrees of freedom in "));
    QCOMPARE(finished.Count(), 1u);
    QVERIFY(finished.Last().succeeded);
    QCOMPARE(finished.Last().object, 0);
    QCOMPARE(changed.Last().tableIds.size(), 4u);

    model->SetValue({ Model::MakeObjectId(Model::ObjectKind::Node, 30) }, "node.x", 1.0);
    QVERIFY(!service->resultsUpToDate());
}

void tst_ResultsDatabase::serviceReportsWhyAnAnalysisFailed()
{
    TestHost host;
    const auto services = host.StartServices();
    auto model = services->Get<Framework::StructuralModel>();
    model->Replace([](Model::Structure& structure) {
        Model::ModelGenerator::PortalFrame(structure, { 1, 6.0, 4.0 });
        structure.Nodes().Append({ 0, 9.0, 0.0, 0.0, {} });
    });
    auto service = services->Get<AnalysisService>();
    EventRecorder<AnalysisFinishedEvent> finished(*services->Get<Framework::EventBus>());
    QSignalSpy done(service.get(), &AnalysisService::finished);

    QVERIFY(service->start());
    QVERIFY(done.wait(60000));

    QCOMPARE(done.takeFirst().at(0).toBool(), false);
    QCOMPARE(service->statusText(), "Node 5 is not connected to any member or support");
    // The event names the node, so that a message about it can select it.
    QCOMPARE(finished.Count(), 1u);
    QCOMPARE(finished.Last().object, Model::MakeObjectId(Model::ObjectKind::Node, 5));
    QVERIFY(!service->hasResults());
    QCOMPARE(service->progress(), 0.0);
}

QTEST_GUILESS_MAIN(tst_ResultsDatabase)
#include "tst_resultsdatabase.moc"
