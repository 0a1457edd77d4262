#include "TableFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::TestData;

using Fixture = TableFixture;

// Table text between the clipboard and a content model: what a copy writes and what a paste queues
// for the feeder.
class tst_TableClipboard : public QObject
{
    Q_OBJECT

private slots:
    void shouldQueueNothingForAnIntegerTheHostCannotHold_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("pasted exponent") << "1e20";
        QTest::newRow("pasted expression") << "=10^19";
        QTest::newRow("pasted twenty digits") << "12345678901234567890";
    }

    void shouldQueueNothingForAnIntegerTheHostCannotHold()
    {
        // Given the count cell of row 1 current
        QFETCH(QString, text);
        Fixture fixture(3);
        fixture.SelectShown(1, 1);
        // When such a number is pasted or typed there
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("outside the integer range"));
        QGuiApplication::clipboard()->setText(text);
        fixture.model.pasteFromClipboard();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("outside the integer range"));
        QVERIFY(!fixture.model.setData(fixture.model.index(2, 1), text, TableContentModel::ContentRole));
        // Then nothing waits for the host
        QVERIFY(fixture.model.GetPendingUpdate().IsEmpty());
    }

    void shouldSkipOnlyAHeaderLineWhenPasting_data()
    {
        QTest::addColumn<QString>("firstLine");
        QTest::addColumn<QString>("firstName"); // the name pasted into row 0
        QTest::newRow("two labels") << "Label name\tLabel count\tB1" << "B9";
        QTest::newRow("one label alone") << "Label mark" << "B9";
        QTest::newRow("only the first field is a label") << "Label name\t3" << "Label name";
        QTest::newRow("only the second field is a label") << "B1\tLabel count" << "B1";
        QTest::newRow("data") << "B1\t3" << "B1";
    }

    void shouldSkipOnlyAHeaderLineWhenPasting()
    {
        // Given row 0's name current
        QFETCH(QString, firstLine);
        QFETCH(QString, firstName);
        Fixture fixture(3);
        fixture.SelectShown(0, 0);
        // When a text whose first line may be a header is pasted
        QGuiApplication::clipboard()->setText(firstLine + QStringLiteral("\nB9\t4"));
        fixture.model.pasteFromClipboard();
        // Then a header line is skipped and any other line is the first row's data
        QCOMPARE(fixture.model.GetPendingUpdate().GetValue(0, 0).toString(), firstName);
    }

    void shouldCopyTheSelectionWithAHeaderLine()
    {
        Fixture fixture(5);
        TableSelectionModel* selection = fixture.model.selectionModel();
        selection->select(fixture.model.index(1, 0), TableSelectionModel::CleanSelect);
        selection->select(fixture.model.index(1, 2), TableSelectionModel::Toggle);
        selection->select(fixture.model.index(3, 3), TableSelectionModel::Toggle);
        fixture.model.copyToClipboard();
        // Row 2 between the two selected regions has no line
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("Label name\tLabel count\tLabel length\tLabel material\n"
                                "B2\t\t3\t\n"
                                "\t\t\tS235"));
    }

    void shouldPasteInOneUpdateAndAddSurplusLinesAsNewRows()
    {
        Fixture fixture(3, true);
        QSignalSpy changes(&fixture.model, &QAbstractItemModel::dataChanged);
        QSignalSpy updates(&fixture.model, &TableContentModel::updateDataRequest);
        fixture.model.contentFilterModel()->selectionModel()->select(
            fixture.model.contentFilterModel()->index(1, 0), TableSelectionModel::CleanSelect);
        changes.clear();
        QGuiApplication::clipboard()->setText(QStringLiteral("Label name\tLabel count\n"
                                                             "P1\tabc\textra\tx\tread-only\tbeyond\n"
                                                             "P2\t5\n"
                                                             "P3\t7\t\t\tM3\n"));
        fixture.model.pasteFromClipboard();
        QCOMPARE(changes.count(), 1);
        const TableContentUpdate& pending = fixture.model.GetPendingUpdate();
        QCOMPARE(pending.GetValue(1, 0).toString(), QStringLiteral("P1"));
        QVERIFY(!pending.Contains(1, 1)); // "abc" is no integer
        QVERIFY(!pending.Contains(1, 4)); // read-only column
        QCOMPARE(pending.GetValue(2, 1).toString(), QStringLiteral("5"));
        QCOMPARE(pending.GetValue(3, 0).toString(), QStringLiteral("P3")); // the new row
        QVERIFY(!pending.Contains(3, 4)); // read-only column of the new row
        QCOMPARE(pending.MaxRow(), 3);

        fixture.model.confirmUpdate();
        QCOMPARE(updates.count(), 1);
        QCOMPARE(fixture.model.rowCountSubmitted(), 4);
        QCOMPARE(fixture.Content(3, 1), QStringLiteral("7"));
    }

    void shouldRoundTripACopyThroughPaste()
    {
        Fixture fixture(4);
        TableSelectionModel* selection = fixture.model.selectionModel();
        selection->select(fixture.model.index(0, 0), TableSelectionModel::CleanSelect);
        selection->selectRegion(fixture.model.index(1, 3), TableSelectionModel::CleanSelect);
        fixture.model.copyToClipboard();
        fixture.model.contentFilterModel()->selectionModel()->select(
            fixture.model.contentFilterModel()->index(2, 0), TableSelectionModel::CleanSelect);
        fixture.model.pasteFromClipboard();
        fixture.model.confirmUpdate();
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(fixture.Content(2, column), fixture.Content(0, column));
            QCOMPARE(fixture.Content(3, column), fixture.Content(1, column));
        }
    }

    void shouldCopyRealNumbersWithEveryDigit_data()
    {
        QTest::addColumn<double>("value");
        QTest::newRow("more decimals than an edit shows") << 1.23456789012345;
        QTest::newRow("tiny") << 1e-9;
        QTest::newRow("large with a fraction") << 123456789.125;
        QTest::newRow("negative") << -0.1;
        QTest::newRow("zero") << 0.0;
    }

    void shouldCopyRealNumbersWithEveryDigit()
    {
        // Given a real cell whose value has more digits than the edit form shows
        QFETCH(double, value);
        TableContentModel model;
        TableTestFeeder feeder(model);
        model.setAllowEdit(true);
        feeder.SetTable({ Column("length", TableValueType::Real) },
                        { { Cell(value, TableValueType::Real) }, { Cell(0.5, TableValueType::Real) } });
        feeder.Load();
        // When it is copied and pasted onto the next row
        model.selectionModel()->select(model.index(0, 0), TableSelectionModel::CleanSelect);
        model.copyToClipboard();
        model.contentFilterModel()->selectionModel()->select(model.contentFilterModel()->index(1, 0),
                                                             TableSelectionModel::CleanSelect);
        model.pasteFromClipboard();
        model.confirmUpdate();
        // Then the pasted value is exactly the copied one
        QCOMPARE(model.data(model.index(1, 0), TableContentModel::ContentRole).toDouble(), value);
    }
};

QTEST_MAIN(tst_TableClipboard)
#include "tst_tableclipboard.moc"
