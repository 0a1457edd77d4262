#include "TableFixture.h"
#include "TestHost.h"
#include "basiccomponents/NumberFormatSettings.h"
#include "tables/MultiEditAction.h"
#include "tables/TableContentModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <stdexcept>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::TestData;

using Fixture = TableFixture;

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

    void shouldTakeAnEditWhateverAllowEditSays()
    {
        // allowEdit is what the view offers (paste, the multi-edit box); an edit of an editable
        // cell reaches the pending update either way
        Fixture fixture(3);
        fixture.model.setAllowEdit(false);
        QVERIFY(fixture.model.setData(fixture.model.index(1, 0), "X", TableContentModel::ContentRole));
        QCOMPARE(fixture.model.GetPendingUpdate().GetValue(1, 0).toString(), QStringLiteral("X"));
        QVERIFY(!fixture.model.setData(fixture.model.index(1, 4), "x", TableContentModel::ContentRole));
    }

    void shouldKeepPendingEditsWithTheirColumn_data()
    {
        QTest::addColumn<int>("source");
        QTest::addColumn<int>("destination");
        QTest::addColumn<int>("editedColumnAfter");
        QTest::newRow("edited column moved right") << 1 << 4 << 3;
        QTest::newRow("another column moved before it") << 3 << 0 << 2;
        QTest::newRow("a column after it moved") << 3 << 2 << 1;
    }

    void shouldKeepPendingEditsWithTheirColumn()
    {
        // Given an edit of the count column that is not confirmed yet
        QFETCH(int, source);
        QFETCH(int, destination);
        QFETCH(int, editedColumnAfter);
        Fixture fixture(3);
        QVERIFY(fixture.model.setData(fixture.model.index(2, 1), "42", TableContentModel::ContentRole));
        // When columns move
        fixture.model.moveColumn(source, destination);
        // Then the edit goes with the count column, shows there and is sent for it
        QCOMPARE(fixture.model.headerData(editedColumnAfter, Qt::Horizontal, TableContentModel::ColumnIdRole)
                     .toString(),
                 QStringLiteral("count"));
        QCOMPARE(fixture.Content(2, editedColumnAfter), QStringLiteral("42"));
        fixture.model.confirmUpdate();
        QCOMPARE(fixture.feeder.updates.size(), std::size_t(1));
        QCOMPARE(fixture.feeder.updates[0].GetRows().at(2).size(), std::size_t(1));
        QCOMPARE(fixture.feeder.rows[2][1].content.toString(), QStringLiteral("42"));
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

    void shouldWithdrawAnEditTypedBackToTheOriginal()
    {
        // Given an edit of row 2's length (4.5) waiting
        Fixture fixture(4);
        const QModelIndex length = fixture.model.index(2, 2);
        QVERIFY(fixture.model.setData(length, "7", TableContentModel::ContentRole));
        QVERIFY(fixture.model.setData(fixture.model.index(1, 0), "X", TableContentModel::ContentRole));
        // When the original is typed back
        QVERIFY(fixture.model.setData(length, "4,5", TableContentModel::ContentRole));
        // Then the cell shows the original and the update sent holds only the other edit
        QCOMPARE(fixture.model.data(length, TableContentModel::ContentRole).toDouble(), 4.5);
        QVERIFY(!fixture.model.GetPendingUpdate().Contains(2, 2));
        fixture.model.confirmUpdate();
        QCOMPARE(fixture.feeder.updates.size(), std::size_t(1));
        QCOMPARE(fixture.feeder.updates[0].GetRows().size(), std::size_t(1));
        QVERIFY(!fixture.feeder.updates[0].Contains(2, 2));
    }

    void shouldRewriteShownNumbersWhenTheNumberFormatChanges()
    {
        using Orvo::UI::BasicComponents::NumberFormatSettings;
        // Given a table shown with decimal points
        TestHost host;
        const auto catalog = host.StartServices();
        Fixture fixture(3);
        const QModelIndex length = fixture.model.index(2, 2);
        QCOMPARE(fixture.model.data(length, TableContentFilterModel::DisplayTextRole).toString(), "4.50");
        QSignalSpy changes(&fixture.model, &QAbstractItemModel::dataChanged);
        // When the user chooses the decimal comma
        catalog->Get<NumberFormatSettings>()->SetDecimalMark(NumberFormatSettings::DecimalMark::Comma);
        // Then the views are told that every cell's text changed, and the text has the comma
        QCOMPARE(changes.count(), 1);
        const QModelIndex topLeft = changes[0][0].toModelIndex();
        const QModelIndex bottomRight = changes[0][1].toModelIndex();
        QCOMPARE(QPoint(topLeft.column(), topLeft.row()), QPoint(0, 0));
        QCOMPARE(QPoint(bottomRight.column(), bottomRight.row()),
                 QPoint(fixture.model.columnCount() - 1, fixture.model.rowCount() - 1));
        QVERIFY(changes[0][2].value<QList<int>>().contains(TableContentFilterModel::DisplayTextRole));
        QCOMPARE(fixture.model.data(length, TableContentFilterModel::DisplayTextRole).toString(), "4,50");
    }

    void shouldQueueNothingForValuesARoundLeavesAsTheyAre()
    {
        // Given lengths 1.5, 3.0, 4.5 selected and rounded to halves
        Fixture fixture(3);
        TableSelectionModel* selection = fixture.model.selectionModel();
        selection->select(fixture.model.index(0, 2), TableSelectionModel::CleanSelect);
        selection->selectRegion(fixture.model.index(2, 2), TableSelectionModel::CleanSelect);
        fixture.model.setDataForSelection(MultiEditAction::Round, "0.5");
        // Then the pending update is empty, not filled with the same values
        QVERIFY(fixture.model.GetPendingUpdate().IsEmpty());
        // and rounding to whole numbers queues exactly the two that change
        fixture.model.setDataForSelection(MultiEditAction::Round, "1");
        const auto& rows = fixture.model.GetPendingUpdate().GetRows();
        QCOMPARE(rows.size(), std::size_t(2));
        QVERIFY(!fixture.model.GetPendingUpdate().Contains(1, 2));
    }

    void shouldDropPendingEditsWhenAResultsTableGrows()
    {
        Fixture fixture(3);
        QVERIFY(fixture.model.setData(fixture.model.index(0, 0), "X", TableContentModel::ContentRole));
        TableColumnContent names { "name", { Cell("B4", TableValueType::String) } };
        std::vector<TableColumnContent> grown;
        for (const TableColumn& column : MemberColumns())
            grown.push_back({ column.id, { column.id == "name" ? names.cells[0] : TableCellContent() } });
        fixture.model.AddColumnsContent(std::move(grown));
        QCOMPARE(fixture.model.rowCountSubmitted(), 4);
        fixture.model.confirmUpdate();
        QVERIFY(fixture.feeder.updates.empty());
    }

    void shouldNotChangeAnUpdateAListenerKept()
    {
        // Given a listener that keeps the update it was sent, and a feeder that does not refill yet
        Fixture fixture(3);
        disconnect(&fixture.model, &TableContentModel::updateDataRequest, &fixture.feeder, nullptr);
        TableContentUpdate kept;
        connect(&fixture.model, &TableContentModel::updateDataRequest, this,
                [&](const TableContentUpdate& update) { kept = update; });
        QVERIFY(fixture.model.setData(fixture.model.index(0, 0), "X", TableContentModel::ContentRole));
        fixture.model.confirmUpdate();
        // When the user edits again before the feeder refills
        QVERIFY(fixture.model.setData(fixture.model.index(1, 0), "Y", TableContentModel::ContentRole));
        QVERIFY(fixture.model.setData(fixture.model.index(0, 0), "Z", TableContentModel::ContentRole));
        // Then the kept update still says what was sent
        QCOMPARE(kept.GetRows().size(), std::size_t(1));
        QCOMPARE(kept.GetValue(0, 0).toString(), QStringLiteral("X"));
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
