#include "tables/TableColumnLayout.h"

#include <QTest>

using namespace Orvo::UI::UIComponents;

namespace {

TableColumn Column(const char* id, int width, int minWidth = 64)
{
    TableColumn column;
    column.id = QString::fromLatin1(id);
    column.width = width;
    column.minWidth = minWidth;
    return column;
}

// "id:liveWidth/keptWidth" for every column, in order.
QString Describe(const TableColumnLayout& layout)
{
    QStringList parts;
    for (int column = 0; column < layout.Count(); ++column)
        parts.append(QStringLiteral("%1:%2/%3")
                         .arg(layout.At(column).id)
                         .arg(layout.LiveWidth(column))
                         .arg(layout.At(column).width));
    return parts.join(QLatin1Char(' '));
}

} // namespace

class tst_TableColumnLayout : public QObject
{
    Q_OBJECT

private slots:
    void shouldSnapWidthsToTheStep_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("minWidth");
        QTest::addColumn<bool>("extend");
        QTest::addColumn<int>("expected");
        QTest::newRow("narrow 130 to the minimum") << 130 << 64 << false << 64;
        QTest::newRow("narrow 127: one step below is 0, the minimum wins") << 127 << 64 << false << 64;
        QTest::newRow("narrow 200 to 128") << 200 << 64 << false << 128;
        QTest::newRow("narrow never below the minimum") << 300 << 290 << false << 290;
        QTest::newRow("extend 64 to 128") << 64 << 64 << true << 128;
        QTest::newRow("extend 100 to 128") << 100 << 64 << true << 128;
        QTest::newRow("extend stops at the largest width")
            << TableColumnLayout::c_maxWidth - 10 << 64 << true << TableColumnLayout::c_maxWidth;
    }

    void shouldSnapWidthsToTheStep()
    {
        // Given a column of that width and minimum
        QFETCH(int, width);
        QFETCH(int, minWidth);
        QFETCH(bool, extend);
        QFETCH(int, expected);
        TableColumnLayout layout;
        layout.Append({ Column("a", width, minWidth) });
        // When every column is widened or narrowed one step
        const std::vector<int> changed = extend ? layout.Extend() : layout.Narrow();
        // Then the live width snapped, and the change is reported until the layout keeps it
        QCOMPARE(layout.LiveWidth(0), expected);
        QCOMPARE(changed.size(), std::size_t(expected != width ? 1 : 0));
        QCOMPARE(layout.Submit(), expected != width);
        QCOMPARE(layout.At(0).width, expected);
    }

    void shouldKeepLiveWidthsAtOrAboveTheMinimum_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("changed");
        QTest::addColumn<QString>("expected");
        QTest::newRow("wider") << 150 << true << "a:150/96";
        QTest::newRow("below the minimum") << 10 << true << "a:80/96";
        QTest::newRow("same") << 96 << false << "a:96/96";
    }

    void shouldKeepLiveWidthsAtOrAboveTheMinimum()
    {
        QFETCH(int, width);
        QFETCH(bool, changed);
        QFETCH(QString, expected);
        TableColumnLayout layout;
        layout.Append({ Column("a", 96, 80) });
        QCOMPARE(layout.SetLiveWidth(0, width), changed);
        QCOMPARE(Describe(layout), expected); // the layout keeps its width until submitted
        QVERIFY(!layout.SetLiveWidth(5, 100));
    }

    void shouldGiveAColumnWithoutWidthOneStep()
    {
        TableColumnLayout layout;
        layout.Append({ Column("a", 0), Column("b", -3), Column("c", 200) });
        QCOMPARE(Describe(layout), QStringLiteral("a:64/64 b:64/64 c:200/200"));
    }

    void shouldSortByOneColumnAtATime()
    {
        TableColumnLayout layout;
        layout.Append({ Column("a", 64), Column("b", 64), Column("c", 64) });
        QCOMPARE(layout.SetSortOrder(1, 1), std::vector<int>({ 1 }));
        // the one sorted before is reset, and reported before the new one
        QCOMPARE(layout.SetSortOrder(2, 2), std::vector<int>({ 1, 2 }));
        QCOMPARE(layout.At(1).sortOrder, 0);
        QVERIFY(layout.SetSortOrder(2, 2).empty());
        QVERIFY(layout.SetSortOrder(7, 1).empty());
    }

    void shouldWidenAColumnToARaisedMinimum()
    {
        TableColumnLayout layout;
        layout.Append({ Column("a", 64), Column("b", 200) });
        QVERIFY(layout.SetMinWidth(0, 128));
        QVERIFY(layout.SetMinWidth(1, 128));
        QVERIFY(!layout.SetMinWidth(1, 128));
        QCOMPARE(Describe(layout), QStringLiteral("a:128/128 b:200/200"));
    }

    void shouldMoveEverythingOfAColumnWithIt_data()
    {
        QTest::addColumn<int>("source");
        QTest::addColumn<int>("destination");
        QTest::addColumn<QString>("expected");
        QTest::newRow("first to the end") << 0 << 3 << "b:70/70 c:80/80 a:60/60";
        QTest::newRow("last to the front") << 2 << 0 << "c:80/80 a:60/60 b:70/70";
        QTest::newRow("just after itself: nothing") << 1 << 2 << "a:60/60 b:70/70 c:80/80";
        QTest::newRow("outside: nothing") << 3 << 0 << "a:60/60 b:70/70 c:80/80";
    }

    void shouldMoveEverythingOfAColumnWithIt()
    {
        QFETCH(int, source);
        QFETCH(int, destination);
        QFETCH(QString, expected);
        TableColumnLayout layout;
        layout.Append({ Column("a", 60, 10), Column("b", 70, 10), Column("c", 80, 10) });
        layout.SetMinimumWidthDecided(0);
        layout.Move(source, destination);
        QCOMPARE(Describe(layout), expected);
        QVERIFY(layout.IsMinimumWidthDecided(layout.FindById("a")));
        QVERIFY(!layout.IsMinimumWidthDecided(layout.FindById("b")));
    }
};

QTEST_APPLESS_MAIN(tst_TableColumnLayout)
#include "tst_tablecolumnlayout.moc"
