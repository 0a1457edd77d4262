#include "TestHost.h"
#include "analysis/AnalysisService.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"
#include "results/ResultsDatabase.h"
#include "tables/TableDataCatalog.h"
#include "tables/TableResult.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::Kernel;
using namespace Orvo::Kernel::Tables;

namespace {

// A results table of the size results reach, whose rows are what their number says: row r holds
// the number r and the value r / 100. It records every read, so a test sees how it was read.
class CountingResultsTable : public ITableData
{
public:
    explicit CountingResultsTable(int rows)
        : m_rows(rows)
    { }

    std::wstring GetId() const override { return L"results.counting"; }
    std::wstring GetLabel() const override { return L"Counting"; }
    std::wstring GetIconName() const override { return {}; }
    bool IsReadOnly() const override { return true; }
    std::vector<TableDataColumn> GetColumns() const override
    {
        TableDataColumn number;
        number.id = L"number";
        number.label = L"Number";
        number.type = TableDataType::Integer;
        number.readOnly = true;
        TableDataColumn value = number;
        value.id = L"value";
        value.label = L"Value";
        value.type = TableDataType::Real;
        value.unit = QStringLiteral("kN");
        value.decimals = 2;
        return { number, value };
    }
    int GetRowCount() const override { return m_rows; }
    std::vector<TableDataColumnContent> GetCells(int first, int count,
                                                 const std::vector<std::wstring>& columnIds) const override
    {
        reads.push_back({ first, count });
        const int last = std::min(m_rows, first + count);
        std::vector<TableDataColumnContent> contents;
        for (const std::wstring& id : columnIds) {
            TableDataColumnContent content { id, {} };
            for (int row = first; row < last; ++row) {
                const int number = m_descending ? m_rows - 1 - row : row;
                TableDataCell cell;
                cell.valueType = id == L"number" ? TableDataType::Integer : TableDataType::Real;
                cell.content = id == L"number" ? QVariant(number) : QVariant(number / 100.0);
                content.cells.push_back(cell);
            }
            contents.push_back(std::move(content));
        }
        return contents;
    }
    bool Sort(const std::wstring& columnId, TableSortOrder order) override
    {
        ++sorts;
        m_descending = order == TableSortOrder::Descending;
        m_sortColumn = order == TableSortOrder::Unsorted ? std::wstring() : columnId;
        m_order = order;
        return true;
    }
    std::wstring GetSortColumn() const override { return m_sortColumn; }
    TableSortOrder GetSortOrder() const override { return m_order; }

    struct Read
    {
        int first;
        int count;
    };
    mutable std::vector<Read> reads;
    int sorts = 0;

private:
    int m_rows;
    bool m_descending = false;
    std::wstring m_sortColumn;
    TableSortOrder m_order = TableSortOrder::Unsorted;
};

QString Shown(const TableContentFilterModel& table, int row, int column)
{
    return table.index(row, column).data(TableContentFilterModel::DisplayTextRole).toString();
}

} // namespace

// The results table panel: what it reads of a results table, and when.
class tst_TableResult : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void shouldReadOnlyTheRowsAUserReaches_data();
    void shouldReadOnlyTheRowsAUserReaches();
    void shouldSortInTheHostOnceAndReadAgain();
    void shouldShowTheAnalysisResultsWhenTheyCome();

private:
    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<Framework::ServiceCatalog> m_services;
    std::shared_ptr<CountingResultsTable> m_counting;
};

void tst_TableResult::init()
{
    m_host = std::make_unique<TestHost>();
    m_services = m_host->StartServices();
    m_counting = std::make_shared<CountingResultsTable>(25'000);
}

void tst_TableResult::cleanup()
{
    m_counting.reset();
    m_services.reset();
    m_host.reset();
}

void tst_TableResult::shouldReadOnlyTheRowsAUserReaches_data()
{
    QTest::addColumn<int>("row"); // the row a user scrolls to
    QTest::addColumn<QString>("filter"); // typed into the number column's filter
    QTest::addColumn<int>("reads");
    QTest::addColumn<int>("largestRead");
    QTest::addColumn<int>("shownRows");
    QTest::addColumn<QString>("shownValue");

    // Given 25,000 rows: a scroll reads the bulk of 100 rows it lands in, and nothing else.
    QTest::newRow("the middle") << 12'345 << QString() << 1 << 100 << 25'000 << "123.45";
    QTest::newRow("the last bulk, short") << 24'999 << QString() << 1 << 100 << 25'000 << "249.99";
    // A filter needs the whole column: it comes in runs, never in one read of everything.
    // (three runs of the number column, then the bulk of the row shown)
    QTest::newRow("filtered") << 2 << ">=20000" << 4 << TableResult::c_rowsPerRead << 5'000 << "200.02";
}

void tst_TableResult::shouldReadOnlyTheRowsAUserReaches()
{
    QFETCH(int, row);
    QFETCH(QString, filter);
    QFETCH(int, reads);
    QFETCH(int, largestRead);
    QFETCH(int, shownRows);
    QFETCH(QString, shownValue);
    m_services->Get<TableDataCatalog>()->SetWorkstation(
        { TableDataCatalog::c_resultsWorkstation, L"Results", {}, { m_counting } });
    TableResult panel;
    TableContentModel& model = *panel.contentModel();
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    TableContentFilterModel& table = *model.contentFilterModel();
    FilterBarModel filterBar;
    model.setFilterBarModel(&filterBar);
    QCOMPARE(panel.tableId(), "results.counting");
    QCOMPARE(model.rowCountSubmitted(), 25'000);
    QVERIFY2(m_counting->reads.empty(), "nothing is read before it is shown");

    if (!filter.isEmpty())
        QVERIFY(filterBar.setData(filterBar.index(0), filter, FilterBarModel::ConditionTextRole));
    QCOMPARE(table.rowCount(), shownRows);
    QCOMPARE(Shown(table, row, 1), shownValue);

    QCOMPARE(int(m_counting->reads.size()), reads);
    int largest = 0;
    for (const auto& read : m_counting->reads)
        largest = std::max(largest, read.count);
    QCOMPARE(largest, largestRead);
    QCOMPARE(model.columnsModel()->rowCount(), 2);
    QCOMPARE(model.headerData(1, Qt::Horizontal, TableContentModel::ColumnLabelRole).toString(),
             "Value [kN]");
    QVERIFY(!model.getAllowEdit());
    QVERIFY(!table.index(row, 1).data(TableContentModel::EditableRole).toBool());
}

void tst_TableResult::shouldSortInTheHostOnceAndReadAgain()
{
    m_services->Get<TableDataCatalog>()->SetWorkstation(
        { TableDataCatalog::c_resultsWorkstation, L"Results", {}, { m_counting } });
    TableResult panel;
    TableContentModel& model = *panel.contentModel();
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(Shown(*model.contentFilterModel(), 0, 0), "0");

    // When a user sorts the value column descending
    QVERIFY(model.setHeaderData(1, Qt::Horizontal, TableContentModel::Descending,
                                TableContentModel::SortOrderRole));

    // Then the host orders its rows once and the first row is the largest value
    QCOMPARE(m_counting->sorts, 1);
    QCOMPARE(Shown(*model.contentFilterModel(), 0, 0), "24999");
    // and a refill without a change of order does not order again
    emit model.refillContentRequest();
    QCOMPARE(m_counting->sorts, 1);
}

void tst_TableResult::shouldShowTheAnalysisResultsWhenTheyCome()
{
    auto structuralModel = m_services->Get<Framework::StructuralModel>();
    structuralModel->Replace([](Model::Structure& structure) {
        Model::ModelGenerator::Building(structure, { 3, 2, 2, 6.0, 5.0, 3.5, 4 });
    });
    TableResult panel;
    TableContentModel& model = *panel.contentModel();
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QAbstractItemModelTester tabsTester(panel.tabsModel(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);

    // Given no analysis yet: the results workstation with its tables, the first one open and empty
    QCOMPARE(panel.workstationsModel()->rowCount(), 1);
    QCOMPARE(panel.tabsModel()->rowCount(), 4);
    QCOMPARE(panel.tableId(), "results.node_displacements");
    QCOMPARE(panel.tabsModel()->index(2).data(TableTabsModel::LabelRole).toString(), "Member end forces");
    QVERIFY(model.columnCount() > 0);
    QCOMPARE(model.rowCountSubmitted(), 0);

    // When the analysis has run
    auto analysis = m_services->Get<Analysis::AnalysisService>();
    QSignalSpy done(analysis.get(), &Analysis::AnalysisService::finished);
    QVERIFY(analysis->start());
    QVERIFY(done.wait(60000));
    QVERIFY(done.first().at(0).toBool());

    // Then the shown table holds the displacements of every node in every load case and combination
    QCOMPARE(model.rowCountSubmitted(), 6 * 36);
    QVERIFY(Shown(*model.contentFilterModel(), 0, 0).startsWith("LC1"));
    panel.openTable("results.member_end_forces");
    QCOMPARE(model.rowCountSubmitted(),
             analysis->Database()->RowCount(Results::ResultsTable::MemberEndForces));
    QCOMPARE(panel.tabsFilterModel()->rowCount(), 2);
}

QTEST_MAIN(tst_TableResult)
#include "tst_tableresult.moc"
