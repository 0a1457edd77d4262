#include "TableFixture.h"
#include "tables/TableColumnsModel.h"

#include <QSignalSpy>
#include <QTest>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::TestData;

// The content model's columns follow what the columns model shows: hidden columns go at once,
// a shown one brings every shown column back in the columns model's order.
class tst_TableColumnVisibility : public QObject
{
    Q_OBJECT

    static QStringList ColumnIds(const TableContentModel& model)
    {
        QStringList ids;
        for (int column = 0; column < model.columnCount(); ++column)
            ids << model.headerData(column, Qt::Horizontal, TableContentModel::ColumnIdRole).toString();
        return ids;
    }

private slots:
    void shouldShowWhatTheColumnsModelShows_data()
    {
        QTest::addColumn<QStringList>("hidden");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("nothing hidden")
            << QStringList() << QStringList { "name", "count", "length", "material", "mark" };
        QTest::newRow("one") << QStringList { "length" }
                             << QStringList { "name", "count", "material", "mark" };
        QTest::newRow("first and last")
            << QStringList { "name", "mark" } << QStringList { "count", "length", "material" };
        QTest::newRow("unknown id") << QStringList { "nosuch" }
                                    << QStringList { "name", "count", "length", "material", "mark" };
    }

    void shouldShowWhatTheColumnsModelShows()
    {
        QFETCH(QStringList, hidden);
        QFETCH(QStringList, expected);
        TableFixture fixture(20);
        TableColumnsModel* columns = fixture.model.columnsModel();
        const QString countBefore = fixture.Content(7, 1);
        QSignalSpy requests(&fixture.model, &TableContentModel::addColumnsRequest);
        for (const QString& id : hidden)
            columns->hideColumn(id);
        QCOMPARE(ColumnIds(fixture.model), expected);
        // Hiding takes columns away without asking the feeder for any.
        QCOMPARE(requests.count(), 0);

        columns->displayAllColumns();
        QCOMPARE(ColumnIds(fixture.model), QStringList({ "name", "count", "length", "material", "mark" }));
        // Cells of a column shown again are fetched again.
        QCOMPARE(fixture.Content(7, 1), countBefore);
    }

    // Columns removed to be asked for again are marked so, and only those.
    void shouldMarkOnlyTheRebuildAsRebuilding_data()
    {
        QTest::addColumn<bool>("show");
        QTest::newRow("hiding") << false;
        QTest::newRow("showing") << true;
    }

    void shouldMarkOnlyTheRebuildAsRebuilding()
    {
        QFETCH(bool, show);
        TableFixture fixture(5);
        TableColumnsModel* columns = fixture.model.columnsModel();
        if (show)
            columns->hideColumn("count");
        QList<bool> rebuildingAtRemoval;
        connect(&fixture.model, &QAbstractItemModel::columnsAboutToBeRemoved, this,
                [&]() { rebuildingAtRemoval << fixture.model.IsRebuildingColumns(); });
        if (show)
            columns->displayAllColumns();
        else
            columns->hideColumn("length");
        QVERIFY(!rebuildingAtRemoval.isEmpty());
        for (bool rebuilding : rebuildingAtRemoval)
            QCOMPARE(rebuilding, show);
        QVERIFY(!fixture.model.IsRebuildingColumns());
    }
};

QTEST_MAIN(tst_TableColumnVisibility)
#include "tst_tablecolumnvisibility.moc"
