#include "TableTestData.h"
#include "TableTestFeeder.h"
#include "tables/TableContentModel.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <stdexcept>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::TestData;

namespace {

// A model with its feeder and a model tester attached before anything happens.
struct Fixture
{
    explicit Fixture(int rowCount, bool allowAddNew = false)
        : feeder(model)
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        model.setAllowEdit(true);
        model.setAllowAddNew(allowAddNew);
        feeder.SetTable(MemberColumns(), MemberRows(rowCount));
        feeder.Load();
    }
    QString Content(int row, int column) const
    {
        return model.data(model.index(row, column), TableContentModel::ContentRole).toString();
    }

    TableContentModel model;
    TableTestFeeder feeder;
    QAbstractItemModelTester tester;
};

} // namespace

class tst_TableContentModel : public QObject
{
    Q_OBJECT

private slots:
    void shouldFetchOneBulkOfVisibleColumnsPerScrolledCell()
    {
        Fixture fixture(250);
        QCOMPARE(fixture.model.rowCount(), 250);
        QCOMPARE(fixture.model.columnCount(), 5);
        fixture.feeder.requests.clear();

        // When the view reads cells of the second bulk
        QCOMPARE(fixture.Content(150, 0), QStringLiteral("B151"));
        QCOMPARE(fixture.Content(199, 2), QStringLiteral("300"));
        QCOMPARE(fixture.Content(205, 1), QStringLiteral("2"));

        // Then bulk 1 came in one request of all visible columns, and the short last bulk alone
        QCOMPARE(fixture.feeder.requests.size(), std::size_t(2));
        QCOMPARE(fixture.feeder.requests[0].index, 100);
        QCOMPARE(fixture.feeder.requests[0].count, 100);
        QCOMPARE(fixture.feeder.requests[0].ids.size(), std::size_t(5));
        QCOMPARE(fixture.feeder.requests[1].index, 200);
        QCOMPARE(fixture.feeder.requests[1].count, 50);
    }

    void shouldStoreContentAcrossBulkBoundaries()
    {
        Fixture fixture(300);
        std::vector<TableCellContent> cells;
        for (int i = 0; i < 5; ++i)
            cells.push_back(Cell(QStringLiteral("x%1").arg(i), TableValueType::String));
        fixture.model.SetColumnsContent(98, { TableColumnContent { "name", cells } });

        QCOMPARE(fixture.model.GetCell(98, 0).content.toString(), QStringLiteral("x0"));
        QCOMPARE(fixture.model.GetCell(99, 0).content.toString(), QStringLiteral("x1"));
        QCOMPARE(fixture.model.GetCell(102, 0).content.toString(), QStringLiteral("x4"));
        // Rows of those bulks that were not delivered are still asked for.
        fixture.feeder.requests.clear();
        QCOMPARE(fixture.Content(97, 0), QStringLiteral("B98"));
        QCOMPARE(fixture.feeder.requests.size(), std::size_t(1));
    }

    void shouldRejectFeederContractBreaches()
    {
        Fixture fixture(120);
        const auto cells
            = [](int count) { return std::vector<TableCellContent>(static_cast<std::size_t>(count)); };
        QVERIFY_THROWS_EXCEPTION(std::range_error,
                                 fixture.model.SetColumnsContent(100, { { "name", cells(21) } }));
        QVERIFY_THROWS_EXCEPTION(
            std::runtime_error,
            fixture.model.SetColumnsContent(0, { { "name", cells(2) }, { "count", cells(3) } }));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 fixture.model.SetColumnsContent(0, { { "nope", cells(2) } }));
        QVERIFY_THROWS_EXCEPTION(
            std::overflow_error,
            fixture.model.GetFilledCell(500, 0, TableContentModel::ContentRequest::SingleColumn));
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, fixture.model.RemoveColumn(9, true));
    }

    void shouldFillDefaultsAndAskOnceWhenTheFeederDeliversNothing()
    {
        Fixture fixture(50);
        fixture.feeder.deliver = false;
        fixture.feeder.requests.clear();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("delivered no content"));
        QVERIFY(!fixture.model.data(fixture.model.index(3, 0), TableContentModel::ContentRole).isValid());
        QVERIFY(!fixture.model.data(fixture.model.index(4, 0), TableContentModel::ContentRole).isValid());
        QCOMPARE(fixture.feeder.requests.size(), std::size_t(1));
    }

    void shouldShowTheNewRowLineWithAStar()
    {
        Fixture fixture(0, true);
        QCOMPARE(fixture.model.rowCount(), 1);
        QCOMPARE(fixture.model.newRowIndex(), 0);
        QCOMPARE(fixture.model.headerData(0, Qt::Vertical).toString(), QStringLiteral("*"));
        QCOMPARE(fixture.model.data(fixture.model.index(0, 2), TableContentModel::ContentTypeRole).toInt(),
                 int(TableValueType::String));
        QCOMPARE(fixture.model.headerData(0, Qt::Vertical, TableContentModel::SelectableRole).toBool(),
                 false);
    }

    void shouldConfirmTheNewRowOnlyWhenRequiredColumnsAreFilled()
    {
        Fixture fixture(2, true);
        QSignalSpy updates(&fixture.model, &TableContentModel::updateDataRequest);
        QVERIFY(updates.isValid());
        const int newRow = fixture.model.newRowIndex();

        // Given only the optional count typed, nothing is sent
        QVERIFY(fixture.model.setData(fixture.model.index(newRow, 1), "4", TableContentModel::ContentRole));
        QVERIFY(!fixture.model.isAllRequiredFilledForNewRow());
        fixture.model.confirmUpdate();
        QCOMPARE(updates.count(), 0);

        // When the required name is typed too, the new record arrives
        QVERIFY(fixture.model.setData(fixture.model.index(newRow, 0), "B9", TableContentModel::ContentRole));
        fixture.model.confirmUpdate();
        QCOMPARE(updates.count(), 1);
        QCOMPARE(fixture.model.rowCountSubmitted(), 3);
        QCOMPARE(fixture.Content(2, 0), QStringLiteral("B9"));
        QCOMPARE(fixture.Content(fixture.model.newRowIndex(), 0), QString());
    }

    void shouldKeepEditsPendingUntilConfirmed()
    {
        Fixture fixture(10);
        QSignalSpy updates(&fixture.model, &TableContentModel::updateDataRequest);
        const QModelIndex count = fixture.model.index(1, 1);

        QVERIFY(!fixture.model.setData(count, "1", TableContentModel::ContentRole)); // its cached value
        QVERIFY(fixture.model.GetPendingUpdate().IsEmpty());
        QVERIFY(!fixture.model.setData(count, "abc", TableContentModel::ContentRole));
        QVERIFY(!fixture.model.setData(fixture.model.index(1, 4), "x",
                                       TableContentModel::ContentRole)); // read-only
        QVERIFY(fixture.model.setData(count, "2*3", TableContentModel::ContentRole));
        QCOMPARE(fixture.Content(1, 1), QStringLiteral("6"));
        QVERIFY(!fixture.model.setData(fixture.model.index(1, 3), 1, TableContentModel::ParameterIndexRole));
        QVERIFY(fixture.model.setData(fixture.model.index(1, 3), 2, TableContentModel::ParameterIndexRole));
        QCOMPARE(fixture.model.data(fixture.model.index(1, 3), TableContentModel::ParameterIndexRole).toInt(),
                 2);

        fixture.model.confirmUpdate();
        QCOMPARE(updates.count(), 1);
        const auto update = updates.at(0).at(0).value<TableContentUpdate>();
        QCOMPARE(update.GetValue(1, 1).toString(), QStringLiteral("6"));
        QCOMPARE(update.GetValue(1, 3).toString(), QStringLiteral("C30/37"));
        QCOMPARE(update.MaxRow(), 1);
    }

    void shouldSortByOneColumnAtATime()
    {
        Fixture fixture(10);
        QSignalSpy refills(&fixture.model, &TableContentModel::refillContentRequest);
        QSignalSpy headers(&fixture.model, &QAbstractItemModel::headerDataChanged);
        QVERIFY(fixture.model.setHeaderData(1, Qt::Horizontal, TableContentModel::Ascending,
                                            TableContentModel::SortOrderRole));
        refills.clear();
        headers.clear();

        QVERIFY(fixture.model.setHeaderData(3, Qt::Horizontal, TableContentModel::Descending,
                                            TableContentModel::SortOrderRole));
        QCOMPARE(fixture.model.headerData(1, Qt::Horizontal, TableContentModel::SortOrderRole).toInt(), 0);
        QCOMPARE(refills.count(), 1);
        QCOMPARE(headers.count(), 2);
        QVERIFY(!fixture.model.setHeaderData(3, Qt::Horizontal, TableContentModel::Descending,
                                             TableContentModel::SortOrderRole));
        QVERIFY(!fixture.model.setHeaderData(0, Qt::Vertical, 1, TableContentModel::SortOrderRole));
    }

    void shouldSnapWidthsToTheStep_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("minWidth");
        QTest::addColumn<bool>("extend");
        QTest::addColumn<int>("expected");
        QTest::newRow("narrow 130 to the minimum") << 130 << 64 << false << 64;
        QTest::newRow("narrow 127: one step below is 0, the minimum wins") << 127 << 64 << false << 64;
        QTest::newRow("narrow 200 to 128") << 200 << 64 << false << 128;
        QTest::newRow("narrow never widens") << 70 << 100 << false << 100;
        QTest::newRow("extend 64 to 128") << 64 << 64 << true << 128;
        QTest::newRow("extend 100 to 128") << 100 << 64 << true << 128;
    }

    void shouldSnapWidthsToTheStep()
    {
        QFETCH(int, width);
        QFETCH(int, minWidth);
        QFETCH(bool, extend);
        QFETCH(int, expected);
        Fixture fixture(1);
        QVERIFY(
            fixture.model.setHeaderData(0, Qt::Horizontal, minWidth, TableContentModel::ColumnMinWidthRole)
            || minWidth == 64);
        fixture.model.setColumnWidth(0, width);
        QSignalSpy layout(&fixture.model, &TableContentModel::columnsLayoutChanged);
        extend ? fixture.model.extendAllColumns() : fixture.model.narrowAllColumns();
        QCOMPARE(fixture.model.columnWidth(0), expected);
        QCOMPARE(fixture.model.GetColumns()[0].width, expected);
        QCOMPARE(fixture.model.submitLayout(), false);
    }

    void shouldWidenBoolColumnsWithNamedStates()
    {
        TableContentModel model;
        TableTestFeeder feeder(model);
        TableCellContent named = Cell(true, TableValueType::Bool);
        named.parametersNames = QStringList { "Yes", "No" };
        feeder.SetTable({ Column("fixed", TableValueType::Bool) }, { { named } });
        feeder.Load();
        QCOMPARE(model.data(model.index(0, 0), TableContentModel::ContentRole).toBool(), true);
        QCOMPARE(model.headerData(0, Qt::Horizontal, TableContentModel::ColumnMinWidthRole).toInt(), 128);
        QCOMPARE(model.columnWidth(0), 128);
    }

    void shouldMoveCellsWidthsAndSelectionWithAColumn()
    {
        Fixture fixture(5);
        fixture.model.setColumnWidth(0, 200);
        QCOMPARE(fixture.Content(0, 0), QStringLiteral("B1"));
        fixture.model.selectionModel()->select(fixture.model.index(2, 0), TableSelectionModel::CleanSelect);
        fixture.feeder.requests.clear();

        fixture.model.moveColumn(0, 3);
        QCOMPARE(fixture.model.headerData(2, Qt::Horizontal, TableContentModel::ColumnIdRole).toString(),
                 "name");
        QCOMPARE(fixture.model.columnWidth(2), 200);
        QCOMPARE(fixture.Content(0, 2), QStringLiteral("B1"));
        QVERIFY(fixture.feeder.requests.empty());
        QVERIFY(fixture.model.selectionModel()->IsCellSelected(2, 2));
        QCOMPARE(fixture.model.columnsModel()->GetVisibleIds()[2], QStringLiteral("name"));
        fixture.model.moveColumn(2, 3); // right after itself: nothing moves
        fixture.model.moveColumn(-1, 2);
        QCOMPARE(fixture.model.headerData(2, Qt::Horizontal, TableContentModel::ColumnIdRole).toString(),
                 "name");
    }

    void shouldFollowTheColumnsModelVisibility()
    {
        Fixture fixture(5);
        TableColumnsModel* columns = fixture.model.columnsModel();
        QSignalSpy visibility(columns, &TableColumnsModel::columnsVisibilityChanged);
        columns->hideColumn("count");
        columns->hideColumn("length");
        QCOMPARE(fixture.model.columnCount(), 3);
        QCOMPARE(columns->getFirstVisibleIndex(), 0);

        columns->displayAllColumns();
        QCOMPARE(visibility.count(), 3);
        QCOMPARE(fixture.model.columnCount(), 5);
        QCOMPARE(fixture.model.headerData(1, Qt::Horizontal, TableContentModel::ColumnIdRole).toString(),
                 "count");
        QCOMPARE(fixture.Content(4, 1), QStringLiteral("4"));
    }

    void shouldNameColourCells()
    {
        TableContentModel model;
        TableTestFeeder feeder(model);
        model.SetColorNames({ { "UI_COLOR_BLUE", "Blue" } });
        feeder.SetTable({ Column("colour", TableValueType::Color) },
                        { { Cell("#0021f5", TableValueType::Color) } });
        feeder.Load();
        QCOMPARE(model.data(model.index(0, 0), TableContentModel::AllValuesRole).toList().size(), 18);
        QCOMPARE(model.GetFilledCell(0, 0, TableContentModel::ContentRequest::SingleColumn).text, "Blue");
        QCOMPARE(model.getColorLcid(14), QStringLiteral("UI_COLOR_BLUE"));
        QCOMPARE(model.getColorLcid(18), QString());
    }

    void shouldCopyTheSelectionWithAHeaderLine()
    {
        Fixture fixture(5);
        TableSelectionModel* selection = fixture.model.selectionModel();
        selection->select(fixture.model.index(1, 0), TableSelectionModel::CleanSelect);
        selection->select(fixture.model.index(1, 2), TableSelectionModel::Toggle);
        selection->select(fixture.model.index(2, 3), TableSelectionModel::Toggle);
        fixture.model.copyToClipboard();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("Label name\tLabel count\tLabel length\tLabel material\n"
                                "B2\t\t3\t\n"
                                "\t\t\tC30/37"));
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
                                                             "P3\t7\n"));
        fixture.model.pasteFromClipboard();
        QCOMPARE(changes.count(), 1);
        const TableContentUpdate& pending = fixture.model.GetPendingUpdate();
        QCOMPARE(pending.GetValue(1, 0).toString(), QStringLiteral("P1"));
        QVERIFY(!pending.Contains(1, 1)); // "abc" is no integer
        QVERIFY(!pending.Contains(1, 4)); // read-only column
        QCOMPARE(pending.GetValue(2, 1).toString(), QStringLiteral("5"));
        QCOMPARE(pending.GetValue(3, 0).toString(), QStringLiteral("P3")); // the new row
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

    void shouldConvertTypedText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("expected");
        QTest::newRow("integer expression") << "2*3" << int(TableValueType::Integer) << QStringList() << "6";
        QTest::newRow("integer rounds") << "2,6" << int(TableValueType::Integer) << QStringList() << "3";
        QTest::newRow("not a number") << "abc" << int(TableValueType::Integer) << QStringList() << QString();
        QTest::newRow("named value, any case")
            << "yes" << int(TableValueType::Bool) << QStringList { "Yes", "No" } << "Yes";
        QTest::newRow("bool zero takes the second name")
            << "0" << int(TableValueType::Bool) << QStringList { "Yes", "No" } << "No";
        QTest::newRow("bool without names") << "5" << int(TableValueType::Bool) << QStringList() << "1";
        QTest::newRow("text stays text") << "abc" << int(TableValueType::String) << QStringList() << "abc";
    }

    void shouldConvertTypedText()
    {
        QFETCH(QString, text);
        QFETCH(int, type);
        QFETCH(QStringList, names);
        QFETCH(QString, expected);
        const QString value = TableContentModel::CreateContentUpdateValue(text, TableValueType(type), names);
        QCOMPARE(value.isNull(), expected.isNull());
        QCOMPARE(value, expected);
    }

    void shouldGrowAResultsTableWithAppendedContent()
    {
        TableContentModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy rows(&model, &TableContentModel::rowCountChanged);
        model.AddColumns({ Column("force", TableValueType::Unknown, false, false) });
        const auto results = [](int first, int count) {
            TableColumnContent content { "force", {} };
            for (int i = first; i < first + count; ++i)
                content.cells.push_back(
                    TableContentModel::CreateCellContent({ std::to_wstring(i) + L" kN", i % 2 == 0 }));
            return std::vector<TableColumnContent> { content };
        };
        model.AddColumnsContent(results(0, 150));
        model.AddColumnsContent(results(150, 3));
        QCOMPARE(model.rowCount(), 153);
        QCOMPARE(rows.count(), 2);
        QCOMPARE(model.data(model.index(151, 0), TableContentModel::ContentRole).toString(),
                 QStringLiteral("151 kN"));
        QCOMPARE(model.data(model.index(152, 0), TableContentModel::BoldRole).toBool(), true);
        QCOMPARE(model.data(model.index(151, 0), TableContentModel::EditableRole).toBool(), false);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, model.AddColumnsContent({ { "torque", {} } }));
    }

    void shouldAskForActionsOnlyOfCellsThatHaveOne()
    {
        Fixture fixture(3);
        fixture.feeder.rows[1][0].hasAction = true;
        fixture.model.SetRowCount(3);
        fixture.model.executeAction(fixture.model.index(0, 0));
        fixture.model.executeAction(fixture.model.index(1, 0));
        QCOMPARE(fixture.feeder.actions.size(), std::size_t(1));
        QCOMPARE(fixture.feeder.actions[0], std::make_pair(1, 0));
    }

    void shouldClearContentAndColumns()
    {
        Fixture fixture(150, true);
        QSignalSpy about(&fixture.model, &TableContentModel::aboutToClearContent);
        QSignalSpy cleared(&fixture.model, &TableContentModel::clearContent);
        QCOMPARE(fixture.Content(120, 0), QStringLiteral("B121"));
        fixture.model.Clear();
        QCOMPARE(about.count(), 1);
        QCOMPARE(cleared.count(), 1);
        QCOMPARE(fixture.model.rowCount(), 1);
        QCOMPARE(fixture.model.columnCount(), 0);
        QVERIFY(fixture.model.isEmpty());
    }
};

QTEST_MAIN(tst_TableContentModel)
#include "tst_tablecontentmodel.moc"
