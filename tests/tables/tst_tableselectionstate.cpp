#include "tables/TableSelectionState.h"

#include <QTest>

using namespace Orvo::UI::UIComponents;
using Cell = TableSelectionState::Cell;

Q_DECLARE_METATYPE(Cell)

namespace {

QString Describe(const Cell& cell)
{
    return QStringLiteral("%1:%2").arg(cell.row).arg(cell.column);
}

} // namespace

// How a selection keeps up with rows the content model inserts and removes around its points.
class tst_TableSelectionState : public QObject
{
    Q_OBJECT

private slots:
    void shouldMoveOrForgetPointsWithInsertedAndRemovedRows_data()
    {
        // Given the current cell and the anchor at 5:1 and the extent of a Shift-extension at 7:2,
        // the block 5..7 x 1..2 selected
        QTest::addColumn<bool>("insert");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("count");
        QTest::addColumn<Cell>("current"); // the anchor always follows the current cell here
        QTest::addColumn<Cell>("extent");
        QTest::addColumn<QString>("selectedRows");
        const Cell none;
        // clang-format off
        QTest::newRow("removed before") << false << 2 << 2 << Cell { 3, 1 } << Cell { 5, 2 } << "3-5";
        QTest::newRow("removed at the current row") << false << 5 << 1 << none << Cell { 6, 2 } << "5-6";
        QTest::newRow("removed across the current row") << false << 4 << 3 << none << Cell { 4, 2 } << "4";
        QTest::newRow("removed between current and extent") << false << 6 << 1 << Cell { 5, 1 } << Cell { 6, 2 } << "5-6";
        QTest::newRow("removed at the extent") << false << 7 << 3 << Cell { 5, 1 } << none << "5-6";
        QTest::newRow("removed after") << false << 8 << 2 << Cell { 5, 1 } << Cell { 7, 2 } << "5-7";
        QTest::newRow("inserted before") << true << 2 << 1 << Cell { 6, 1 } << Cell { 8, 2 } << "6-8";
        QTest::newRow("inserted at the current row") << true << 5 << 2 << Cell { 7, 1 } << Cell { 9, 2 } << "7-9";
        QTest::newRow("inserted between current and extent") << true << 6 << 1 << Cell { 5, 1 } << Cell { 8, 2 } << "5,7-8";
        QTest::newRow("inserted at the extent") << true << 7 << 1 << Cell { 5, 1 } << Cell { 8, 2 } << "5-6,8";
        QTest::newRow("inserted after") << true << 8 << 4 << Cell { 5, 1 } << Cell { 7, 2 } << "5-7";
        // clang-format on
    }

    void shouldMoveOrForgetPointsWithInsertedAndRemovedRows()
    {
        QFETCH(bool, insert);
        QFETCH(int, first);
        QFETCH(int, count);
        QFETCH(Cell, current);
        QFETCH(Cell, extent);
        QFETCH(QString, selectedRows);
        TableSelectionState state;
        state.current = state.anchor = Cell { 5, 1 };
        state.extent = Cell { 7, 2 };
        state.AddRegion(TableSelectionRegion::Rectangle(5, 1, 7, 2));

        if (insert)
            state.InsertRows(first, count);
        else
            state.RemoveRows(first, first + count - 1);

        QCOMPARE(Describe(state.current), Describe(current));
        QCOMPARE(Describe(state.anchor), Describe(current));
        QCOMPARE(Describe(state.extent), Describe(extent));
        QStringList runs;
        for (const TableSelectionRegion& region : state.regions) {
            QCOMPARE(QPoint(region.GetLeft(), region.GetRight()), QPoint(1, 2));
            for (const RowRun& run : region.GetRuns())
                runs.append(run.first == run.last ? QString::number(run.first)
                                                  : QStringLiteral("%1-%2").arg(run.first).arg(run.last));
        }
        QCOMPARE(runs.join(QLatin1Char(',')), selectedRows);
    }
};

QTEST_GUILESS_MAIN(tst_TableSelectionState)
#include "tst_tableselectionstate.moc"
