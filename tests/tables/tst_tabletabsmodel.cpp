#include "tables/TableResultsTabInfo.h"
#include "tables/TableTabsFilterModel.h"
#include "tables/TableTabsModel.h"
#include "tables/TableWorkstationsModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::UI::UIComponents;

namespace {

std::vector<std::wstring> Ids(const QString& commaSeparated)
{
    std::vector<std::wstring> ids;
    for (const QString& id : commaSeparated.split(QLatin1Char(','), Qt::SkipEmptyParts))
        ids.push_back(id.toStdWString());
    return ids;
}

QString Joined(const std::vector<std::wstring>& ids)
{
    QStringList texts;
    for (const std::wstring& id : ids)
        texts << QString::fromStdWString(id);
    return texts.join(QLatin1Char(','));
}

// Tabs X, Y, Z with the given open tabs, both models under a tester from the start.
struct Tabs
{
    explicit Tabs(const QString& open = QString())
        : tabsTester(&tabs, QAbstractItemModelTester::FailureReportingMode::QtTest)
        , shownTester(&shown, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        shown.setSourceModel(&tabs);
        tabs.Add({ { QStringLiteral("X"), {}, QStringLiteral("Nodes"), false },
                   { QStringLiteral("Y"), {}, QStringLiteral("Members"), false },
                   { QStringLiteral("Z"), {}, QStringLiteral("Supports"), false } });
        tabs.SetActiveTables(Ids(open));
    }
    // The tab bar as a user sees it.
    QString Shown() const
    {
        QStringList ids;
        for (int row = 0; row < shown.rowCount(); ++row)
            ids << shown.index(row, 0).data(TableTabsModel::IdRole).toString();
        return ids.join(QLatin1Char(','));
    }
    bool SetEnabled(const char* id, bool enabled)
    {
        return tabs.setData(tabs.index(tabs.FindIndexById(QString::fromLatin1(id))), enabled,
                            TableTabsModel::EnabledRole);
    }

    TableTabsModel tabs;
    TableTabsFilterModel shown;
    QAbstractItemModelTester tabsTester;
    QAbstractItemModelTester shownTester;
};

} // namespace

// The tab bar's models: which tables are open, in which order, and which one is selected.
class tst_TableTabsModel : public QObject
{
    Q_OBJECT

private slots:
    void shouldShowOpenTabsInScreenOrder_data();
    void shouldShowOpenTabsInScreenOrder();
    void shouldTellFirstOpenTabByScreenAndByItemOrder();
    void shouldMoveOpenTabs_data();
    void shouldMoveOpenTabs();
    void shouldOpenAndCloseTabsThroughEnabledRole_data();
    void shouldOpenAndCloseTabsThroughEnabledRole();
    void shouldForgetSelectionOfClosedTab_data();
    void shouldForgetSelectionOfClosedTab();
    void shouldLeaveSelectionWhenHidingAll();
    void shouldNotAnnounceLayoutForSingleChangesAfterShowAll();
    void shouldMarkAlertedTabOnlyWhenItChanges();
    void shouldMapSelectionBetweenBarAndItems();
    void shouldFollowSelectedTabWhenItMoves();
    void shouldStartAgainAfterClear();
    void shouldMakeResultsTabItems();
    void shouldKeepWorkstationSelectedById_data();
    void shouldKeepWorkstationSelectedById();
};

void tst_TableTabsModel::shouldShowOpenTabsInScreenOrder_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("shown");
    QTest::newRow("none open") << QString() << QString();
    QTest::newRow("open in item order") << "X,Z"
                                        << "X,Z";
    QTest::newRow("open against item order") << "Z,X"
                                             << "Z,X";
    QTest::newRow("every tab, reversed") << "Z,Y,X"
                                         << "Z,Y,X";
    QTest::newRow("an id given twice counts once") << "Y,Y,X"
                                                   << "Y,X";
    QTest::newRow("an id of no table shows nothing") << "W,Y"
                                                     << "Y";
}

void tst_TableTabsModel::shouldShowOpenTabsInScreenOrder()
{
    QFETCH(QString, open);
    QFETCH(QString, shown);
    Tabs tabs(open);
    QCOMPARE(tabs.Shown(), shown);
}

void tst_TableTabsModel::shouldTellFirstOpenTabByScreenAndByItemOrder()
{
    // Given items X, Y, Z with Z and X open, Z leftmost
    Tabs tabs(QStringLiteral("Z,X"));
    // Then the leftmost open tab is item 2, and the first open item is item 0
    QCOMPARE(tabs.tabs.GetIndexOfFirstEnabled(), 2);
    QCOMPARE(tabs.tabs.getFirstEnabledIndex(), 0);
    tabs.tabs.hideAll();
    QCOMPARE(tabs.tabs.GetIndexOfFirstEnabled(), -1);
    QCOMPARE(tabs.tabs.getFirstEnabledIndex(), -1);
}

void tst_TableTabsModel::shouldMoveOpenTabs_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<int>("src");
    QTest::addColumn<int>("dst");
    QTest::addColumn<bool>("moved");
    QTest::addColumn<QString>("shown");
    QTest::newRow("first behind the last") << "Z,X" << 0 << 2 << true << "X,Z";
    QTest::newRow("last before the first") << "Z,X,Y" << 2 << 0 << true << "Y,Z,X";
    QTest::newRow("into the middle") << "Z,X,Y" << 0 << 2 << true << "X,Z,Y";
    QTest::newRow("onto itself") << "Z,X" << 1 << 1 << false << "Z,X";
    QTest::newRow("just behind itself") << "Z,X" << 0 << 1 << true << "Z,X";
    QTest::newRow("from past the end") << "Z,X" << 2 << 0 << false << "Z,X";
    QTest::newRow("to past the end") << "Z,X" << 0 << 3 << false << "Z,X";
    QTest::newRow("from a negative place") << "Z,X" << -1 << 1 << false << "Z,X";
    QTest::newRow("to a negative place") << "Z,X" << 1 << -1 << false << "Z,X";
}

void tst_TableTabsModel::shouldMoveOpenTabs()
{
    QFETCH(QString, open);
    QFETCH(int, src);
    QFETCH(int, dst);
    QFETCH(bool, moved);
    QFETCH(QString, shown);
    Tabs tabs(open);
    if (!moved && src != dst)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Move: no tab move")));
    QCOMPARE(tabs.shown.move(src, dst), moved);
    QCOMPARE(tabs.Shown(), shown);
    QCOMPARE(Joined(tabs.tabs.GetActiveTables()), shown);
    // Every item tells its place among the open tabs
    for (int row = 0; row < tabs.shown.rowCount(); ++row)
        QCOMPARE(tabs.shown.index(row, 0).data(TableTabsModel::EnabledIndexRole).toInt(), row);
}

void tst_TableTabsModel::shouldOpenAndCloseTabsThroughEnabledRole_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("opened tab goes last") << "Z,X" << QByteArray("Y") << true << true << "Z,X,Y";
    QTest::newRow("opening an open tab") << "Z,X" << QByteArray("X") << true << false << "Z,X";
    QTest::newRow("closing the leftmost") << "Z,X" << QByteArray("Z") << false << true << "X";
    QTest::newRow("closing a closed tab") << "Z,X" << QByteArray("Y") << false << false << "Z,X";
}

void tst_TableTabsModel::shouldOpenAndCloseTabsThroughEnabledRole()
{
    QFETCH(QString, open);
    QFETCH(QByteArray, id);
    QFETCH(bool, enabled);
    QFETCH(bool, changed);
    QFETCH(QString, shown);
    Tabs tabs(open);
    QSignalSpy stateSpy(&tabs.tabs, &TableTabsModel::enabledStateChanged);
    QSignalSpy dataSpy(&tabs.tabs, &TableTabsModel::dataChanged);
    QVERIFY(stateSpy.isValid() && dataSpy.isValid());

    QCOMPARE(tabs.SetEnabled(id.constData(), enabled), changed);

    QCOMPARE(tabs.Shown(), shown);
    QCOMPARE(stateSpy.count(), changed ? 1 : 0);
    QCOMPARE(dataSpy.count(), changed ? 1 : 0);
    if (changed)
        QCOMPARE(stateSpy.first(), QVariantList({ QString::fromLatin1(id), enabled }));
}

void tst_TableTabsModel::shouldForgetSelectionOfClosedTab_data()
{
    QTest::addColumn<QByteArray>("closed");
    QTest::addColumn<int>("selectedAfter");
    QTest::newRow("the selected tab") << QByteArray("Z") << -1;
    QTest::newRow("another tab") << QByteArray("X") << 2;
}

void tst_TableTabsModel::shouldForgetSelectionOfClosedTab()
{
    QFETCH(QByteArray, closed);
    QFETCH(int, selectedAfter);
    Tabs tabs(QStringLiteral("Z,X"));
    tabs.tabs.setSelectedIndex(2);
    QSignalSpy spy(&tabs.tabs, &TableTabsModel::selectedIndexChanged);
    QVERIFY(spy.isValid());

    QVERIFY(tabs.SetEnabled(closed.constData(), false));

    QCOMPARE(tabs.tabs.selectedIndex(), selectedAfter);
    QCOMPARE(spy.count(), selectedAfter == 2 ? 0 : 1);
}

void tst_TableTabsModel::shouldLeaveSelectionWhenHidingAll()
{
    Tabs tabs(QStringLiteral("Z,X"));
    tabs.tabs.setSelectedIndex(2);
    QSignalSpy stateSpy(&tabs.tabs, &TableTabsModel::enabledStateChanged);
    QVERIFY(stateSpy.isValid());

    tabs.tabs.hideAll();

    QCOMPARE(tabs.Shown(), QString());
    QCOMPARE(tabs.tabs.selectedIndex(), 2);
    QCOMPARE(stateSpy.count(), 0);
}

void tst_TableTabsModel::shouldNotAnnounceLayoutForSingleChangesAfterShowAll()
{
    // Given one open tab, when every tab is shown, the others follow in item order
    Tabs tabs(QStringLiteral("Z"));
    QSignalSpy layoutSpy(&tabs.tabs, &TableTabsModel::layoutChanged);
    QVERIFY(layoutSpy.isValid());
    tabs.tabs.showAll();
    QCOMPARE(tabs.Shown(), QStringLiteral("Z,X,Y"));
    QCOMPARE(layoutSpy.count(), 1);

    // Then closing and opening single tabs announces no layout of its own, and the bar still follows
    layoutSpy.clear();
    QVERIFY(tabs.SetEnabled("X", false));
    QVERIFY(tabs.SetEnabled("X", true));
    QCOMPARE(layoutSpy.count(), 0);
    QCOMPARE(tabs.Shown(), QStringLiteral("Z,Y,X"));
}

void tst_TableTabsModel::shouldMarkAlertedTabOnlyWhenItChanges()
{
    Tabs tabs(QStringLiteral("X"));
    QSignalSpy dataSpy(&tabs.tabs, &TableTabsModel::dataChanged);
    QVERIFY(dataSpy.isValid());
    const QModelIndex x = tabs.tabs.index(0);

    QVERIFY(tabs.tabs.setData(x, true, TableTabsModel::AlertedRole));
    QVERIFY(tabs.tabs.setData(x, true, TableTabsModel::AlertedRole));
    QVERIFY(!tabs.tabs.setData(x, QStringLiteral("New name"), TableTabsModel::LabelRole));

    QCOMPARE(dataSpy.count(), 1);
    QCOMPARE(tabs.shown.index(0, 0).data(TableTabsModel::AlertedRole).toBool(), true);
}

void tst_TableTabsModel::shouldMapSelectionBetweenBarAndItems()
{
    Tabs tabs(QStringLiteral("Z,X"));
    QSignalSpy shownSpy(&tabs.shown, &TableTabsFilterModel::selectedIndexChanged);
    QVERIFY(shownSpy.isValid());

    // Selecting the bar's first tab selects item Z
    tabs.shown.setSelectedIndex(0);
    QCOMPARE(tabs.tabs.selectedIndex(), 2);
    QCOMPARE(tabs.shown.selectedIndex(), 0);
    QCOMPARE(shownSpy.count(), 1);

    // A closed tab selected among the items is no tab of the bar
    tabs.tabs.setSelectedIndex(1);
    QCOMPARE(tabs.shown.selectedIndex(), -1);
    QCOMPARE(shownSpy.count(), 2);
}

void tst_TableTabsModel::shouldFollowSelectedTabWhenItMoves()
{
    Tabs tabs(QStringLiteral("Z,X,Y"));
    tabs.shown.setSelectedIndex(0); // Z
    QSignalSpy shownSpy(&tabs.shown, &TableTabsFilterModel::selectedIndexChanged);
    QVERIFY(shownSpy.isValid());

    QVERIFY(tabs.shown.move(0, 3));

    QCOMPARE(tabs.Shown(), QStringLiteral("X,Y,Z"));
    QCOMPARE(tabs.shown.selectedIndex(), 2);
    QCOMPARE(tabs.tabs.selectedIndex(), 2);
    QCOMPARE(shownSpy.count(), 1);

    // Closing a tab left of it moves it again
    QVERIFY(tabs.SetEnabled("X", false));
    QCOMPARE(tabs.shown.selectedIndex(), 1);
    QCOMPARE(shownSpy.count(), 2);
}

void tst_TableTabsModel::shouldStartAgainAfterClear()
{
    Tabs tabs(QStringLiteral("Z,X"));
    tabs.tabs.Clear();
    QCOMPARE(tabs.tabs.rowCount(), 0);
    QCOMPARE(tabs.Shown(), QString());
    QVERIFY(tabs.tabs.GetActiveTables().empty());

    // The next workstation's tables, with a tab of the same id as before
    tabs.tabs.Add({ { QStringLiteral("Z"), {}, QStringLiteral("Reactions"), false } });
    QCOMPARE(tabs.Shown(), QString());
    QVERIFY(tabs.SetEnabled("Z", true));
    QCOMPARE(tabs.Shown(), QStringLiteral("Z"));
}

void tst_TableTabsModel::shouldMakeResultsTabItems()
{
    const Orvo::Kernel::Tables::TableResultsTabInfo info { L"results.reactions", L"Reactions",
                                                           L"table-reactions" };
    const TableTabsModelItem own = TableTabsModel::CreateModelItem(info, QString());
    QCOMPARE(own.id, QStringLiteral("results.reactions"));
    QCOMPARE(own.label, QStringLiteral("Reactions"));
    QVERIFY2(own.icon.startsWith(QStringLiteral("file:"))
                 && own.icon.endsWith(QStringLiteral("/Images/Tables/table-reactions.svg")),
             qPrintable(own.icon));
    QVERIFY(!own.alerted);
    QCOMPARE(TableTabsModel::CreateModelItem(info, QStringLiteral("Reactions LC 1")).label,
             QStringLiteral("Reactions LC 1"));
}

void tst_TableTabsModel::shouldKeepWorkstationSelectedById_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("newIds");
    QTest::addColumn<int>("selectedAfter");
    QTest::newRow("moved to another place") << "results"
                                            << "results,model" << 0;
    QTest::newRow("gone") << "results"
                          << "model,loads" << -1;
    QTest::newRow("none selected") << QString() << "model" << -1;
}

void tst_TableTabsModel::shouldKeepWorkstationSelectedById()
{
    QFETCH(QString, selected);
    QFETCH(QString, newIds);
    QFETCH(int, selectedAfter);
    TableWorkstationsModel workstations;
    QAbstractItemModelTester tester(&workstations, QAbstractItemModelTester::FailureReportingMode::QtTest);
    workstations.Set({ { QStringLiteral("model"), {}, QStringLiteral("Model") },
                       { QStringLiteral("loads"), {}, QStringLiteral("Loads") },
                       { QStringLiteral("results"), {}, QStringLiteral("Results") } });
    workstations.setSelectedIndex(workstations.FindIndexById(selected));

    std::vector<TableWorkstationItem> items;
    for (const QString& id : newIds.split(QLatin1Char(',')))
        items.push_back({ id, {}, id.toUpper() });
    workstations.Set(std::move(items));

    QCOMPARE(workstations.selectedIndex(), selectedAfter);
    QCOMPARE(workstations.SelectedId(), selectedAfter < 0 ? QString() : selected);
}

QTEST_GUILESS_MAIN(tst_TableTabsModel)
#include "tst_tabletabsmodel.moc"
