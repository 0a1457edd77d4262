#include "EventRecorder.h"
#include "TestHost.h"
#include "framework/EventBus.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"
#include "tables/TableDataCatalog.h"
#include "tables/TableDataEvents.h"

#include <QTest>
#include <QUndoStack>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::Kernel::Model;
using namespace Orvo::Kernel::Tables;

Q_DECLARE_METATYPE(std::wstring)
Q_DECLARE_METATYPE(TableDataUpdate)

namespace {

QStringList Texts(const std::vector<TableDataCell>& cells)
{
    QStringList texts;
    for (const TableDataCell& cell : cells)
        texts << cell.content.toString();
    return texts;
}

} // namespace

// The host's tables as a table panel reads and edits them, over the demo's portal frame: nodes 1
// (0, 0, 0), 2 (0, 0, 4.5), 3 (6, 0, 0), 4 (6, 0, 4.5), 5 (12, 0, 0), 6 (12, 0, 4.5); columns 1-3,
// beams 4-5.
class tst_TableData : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void workstationsListTheirTables();
    void columnsDescribeTheProperties();
    void bulkReadsGiveRunsOfRows_data();
    void bulkReadsGiveRunsOfRows();
    void sortingOrdersRows_data();
    void sortingOrdersRows();
    void sortedTableFollowsTheModel();
    void refusedValuesAreReportedAndChangeNothing_data();
    void refusedValuesAreReportedAndChangeNothing();
    void confirmedUpdateIsOneUndoStep_data();
    void confirmedUpdateIsOneUndoStep();
    void deletionIsAllOrNothing();
    void cellActionRunsTheObjectsAction();
    void changesAreAnnouncedPerTable();

private:
    std::shared_ptr<ITableInputTableData> Table(const std::wstring& id) const
    {
        return m_catalog->FindInputTable(id);
    }

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_services;
    std::shared_ptr<StructuralModel> m_model;
    std::shared_ptr<TableDataCatalog> m_catalog;
};

void tst_TableData::init()
{
    m_host = std::make_unique<TestHost>();
    m_services = m_host->StartServices();
    m_model = m_services->Get<StructuralModel>();
    m_catalog = m_services->Get<TableDataCatalog>();
    m_model->Replace([](Structure& structure) { ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 }); });
}

void tst_TableData::cleanup()
{
    m_catalog.reset();
    m_model.reset();
    m_services.reset();
    m_host.reset();
}

void tst_TableData::workstationsListTheirTables()
{
    QVERIFY(m_catalog);
    QStringList layout;
    for (const TableWorkstation& workstation : m_catalog->Workstations()) {
        QStringList tables;
        for (const auto& table : workstation.tables)
            tables << QString::fromStdWString(table->GetId());
        layout << QString::fromStdWString(workstation.label) + ": " + tables.join(", ");
    }
    QCOMPARE(layout,
             QStringList({ "Model: node, member, support, crossSection, material",
                           "Loads: loadCase, nodalLoad, memberLoad, combination",
                           "Results: results.node_displacements, results.support_reactions, "
                           "results.member_end_forces, results.member_station_forces" }));
    QCOMPARE(Table(L"member")->GetLabel(), L"Members");
    QCOMPARE(Table(L"member")->GetRowCount(), 5);
    QVERIFY(!m_catalog->FindTable(L"nothing"));
}

void tst_TableData::columnsDescribeTheProperties()
{
    const auto columns = Table(L"member")->GetColumns();
    const auto column = [&columns](const std::wstring& id) {
        return *std::find_if(columns.begin(), columns.end(), [&id](const auto& c) { return c.id == id; });
    };
    QCOMPARE(columns.front().id, L"general.number");
    QVERIFY(columns.front().readOnly);

    const TableDataColumn start = column(L"member.startNode");
    QCOMPARE(start.type, TableDataType::Integer);
    QVERIFY(start.required);
    QVERIFY(!start.readOnly);
    QCOMPARE(start.label, L"Start node");
    QCOMPARE(start.groupLabel, L"Geometry");

    const TableDataColumn length = column(L"member.length");
    QCOMPARE(length.type, TableDataType::Real);
    QCOMPARE(length.unit, "m");
    QCOMPARE(length.decimals, 3);
    QVERIFY(length.readOnly);

    const TableDataColumn release = column(L"member.startRelease");
    QCOMPARE(release.type, TableDataType::List);
    QCOMPARE(release.listValues.size(), 5);

    const auto materials = Table(L"material")->GetColumns();
    const auto yield = std::find_if(materials.begin(), materials.end(),
                                    [](const auto& c) { return c.id == L"material.yieldStrength"; });
    QVERIFY(yield != materials.end());
    QVERIFY(!yield->parameters.empty());
    QCOMPARE(yield->parameters.front().name, "S235");
}

void tst_TableData::bulkReadsGiveRunsOfRows_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("heights");

    QTest::newRow("whole table") << 0 << 100 << QStringList({ "0", "4.5", "0", "4.5", "0", "4.5" });
    QTest::newRow("run in the middle") << 2 << 2 << QStringList({ "0", "4.5" });
    QTest::newRow("run past the end is cut short") << 4 << 100 << QStringList({ "0", "4.5" });
    QTest::newRow("run after the end") << 6 << 100 << QStringList();
    QTest::newRow("negative first row") << -3 << 4 << QStringList({ "0", "4.5", "0", "4.5" });
}

void tst_TableData::bulkReadsGiveRunsOfRows()
{
    QFETCH(int, first);
    QFETCH(int, count);
    QFETCH(QStringList, heights);

    const auto contents = Table(L"node")->GetCells(first, count, { L"node.z", L"no.such.column" });

    QCOMPARE(contents.size(), 2u);
    QCOMPARE(contents[0].columnId, L"node.z");
    QCOMPARE(Texts(contents[0].cells), heights);
    QCOMPARE(contents[1].cells.size(), std::size_t(heights.size()));
    for (const TableDataCell& cell : contents[0].cells) {
        QCOMPARE(cell.valueType, TableDataType::Real);
        QCOMPARE(cell.decimals, std::optional<std::int16_t>(3));
        QVERIFY(cell.editable);
        QVERIFY(cell.hasAction); // place on the ground
    }
    for (const TableDataCell& cell : contents[1].cells)
        QVERIFY(!cell.content.isValid() && !cell.editable);
}

void tst_TableData::sortingOrdersRows_data()
{
    QTest::addColumn<std::wstring>("table");
    QTest::addColumn<std::wstring>("column");
    QTest::addColumn<int>("order");
    QTest::addColumn<QStringList>("numbers");

    // Node names: 1 "N10", 2 "n2", 3 "N1", 4 unnamed, 5 "N2b", 6 "n2".
    QTest::newRow("texts in natural order, ties by number")
        << std::wstring(L"node") << std::wstring(L"general.name") << 1
        << QStringList({ "4", "3", "2", "6", "5", "1" });
    QTest::newRow("texts descending") << std::wstring(L"node") << std::wstring(L"general.name") << 2
                                      << QStringList({ "1", "5", "2", "6", "3", "4" });
    QTest::newRow("numbers ascending") << std::wstring(L"node") << std::wstring(L"node.x") << 1
                                       << QStringList({ "1", "2", "3", "4", "5", "6" });
    QTest::newRow("numbers descending") << std::wstring(L"node") << std::wstring(L"node.z") << 2
                                        << QStringList({ "2", "4", "6", "1", "3", "5" });
    QTest::newRow("computed values") << std::wstring(L"member") << std::wstring(L"member.length") << 2
                                     << QStringList({ "4", "5", "1", "2", "3" });
    // Load case categories: Permanent, Imposed, Wind; by their texts.
    QTest::newRow("list choices by their text")
        << std::wstring(L"loadCase") << std::wstring(L"loadCase.category") << 1
        << QStringList({ "2", "1", "3" });
    // Springs exist only where a support leaves the node free: supports 1 and 3 are pinned.
    QTest::newRow("objects without the property last")
        << std::wstring(L"support") << std::wstring(L"support.spring4") << 1
        << QStringList({ "1", "3", "2" });
    QTest::newRow("unsorted is the objects' own order") << std::wstring(L"node") << std::wstring(L"node.z")
                                                        << 0 << QStringList({ "1", "2", "3", "4", "5", "6" });
}

void tst_TableData::sortingOrdersRows()
{
    QFETCH(std::wstring, table);
    QFETCH(std::wstring, column);
    QFETCH(int, order);
    QFETCH(QStringList, numbers);
    const char* names[] = { "N10", "n2", "N1", "", "N2b", "n2" };
    for (int node = 1; node <= 6; ++node)
        m_model->Assign(MakeObjectId(ObjectKind::Node, node), "general.name", QString(names[node - 1]));
    m_model->Assign(MakeObjectId(ObjectKind::Support, 1), "support.type", std::int32_t(1));
    m_model->Assign(MakeObjectId(ObjectKind::Support, 1), "support.spring4", 500.0);
    m_model->Assign(MakeObjectId(ObjectKind::Support, 3), "support.type", std::int32_t(1));
    m_model->Assign(MakeObjectId(ObjectKind::Support, 3), "support.spring4", 900.0);
    auto data = Table(table);
    data->Sort(column, TableSortOrder::Ascending);

    QVERIFY(data->Sort(column, TableSortOrder(order)));

    QCOMPARE(data->GetSortOrder(), TableSortOrder(order));
    const auto contents = data->GetCells(0, 100, { L"general.number" });
    QCOMPARE(Texts(contents[0].cells), numbers);
    for (int row = 0; row < numbers.size(); ++row) {
        QCOMPARE(NumberOf(data->GetObjectAt(row)), numbers[row].toInt());
        QCOMPARE(data->FindRow(data->GetObjectAt(row)), row);
    }
}

void tst_TableData::sortedTableFollowsTheModel()
{
    auto nodes = Table(L"node");
    QVERIFY(nodes->Sort(L"node.x", TableSortOrder::Descending));
    QVERIFY(!nodes->Sort(L"no.such.column", TableSortOrder::Ascending));
    QCOMPARE(nodes->GetSortColumn(), L"node.x");

    m_model->SetValue({ MakeObjectId(ObjectKind::Node, 1) }, "node.x", 20.0);
    QCOMPARE(NumberOf(nodes->GetObjectAt(0)), 1);
    m_model->AddObject(ObjectKind::Node, { { "node.x", 30.0 } });
    QCOMPARE(nodes->GetRowCount(), 7);
    QCOMPARE(NumberOf(nodes->GetObjectAt(0)), 7);
    m_model->UndoStack()->undo();
    m_model->UndoStack()->undo();
    QCOMPARE(nodes->GetRowCount(), 6);
    QCOMPARE(Texts(nodes->GetCells(0, 2, { L"general.number" })[0].cells), QStringList({ "5", "6" }));
}

void tst_TableData::refusedValuesAreReportedAndChangeNothing_data()
{
    QTest::addColumn<std::wstring>("table");
    QTest::addColumn<int>("row");
    QTest::addColumn<std::wstring>("column");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("reason");

    QTest::newRow("text in a number column") << std::wstring(L"node") << 0 << std::wstring(L"node.x")
                                             << QVariant("left") << "left is not a value of this property";
    QTest::newRow("fraction in an integer column")
        << std::wstring(L"member") << 0 << std::wstring(L"member.endNode") << QVariant("2.5")
        << "2.5 is not a value of this property";
    QTest::newRow("reference to nothing") << std::wstring(L"member") << 0 << std::wstring(L"member.endNode")
                                          << QVariant("99") << "There is no node 99";
    QTest::newRow("member without length")
        << std::wstring(L"node") << 1 << std::wstring(L"node.z") << QVariant("0")
        << "Member 1 would have no length: nodes 1 and 2 lie at the same place";
    QTest::newRow("read-only column") << std::wstring(L"member") << 0 << std::wstring(L"member.length")
                                      << QVariant(3.0) << "Length cannot be changed";
    QTest::newRow("choice that is not offered")
        << std::wstring(L"loadCase") << 0 << std::wstring(L"loadCase.category") << QVariant("Seismic")
        << "Seismic is not a value of this property";
    QTest::newRow("unknown column") << std::wstring(L"node") << 0 << std::wstring(L"node.w") << QVariant(1.0)
                                    << "There is no column node.w";
    QTest::newRow("new member without its nodes")
        << std::wstring(L"member") << 5 << std::wstring(L"general.name") << QVariant("B3")
        << "There is no node 0";
}

void tst_TableData::refusedValuesAreReportedAndChangeNothing()
{
    QFETCH(std::wstring, table);
    QFETCH(int, row);
    QFETCH(std::wstring, column);
    QFETCH(QVariant, value);
    QFETCH(QString, reason);
    const Structure before = m_model->Structure();

    const TableUpdateResult result = Table(table)->Update({ { row, { { column, value } } } });

    QVERIFY(!result.Changed());
    QCOMPARE(result.rejections.size(), 1u);
    QCOMPARE(result.rejections[0].row, row);
    QCOMPARE(result.rejections[0].reason, reason);
    QCOMPARE(m_model->UndoStack()->count(), 0);
    QCOMPARE(m_model->Structure().Nodes().Records(), before.Nodes().Records());
    QCOMPARE(m_model->Structure().Members().Records(), before.Members().Records());
}

void tst_TableData::confirmedUpdateIsOneUndoStep_data()
{
    QTest::addColumn<std::wstring>("table");
    QTest::addColumn<TableDataUpdate>("update");
    QTest::addColumn<QString>("step");
    QTest::addColumn<QStringList>("names"); // of the table's rows afterwards

    QTest::newRow("one cell") << std::wstring(L"node")
                              << TableDataUpdate { { 1, { { L"general.name", "Eave" } } } }
                              << "Set Name of Node 2" << QStringList({ "", "Eave", "", "", "", "" });
    QTest::newRow("cells of several rows and a new row")
        << std::wstring(L"node")
        << TableDataUpdate { { 0, { { L"general.name", "Foot" }, { L"node.y", "1.5" } } },
                             { 3, { { L"general.name", "Top" } } },
                             { 6, { { L"general.name", "Ridge" }, { L"node.z", "6" } } } }
        << "Edit 5 cells in Nodes" << QStringList({ "Foot", "", "", "Top", "", "", "Ridge" });
    QTest::newRow("new rows only")
        << std::wstring(L"member")
        << TableDataUpdate { { 5, { { L"member.startNode", "2" }, { L"member.endNode", "5" } } },
                             { 6,
                               { { L"member.startNode", "1" },
                                 { L"member.endNode", "4" },
                                 { L"general.name", "Brace" } } } }
        << "Add 2 rows to Members" << QStringList({ "", "", "", "", "", "", "Brace" });
    QTest::newRow("a value picked by its parameter name")
        << std::wstring(L"material") << TableDataUpdate { { 0, { { L"material.yieldStrength", "S460" } } } }
        << "Set Yield strength fy of Material 1" << QStringList({ "S355", "C30/37" });
}

void tst_TableData::confirmedUpdateIsOneUndoStep()
{
    QFETCH(std::wstring, table);
    QFETCH(TableDataUpdate, update);
    QFETCH(QString, step);
    QFETCH(QStringList, names);
    auto data = Table(table);
    const Structure before = m_model->Structure();

    const TableUpdateResult result = data->Update(update);

    QVERIFY2(result.rejections.empty(),
             qPrintable(result.rejections.empty() ? QString() : result.rejections[0].reason));
    QCOMPARE(Texts(data->GetCells(0, 100, { L"general.name" })[0].cells), names);
    QCOMPARE(m_model->UndoStack()->count(), 1);
    QCOMPARE(m_model->UndoStack()->undoText(), step);
    m_model->UndoStack()->undo();
    QCOMPARE(m_model->Structure().Nodes().Records(), before.Nodes().Records());
    QCOMPARE(m_model->Structure().Members().Records(), before.Members().Records());
    QCOMPARE(m_model->Structure().Materials().Records(), before.Materials().Records());
}

void tst_TableData::deletionIsAllOrNothing()
{
    auto nodes = Table(L"node");
    TableUpdateResult refused = nodes->RemoveRows({ 0, 5 });
    QCOMPARE(refused.removedRows, 0);
    QCOMPARE(refused.rejections.size(), 1u);
    QCOMPARE(refused.rejections[0].reason, "Node 1 is used by Member 1");
    QCOMPARE(nodes->GetRowCount(), 6);

    nodes->Update({ { 6, { { L"node.x", "30" } } } });
    TableUpdateResult removed = nodes->RemoveRows({ 6, 42 });
    QCOMPARE(removed.removedRows, 1);
    QCOMPARE(nodes->GetRowCount(), 6);
    QCOMPARE(m_model->UndoStack()->undoText(), "Delete Node 7");
}

void tst_TableData::cellActionRunsTheObjectsAction()
{
    auto nodes = Table(L"node");
    QVERIFY(!nodes->ExecuteAction(1, L"node.x")); // no action there
    QVERIFY(!nodes->ExecuteAction(0, L"node.z")); // on the ground already
    nodes->Update({ { 6, { { L"node.x", "30" }, { L"node.z", "2" } } } });

    QVERIFY(nodes->ExecuteAction(6, L"node.z"));

    QCOMPARE(nodes->GetCells(6, 1, { L"node.z" })[0].cells[0].content.toDouble(), 0.0);
    QVERIFY(Table(L"member")->GetCells(0, 1, { L"member.startNode" })[0].cells[0].hasAction);
    QVERIFY(Table(L"member")->ExecuteAction(0, L"member.startNode"));
    QCOMPARE(Table(L"member")->GetCells(0, 1, { L"member.startNode" })[0].cells[0].content.toInt(), 2);
}

void tst_TableData::changesAreAnnouncedPerTable()
{
    EventRecorder<TableDataChangedEvent> changes(*m_services->Get<EventBus>());

    Table(L"node")->Update({ { 0, { { L"node.x", "0.5" } } } });
    QCOMPARE(changes.Count(), 1u);
    QCOMPARE(changes.Last().tableIds, std::vector<std::wstring>({ L"node" }));
    QVERIFY(!changes.Last().rowsChanged);

    Table(L"member")->Update({ { 5, { { L"member.startNode", "2" }, { L"member.endNode", "5" } } } });
    QCOMPARE(changes.Count(), 2u);
    QVERIFY(changes.Last().rowsChanged);
    QCOMPARE(changes.Last().tableIds, std::vector<std::wstring>({ L"member" }));

    m_model->Replace([](Structure& structure) { ModelGenerator::PortalFrame(structure, { 1, 5.0, 3.0 }); });
    QCOMPARE(changes.Last().tableIds.size(), c_allKinds.size());
}

QTEST_GUILESS_MAIN(tst_TableData)
#include "tst_tabledata.moc"
