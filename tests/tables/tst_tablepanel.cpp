#include "TestHost.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"
#include "tables/TableInput.h"
#include <functional>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <cmath>
#include <limits>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::Kernel::Framework;
using namespace Orvo::Kernel::Model;

namespace {

// A panel with a tester on every model it feeds, attached before anything happens to them.
struct TestedPanel
{
    TestedPanel()
        : tabs(panel.tabsModel(), QAbstractItemModelTester::FailureReportingMode::QtTest)
        , openTabs(panel.tabsFilterModel(), QAbstractItemModelTester::FailureReportingMode::QtTest)
        , workstations(panel.workstationsModel(), QAbstractItemModelTester::FailureReportingMode::QtTest)
        , content(panel.contentModel(), QAbstractItemModelTester::FailureReportingMode::QtTest)
        , columns(panel.contentModel()->columnsModel(),
                  QAbstractItemModelTester::FailureReportingMode::QtTest)
    { }

    // The tab bar as a user reads it, the selected tab in brackets.
    QString Bar() const
    {
        const TableTabsFilterModel& shown = *const_cast<TableInput&>(panel).tabsFilterModel();
        QStringList ids;
        for (int place = 0; place < shown.rowCount(); ++place) {
            const QString id = shown.index(place, 0).data(TableTabsModel::IdRole).toString();
            ids << (place == shown.selectedIndex() ? QStringLiteral("[%1]").arg(id) : id);
        }
        return ids.join(QLatin1Char(' '));
    }
    QString Columns() const
    {
        QStringList ids;
        const TableContentModel& model = *const_cast<TableInput&>(panel).contentModel();
        for (int column = 0; column < model.columnCount(); ++column)
            ids << model.headerData(column, Qt::Horizontal, TableContentModel::ColumnIdRole).toString();
        return ids.join(QLatin1Char(' '));
    }
    void SelectWorkstation(const QString& id)
    {
        panel.workstationsModel()->setSelectedIndex(panel.workstationsModel()->FindIndexById(id));
    }

    TableInput panel;
    QAbstractItemModelTester tabs;
    QAbstractItemModelTester openTabs;
    QAbstractItemModelTester workstations;
    QAbstractItemModelTester content;
    QAbstractItemModelTester columns;
};

// One thing a user does to the tab bar, written as "verb argument...".
void Apply(TestedPanel& tested, const QString& step)
{
    const QStringList words = step.split(QLatin1Char(' '));
    const QString verb = words.at(0);
    TableInput& panel = tested.panel;
    if (verb == "open")
        panel.openTable(words.at(1));
    else if (verb == "close")
        panel.closeTab(words.at(1).toInt());
    else if (verb == "select")
        panel.tabsFilterModel()->setSelectedIndex(words.at(1).toInt());
    else if (verb == "move")
        panel.tabsFilterModel()->move(words.at(1).toInt(), words.at(2).toInt());
    else if (verb == "next")
        panel.selectNeighbourTab(words.at(1).toInt());
    else if (verb == "workstation")
        tested.SelectWorkstation(words.at(1));
    else if (verb == "show")
        panel.setTableId(words.at(1));
    else if (verb == "hideAll")
        panel.tabsModel()->hideAll();
    else
        QFAIL(qPrintable("unknown step " + step));
}

} // namespace

// What the input and results panels share, seen through the input panel over the host's
// portal frame: workstations and tabs, the shown table, alerts and the stored layout.
class tst_TablePanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void shouldFollowTheTabBar_data();
    void shouldFollowTheTabBar();
    void shouldAlertTabsOfTablesWithErrors();
    void shouldRestoreTheLayoutAUserLeft_data();
    void shouldRestoreTheLayoutAUserLeft();
    void shouldIgnoreAConfigurationItCannotRead();

private:
    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_services;
    std::shared_ptr<StructuralModel> m_model;
};

void tst_TablePanel::init()
{
    m_host = std::make_unique<TestHost>();
    m_services = m_host->StartServices();
    m_model = m_services->Get<StructuralModel>();
    m_model->Replace([](Structure& structure) { ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 }); });
}

void tst_TablePanel::cleanup()
{
    m_model.reset();
    m_services.reset();
    m_host.reset();
}

void tst_TablePanel::shouldFollowTheTabBar_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("bar");
    QTest::addColumn<QString>("shown"); // the table in the view

    QTest::newRow("a first visit opens the first table") << QStringList() << "[node]"
                                                         << "node";
    QTest::newRow("an opened tab goes last and is shown")
        << QStringList { "open support", "open member" } << "node support [member]"
        << "member";
    QTest::newRow("opening an open tab only selects it")
        << QStringList { "open support", "open node" } << "[node] support"
        << "node";
    QTest::newRow("closing the shown tab shows its left neighbour")
        << QStringList { "open member", "open support", "close 2" } << "node [member]"
        << "member";
    QTest::newRow("closing the first shown tab shows the next one")
        << QStringList { "open member", "select 0", "close 0" } << "[member]"
        << "member";
    QTest::newRow("closing another tab keeps the shown one")
        << QStringList { "open member", "close 0" } << "[member]"
        << "member";
    QTest::newRow("closing the last tab shows nothing") << QStringList { "close 0" } << ""
                                                        << "";
    QTest::newRow("a dragged tab keeps being shown")
        << QStringList { "open member", "open support", "move 2 0" } << "[support] node member"
        << "support";
    QTest::newRow("a tab dropped behind the last")
        << QStringList { "open member", "open support", "select 0", "move 0 3" } << "member support [node]"
        << "node";
    QTest::newRow("ctrl+page down stops at the last tab")
        << QStringList { "open member", "open support", "select 0", "next 1", "next 1", "next 1" }
        << "node member [support]"
        << "support";
    QTest::newRow("ctrl+page up stops at the first tab")
        << QStringList { "open member", "next -1", "next -1" } << "[node] member"
        << "node";
    QTest::newRow("another workstation has tabs of its own")
        << QStringList { "open member", "workstation loads" } << "[loadCase]"
        << "loadCase";
    QTest::newRow("coming back finds the tabs as they were left")
        << QStringList { "open member",       "open support",     "select 1",
                         "workstation loads", "open combination", "workstation model" }
        << "node [member] support"
        << "member";
    QTest::newRow("a table of another workstation brings it")
        << QStringList { "show nodalLoad" } << "loadCase [nodalLoad]"
        << "nodalLoad";
    QTest::newRow("hiding every tab leaves the shown table") << QStringList { "open member", "hideAll" } << ""
                                                             << "member";
}

void tst_TablePanel::shouldFollowTheTabBar()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, bar);
    QFETCH(QString, shown);
    TestedPanel tested;

    for (const QString& step : steps)
        Apply(tested, step);

    QCOMPARE(tested.Bar(), bar);
    QCOMPARE(tested.panel.tableId(), shown);
    const int rows = shown.isEmpty()
        ? 0
        : m_services->Get<StructuralModel>()->Structure().Count(shown == "node"          ? ObjectKind::Node
                                                                    : shown == "member"  ? ObjectKind::Member
                                                                    : shown == "support" ? ObjectKind::Support
                                                                    : shown == "loadCase"
                                                                    ? ObjectKind::LoadCase
                                                                    : ObjectKind::NodalLoad);
    QCOMPARE(tested.panel.contentModel()->rowCountSubmitted(), rows);
    QCOMPARE(tested.panel.contentModel()->columnCount() > 0, !shown.isEmpty());
}

void tst_TablePanel::shouldAlertTabsOfTablesWithErrors()
{
    TestedPanel tested;
    tested.panel.openTable("member");
    TableTabsModel& tabs = *tested.panel.tabsModel();
    const QModelIndex node = tabs.index(tabs.FindIndexById(QStringLiteral("node")));
    QVERIFY(!node.data(TableTabsModel::AlertedRole).toBool());
    QSignalSpy changed(&tabs, &QAbstractItemModel::dataChanged);

    // When a file brings a node without a place
    m_model->Replace([](Structure& structure) {
        ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 });
        structure.Nodes().At(1).x = std::numeric_limits<double>::quiet_NaN();
    });

    // Then its table's tab is alerted, and the members' whose lengths it breaks, not the others
    QVERIFY(node.data(TableTabsModel::AlertedRole).toBool());
    QVERIFY(
        tabs.index(tabs.FindIndexById(QStringLiteral("member"))).data(TableTabsModel::AlertedRole).toBool());
    QVERIFY(!tabs.index(tabs.FindIndexById(QStringLiteral("support")))
                 .data(TableTabsModel::AlertedRole)
                 .toBool());
    QCOMPARE(changed.count(), 2);

    // and a fix takes the alert away
    QCOMPARE(m_model->SetValue({ MakeObjectId(ObjectKind::Node, 2) }, "node.x", 1.0).changed, 1);
    QVERIFY(!node.data(TableTabsModel::AlertedRole).toBool());
}

using Arrange = std::function<void(TableInput&)>;
Q_DECLARE_METATYPE(Arrange)

void tst_TablePanel::shouldRestoreTheLayoutAUserLeft_data()
{
    QTest::addColumn<Arrange>("arrange");
    QTest::addColumn<QString>("bar");
    QTest::addColumn<QString>("columns");
    QTest::addColumn<int>("widthOfX");

    const QString all = "general.number general.name node.x node.y node.z";
    QTest::newRow("nothing changed") << Arrange([](TableInput&) {}) << "[node]" << all << 96;
    QTest::newRow("tabs opened, moved and selected") << Arrange([](TableInput& panel) {
        panel.openTable("member");
        panel.openTable("support");
        panel.tabsFilterModel()->move(2, 0);
        panel.tabsFilterModel()->setSelectedIndex(1);
    }) << "support [node] member" << all << 96;
    QTest::newRow("a column hidden") << Arrange([](TableInput& panel) {
        panel.contentModel()->columnsModel()->hideColumn("general.name");
    }) << "[node]"
                                     << "general.number node.x node.y node.z" << 96;
    QTest::newRow("a column moved and widened") << Arrange([](TableInput& panel) {
        TableContentModel& model = *panel.contentModel();
        model.moveColumn(model.FindColumnIndex("node.x"), 0);
        model.setColumnWidth(0, 150);
        model.submitLayout();
    }) << "[node]"
                                                << "node.x general.number general.name node.y node.z" << 150;
    QTest::newRow("a layout kept while another table was shown")
        << Arrange([](TableInput& panel) {
               TableContentModel& model = *panel.contentModel();
               model.setColumnWidth(model.FindColumnIndex("node.x"), 200);
               model.submitLayout();
               model.columnsModel()->hideColumn("node.z");
               panel.openTable("member");
               model.columnsModel()->hideColumn("general.name");
               panel.closeTab(1);
           })
        << "[node]"
        << "general.number general.name node.x node.y" << 200;
    QTest::newRow("a hidden column shown again keeps its width") << Arrange([](TableInput& panel) {
        TableContentModel& model = *panel.contentModel();
        model.setColumnWidth(model.FindColumnIndex("node.y"), 180);
        model.submitLayout();
        model.columnsModel()->hideColumn("node.y");
        model.columnsModel()->displayAllColumns();
        model.setColumnWidth(model.FindColumnIndex("node.x"), 170);
        model.submitLayout();
    }) << "[node]" << all << 170;
}

void tst_TablePanel::shouldRestoreTheLayoutAUserLeft()
{
    QFETCH(Arrange, arrange);
    QFETCH(QString, bar);
    QFETCH(QString, columns);
    QFETCH(int, widthOfX);
    QString stored;
    QString before;
    {
        TestedPanel first;
        arrange(first.panel);
        before = first.Bar() + " | " + first.Columns();
        stored = first.panel.saveConfiguration();
    }
    TestedPanel second;
    second.panel.openTable("material"); // what a panel shows before its configuration arrives

    second.panel.loadConfiguration(stored);

    QCOMPARE(second.Bar() + " | " + second.Columns(), before);
    QCOMPARE(second.Bar(), bar);
    QCOMPARE(second.Columns(), columns);
    const TableContentModel& model = *second.panel.contentModel();
    QCOMPARE(model.columnWidth(model.FindColumnIndex("node.x")), widthOfX);
    QCOMPARE(second.panel.saveConfiguration(), stored);
}

void tst_TablePanel::shouldIgnoreAConfigurationItCannotRead()
{
    TestedPanel tested;
    tested.panel.openTable("member");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Table panel configuration ignored"));

    tested.panel.loadConfiguration("{ not json");

    QCOMPARE(tested.Bar(), "[node]");
    QCOMPARE(tested.panel.tableId(), "node");
}

QTEST_MAIN(tst_TablePanel)
#include "tst_tablepanel.moc"
