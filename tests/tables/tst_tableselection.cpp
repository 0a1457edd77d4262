#include "TableTestData.h"
#include "TableTestFeeder.h"
#include "tables/FilterBarModel.h"
#include "tables/TableContentModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::TestData;

namespace {

struct Fixture
{
    explicit Fixture(int rowCount = 10)
        : feeder(model)
    {
        model.setAllowEdit(true);
        feeder.SetTable(MemberColumns(), MemberRows(rowCount));
        feeder.Load();
        model.setFilterBarModel(&filterBar);
    }
    QModelIndex View(int row, int column) const { return filter()->index(row, column); }
    TableContentFilterModel* filter() const { return model.contentFilterModel(); }
    TableSelectionFilterModel* selection() const { return filter()->selectionModel(); }
    // Selected cells of the content model as "row:column" in reading order.
    QStringList Selected() const
    {
        QStringList cells;
        model.selectionModel()->ForEachSelectedCell(
            [&](int row, int column) { cells.append(QStringLiteral("%1:%2").arg(row).arg(column)); });
        return cells;
    }

    TableContentModel model;
    TableTestFeeder feeder;
    FilterBarModel filterBar;
};

} // namespace

class tst_TableSelection : public QObject
{
    Q_OBJECT

private slots:
    void shouldSelectLikeASpreadsheet_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QStringList>("expected");
        // Steps: c=click, t=Ctrl-click, s=Shift-click, d=drag from the current anchor, r=row header,
        // T=Ctrl row header, R=Shift row header, k=Shift+arrow; each with "row,column".
        QTest::newRow("click") << "c1,1" << QStringList { "1:1" };
        QTest::newRow("click replaces") << "c1,1 c2,2" << QStringList { "2:2" };
        QTest::newRow("ctrl-click adds") << "c1,1 t3,0" << QStringList { "1:1", "3:0" };
        QTest::newRow("ctrl-click toggles off") << "c1,1 t3,0 t1,1" << QStringList { "3:0" };
        QTest::newRow("shift-click from the anchor")
            << "c1,1 s2,2" << QStringList { "1:1", "1:2", "2:1", "2:2" };
        QTest::newRow("shift-click upwards") << "c2,1 s1,0" << QStringList { "1:0", "1:1", "2:0", "2:1" };
        QTest::newRow("hole punched into a rectangle")
            << "c0,0 s2,2 t1,1" << QStringList { "0:0", "0:1", "0:2", "1:0", "1:2", "2:0", "2:1", "2:2" };
        QTest::newRow("drag") << "c0,0 d1,1" << QStringList { "0:0", "0:1", "1:0", "1:1" };
        QTest::newRow("row header") << "r2,0" << QStringList { "2:0", "2:1", "2:2", "2:3", "2:4" };
        QTest::newRow("ctrl row header deselects a selected row") << "r2,0 T2,0" << QStringList {};
        QTest::newRow("ctrl row header adds and removes rows")
            << "r1,0 T3,0 T1,0" << QStringList { "3:0", "3:1", "3:2", "3:3", "3:4" };
        QTest::newRow("rows from the last")
            << "r1,0 R2,0"
            << QStringList { "1:0", "1:1", "1:2", "1:3", "1:4", "2:0", "2:1", "2:2", "2:3", "2:4" };
        QTest::newRow("keyboard extension") << "c1,1 k1,1" << QStringList { "1:1", "1:2", "2:1", "2:2" };
        QTest::newRow("keyboard extension clamps")
            << "c8,3 k5,5" << QStringList { "8:3", "8:4", "9:3", "9:4" };
    }

    void shouldSelectLikeASpreadsheet()
    {
        QFETCH(QString, script);
        QFETCH(QStringList, expected);
        Fixture fixture;
        QAbstractItemModelTester tester(&fixture.model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (const QString& step : script.split(' ')) {
            const QStringList numbers = step.mid(1).split(',');
            const int row = numbers[0].toInt();
            const int column = numbers[1].toInt();
            auto* selection = fixture.selection();
            switch (step[0].toLatin1()) {
            case 'c':
                selection->select(fixture.View(row, column), TableSelectionModel::CleanSelect);
                break;
            case 't':
                selection->select(fixture.View(row, column), TableSelectionModel::Toggle);
                break;
            case 's':
                selection->selectRegion(fixture.View(row, column), TableSelectionModel::CleanSelect);
                break;
            case 'd':
                selection->beginSelectRegion(selection->getCurrentSelectedIndex(),
                                             TableSelectionModel::CleanSelect);
                QVERIFY(selection->isActiveRectangleSelecting());
                selection->selectRegion(fixture.View(row, column), TableSelectionModel::CleanSelect);
                QVERIFY(fixture.model.data(fixture.model.index(row, column), TableContentModel::SelectedRole)
                            .toBool());
                selection->endSelectRegion(false);
                break;
            case 'r':
                selection->selectRow(row, TableSelectionModel::CleanSelect);
                break;
            case 'T':
                selection->selectRow(row, TableSelectionModel::Toggle);
                break;
            case 'R':
                selection->selectRowFromLast(row);
                break;
            case 'k':
                selection->extendSelection(row, column);
                break;
            }
        }
        QCOMPARE(fixture.Selected(), expected);
    }

    void shouldReportCurrentCellAndRolesToTheView()
    {
        Fixture fixture;
        QSignalSpy current(fixture.selection(), &TableSelectionFilterModel::currentSelectedIndexChanged);
        QSignalSpy changed(&fixture.model, &QAbstractItemModel::dataChanged);
        fixture.selection()->select(fixture.View(3, 2), TableSelectionModel::CleanSelect, true);
        QCOMPARE(current.count(), 1);
        QVERIFY(changed.count() > 0);
        QCOMPARE(fixture.selection()->getCurrentSelectedIndex(), fixture.View(3, 2));
        QVERIFY(
            fixture.model.data(fixture.model.index(3, 2), TableContentModel::SelectedActiveRole).toBool());
        QVERIFY(fixture.model.data(fixture.model.index(3, 0), TableContentModel::SelectedInRowExtraRole)
                    .toBool());
        QVERIFY(
            !fixture.model.data(fixture.model.index(3, 0), TableContentModel::SelectedInRowRole).toBool());
        fixture.selection()->selectRow(3, TableSelectionModel::CleanSelect);
        QVERIFY(fixture.model.data(fixture.model.index(3, 0), TableContentModel::SelectedInRowRole).toBool());
        QVERIFY(fixture.selection()->isRowSelected(3));
        QVERIFY(fixture.model.IsOneRowSelected());
    }

    void shouldSelectAllRecordsButNotTheNewRow()
    {
        Fixture fixture(250);
        fixture.model.setAllowAddNew(true);
        QSignalSpy all(fixture.selection(), &TableSelectionFilterModel::selectedAllChanged);
        fixture.selection()->selectAll();
        QCOMPARE(all.count(), 1);
        QVERIFY(fixture.selection()->isSelectedAll());
        const QItemSelectionRange envelope = fixture.selection()->getEnvelope();
        QCOMPARE(envelope.top(), 0);
        QCOMPARE(envelope.bottom(), 249);
        QCOMPARE(envelope.right(), 4);
        fixture.selection()->select(fixture.View(4, 4), TableSelectionModel::Toggle);
        QVERIFY(!fixture.selection()->isSelectedAll());
    }

    void shouldFollowRemovedRowsAndColumns()
    {
        Fixture fixture;
        fixture.selection()->select(fixture.View(5, 3), TableSelectionModel::CleanSelect);
        fixture.selection()->selectRegion(fixture.View(6, 4), TableSelectionModel::CleanSelect);
        fixture.model.columnsModel()->hideColumn("name");
        QCOMPARE(fixture.Selected(), QStringList({ "5:2", "5:3", "6:2", "6:3" }));
        QCOMPARE(fixture.model.selectionModel()->getCurrentSelectedIndex(), fixture.model.index(5, 2));
        fixture.model.columnsModel()->hideColumn("material");
        QCOMPARE(fixture.Selected(), QStringList({ "5:2", "6:2" }));
        fixture.model.ClearContent();
        QVERIFY(fixture.Selected().isEmpty());
        QVERIFY(!fixture.selection()->getCurrentSelectedIndex().isValid());
    }

    void shouldKeepTheSelectionWhenTheFeederRefillsAfterAnEdit()
    {
        Fixture fixture;
        fixture.selection()->select(fixture.View(2, 1), TableSelectionModel::CleanSelect);
        fixture.selection()->selectRegion(fixture.View(3, 2), TableSelectionModel::CleanSelect);
        QVERIFY(fixture.model.setData(fixture.model.index(2, 1), "9", TableContentModel::ContentRole));
        fixture.model.confirmUpdate(); // the feeder refills the whole table
        QCOMPARE(fixture.feeder.updates.size(), std::size_t(1));
        QCOMPARE(fixture.Selected(), QStringList({ "2:1", "2:2", "3:1", "3:2" }));
        QCOMPARE(fixture.selection()->getCurrentSelectedIndex(), fixture.View(2, 1));
        fixture.model.Clear(); // a new table is no refill
        fixture.feeder.Load();
        QVERIFY(fixture.Selected().isEmpty());
    }

    void shouldSelectOnlyShownRowsThroughTheFilter()
    {
        Fixture fixture(20);
        QAbstractItemModelTester tester(fixture.filter(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        // Given a selected row that the filter will keep, when the rows with count 2 are shown
        // (source rows 2, 9, 16)
        fixture.selection()->selectRow(2, TableSelectionModel::CleanSelect);
        QVERIFY(
            fixture.filterBar.setData(fixture.filterBar.index(1), "=2", FilterBarModel::ConditionTextRole));
        QCOMPARE(fixture.filter()->rowCount(), 3);
        // Then filtering started a new selection all the same
        QVERIFY(!fixture.selection()->getCurrentSelectedIndex().isValid());
        QVERIFY(fixture.Selected().isEmpty());
        QVERIFY(!fixture.selection()->isRowSelected(0));

        // When a rectangle is drawn over the first two shown rows
        fixture.selection()->select(fixture.View(0, 0), TableSelectionModel::CleanSelect);
        fixture.selection()->selectRegion(fixture.View(1, 1), TableSelectionModel::CleanSelect);

        // Then the hidden rows between them are not selected
        QCOMPARE(fixture.Selected(), QStringList({ "2:0", "2:1", "9:0", "9:1" }));
        QCOMPARE(fixture.selection()->getEnvelope(),
                 QItemSelectionRange(fixture.View(0, 0), fixture.View(1, 1)));
        QVERIFY(fixture.selection()->isSelected(fixture.View(1, 1)));
        QCOMPARE(fixture.selection()->findRegion(fixture.View(1, 0)), 0);
        QCOMPARE(fixture.selection()->findRegion(fixture.View(2, 0)), -1);

        fixture.selection()->selectAll();
        QCOMPARE(fixture.Selected().size(), 15);
    }
};

QTEST_MAIN(tst_TableSelection)
#include "tst_tableselection.moc"
