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
    explicit Fixture(int rowCount = 10, bool allowAddNew = false)
        : feeder(model)
        , sourceTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
        , filterTester(model.contentFilterModel(), QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        model.setAllowEdit(true);
        model.setAllowAddNew(allowAddNew);
        feeder.SetTable(MemberColumns(), MemberRows(rowCount));
        feeder.Load();
        model.setFilterBarModel(&filterBar);
    }
    TableContentFilterModel* filter() const { return model.contentFilterModel(); }
    bool SetFilter(int column, const QString& text)
    {
        return filterBar.setData(filterBar.index(column), text, FilterBarModel::ConditionTextRole);
    }
    QStringList Names() const
    {
        QStringList names;
        for (int row = 0; row < filter()->rowCount(); ++row)
            names.append(filter()->index(row, 0).data(TableContentModel::ContentRole).toString());
        return names;
    }
    QStringList VerticalHeader() const
    {
        QStringList numbers;
        for (int row = 0; row < filter()->rowCount(); ++row)
            numbers.append(filter()->headerData(row, Qt::Vertical).toString());
        return numbers;
    }

    TableContentModel model;
    TableTestFeeder feeder;
    FilterBarModel filterBar;
    QAbstractItemModelTester sourceTester;
    QAbstractItemModelTester filterTester;
};

} // namespace

class tst_TableFilterModel : public QObject
{
    Q_OBJECT

private slots:
    void shouldEmitNoModelSignalFromInsideFiltering()
    {
        // Given a check-box column with named states whose cells no one has asked for yet
        TableContentModel model;
        TableTestFeeder feeder(model);
        FilterBarModel filterBar;
        TableCellContent fixed = Cell(true, TableValueType::Bool);
        fixed.parametersNames = QStringList { "Yes", "No" };
        feeder.SetTable({ Column("fixed", TableValueType::Bool) }, { { fixed } });
        feeder.Load();
        model.setFilterBarModel(&filterBar);
        QAbstractItemModelTester tester(model.contentFilterModel(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.contentFilterModel()->selectionModel()->select(model.contentFilterModel()->index(0, 0),
                                                             TableSelectionModel::CleanSelect);
        int insideFiltering = 0;
        const auto check = [&]() { insideFiltering += model.contentFilterModel()->Invalidating() ? 1 : 0; };
        connect(&model, &QAbstractItemModel::headerDataChanged, this, check);
        connect(&model, &QAbstractItemModel::dataChanged, this, check);
        connect(&model, &TableContentModel::columnsLayoutChanged, this, check);
        // When a filter makes the proxy fetch the cell, and the delivery widens the column
        QVERIFY(filterBar.setData(filterBar.index(0), "x", FilterBarModel::ConditionTextRole));
        // Then nothing was announced while a row was being tested, and the column widens after
        QCOMPARE(insideFiltering, 0);
        QTRY_COMPARE(model.headerData(0, Qt::Horizontal, TableContentModel::ColumnMinWidthRole).toInt(), 128);
        QCOMPARE(insideFiltering, 0);
        QCOMPARE(model.contentFilterModel()->rowCount(), 0); // "x" is no state of a check box
    }

    void shouldFilterTheRightColumnAfterColumnsComeBack()
    {
        // Given two columns hidden and all shown again
        Fixture fixture(20, true);
        TableColumnsModel* columns = fixture.model.columnsModel();
        columns->hideColumn("name");
        columns->hideColumn("count");
        fixture.model.narrowAllColumns();
        columns->displayAllColumns();
        fixture.model.extendAllColumns();
        QCOMPARE(fixture.filterBar.rowCount(), 5);
        // When the material column is filtered
        const int material = 3;
        QCOMPARE(fixture.filter()
                     ->headerData(material, Qt::Horizontal, TableContentModel::ColumnIdRole)
                     .toString(),
                 QStringLiteral("material"));
        QVERIFY(fixture.SetFilter(material, "S355"));
        // Then every shown record is of that material, and the new-row line stays last
        const int records = fixture.filter()->rowCountSubmitted();
        QCOMPARE(records, 7); // rows 1, 4, 7, ..., 19
        for (int row = 0; row < records; ++row)
            QCOMPARE(fixture.filter()->index(row, material).data(TableContentModel::ContentRole).toString(),
                     QStringLiteral("S355"));
        QCOMPARE(fixture.filter()->newRowIndex(), records);
    }

    void shouldKeepFilterTextsWhenAHiddenColumnIsShown()
    {
        Fixture fixture(20);
        TableColumnsModel* columns = fixture.model.columnsModel();
        QVERIFY(fixture.SetFilter(3, "S355"));
        columns->hideColumn("name");
        QCOMPARE(fixture.filterBar.index(2).data(FilterBarModel::ConditionTextRole).toString(), "S355");
        columns->displayAllColumns();
        QCOMPARE(fixture.filterBar.index(3).data(FilterBarModel::ConditionTextRole).toString(), "S355");
        QCOMPARE(fixture.filter()->rowCount(), 7);
    }

    void shouldKeepOneFilterTextPerColumn()
    {
        FilterBarModel bar;
        QAbstractItemModelTester tester(&bar, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy any(&bar, &FilterBarModel::anyConditionChanged);
        QSignalSpy changed(&bar, &QAbstractItemModel::dataChanged);
        bar.Insert(5, { "a", "b", "c" });
        QCOMPARE(bar.rowCount(), 3);
        QVERIFY(bar.setData(bar.index(1), "x", FilterBarModel::ConditionTextRole));
        QVERIFY(bar.setData(bar.index(1), "x", Qt::EditRole)); // the same text: accepted, nothing emitted
        QVERIFY(!bar.setData(bar.index(1), "y", Qt::DisplayRole));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(any.count(), 1);
        QVERIFY(bar.anyCondition());

        bar.SynchronizeColumns({ "c", "b", "d" });
        QCOMPARE(bar.index(1).data().toString(), QStringLiteral("x"));
        QCOMPARE(bar.index(2).data().toString(), QString());
        bar.Remove(1, 5);
        QCOMPARE(bar.rowCount(), 1);
        QCOMPARE(any.count(), 2);
        bar.Remove(3, 1);
        QCOMPARE(bar.rowCount(), 1);
    }

    void shouldFilterAndRenumberTheVisibleRows()
    {
        Fixture fixture(10, true);
        QSignalSpy filtered(fixture.filter(), &TableContentFilterModel::filterChanged);
        QVERIFY(fixture.SetFilter(1, "<2"));
        QCOMPARE(filtered.count(), 1);
        // count is row % 7: rows 1, 2, 8, 9 hold 0 or 1; the new-row line always stays
        QCOMPARE(fixture.Names(), QStringList({ "B1", "B2", "B8", "B9", "" }));
        QCOMPARE(fixture.VerticalHeader(), QStringList({ "1", "2", "3", "4", "*" }));
        QCOMPARE(fixture.filter()->newRowIndex(), 4);
        QCOMPARE(fixture.filter()->rowCountSubmitted(), 4);

        // Filters of several columns combine with AND
        QVERIFY(fixture.SetFilter(0, "B1"));
        QCOMPARE(fixture.Names(), QStringList({ "B1", "" }));
        fixture.filterBar.clearAll();
        QCOMPARE(fixture.filter()->rowCount(), 11);
    }

    void shouldFetchAFilteredColumnWhole()
    {
        Fixture fixture(450);
        fixture.feeder.requests.clear();
        QVERIFY(fixture.SetFilter(2, "[3;6]"));
        QCOMPARE(fixture.feeder.requests.size(), std::size_t(1));
        QCOMPARE(fixture.feeder.requests[0].index, 0);
        QCOMPARE(fixture.feeder.requests[0].count, 450);
        QCOMPARE(fixture.Names(), QStringList({ "B2", "B3", "B4" }));
    }

    void shouldReFilterOnlyWhenTheConditionChanges()
    {
        Fixture fixture;
        QSignalSpy filtered(fixture.filter(), &TableContentFilterModel::filterChanged);
        fixture.filter()->selectionModel()->select(fixture.filter()->index(1, 1),
                                                   TableSelectionModel::CleanSelect);
        QVERIFY(fixture.SetFilter(1, ""));
        QVERIFY(fixture.SetFilter(1, "   ")); // a blank text had no condition and gets none
        QVERIFY(fixture.filter()->selectionModel()->getCurrentSelectedIndex().isValid());
        QVERIFY(fixture.SetFilter(1, "3"));
        QVERIFY(fixture.SetFilter(1, "3"));
        QCOMPARE(filtered.count(), 1);
        QVERIFY(!fixture.filter()->selectionModel()->getCurrentSelectedIndex().isValid());
    }

    void shouldKeepFilterTextsWithMovedColumnsAndDropThemWithRemovedOnes()
    {
        Fixture fixture;
        QVERIFY(fixture.SetFilter(1, "<2"));
        fixture.filter()->moveColumn(1, 4);
        QCOMPARE(fixture.filterBar.index(3).data().toString(), QStringLiteral("<2"));
        QCOMPARE(fixture.Names(), QStringList({ "B1", "B2", "B8", "B9" }));
        QSignalSpy any(&fixture.filterBar, &FilterBarModel::anyConditionChanged);
        fixture.model.columnsModel()->hideColumn("count");
        QCOMPARE(fixture.filterBar.rowCount(), 4);
        QCOMPARE(any.count(), 1);
        QCOMPARE(fixture.filter()->rowCount(), 10);
    }

    void shouldRebuildConditionsWhenTheFilterBarIsReplaced()
    {
        Fixture fixture;
        FilterBarModel other;
        other.Insert(0, { "name", "count" });
        QVERIFY(other.setData(other.index(0), "B1", FilterBarModel::ConditionTextRole));
        QSignalSpy replaced(&fixture.model, &TableContentModel::filterBarModelChanged);
        fixture.model.setFilterBarModel(&other);
        QCOMPARE(replaced.count(), 1);
        QCOMPARE(other.rowCount(), 5);
        QCOMPARE(fixture.Names(), QStringList({ "B1", "B10" }));
        fixture.model.setFilterBarModel(nullptr);
        QCOMPARE(fixture.filter()->rowCount(), 10);
    }

    void shouldForwardLayoutAndEditingToTheSource()
    {
        Fixture fixture;
        QVERIFY(fixture.SetFilter(1, "6"));
        QSignalSpy widths(fixture.filter(), &TableContentFilterModel::columnWidthChanged);
        fixture.filter()->setColumnWidth(2, 300);
        QCOMPARE(widths.count(), 1);
        QCOMPARE(fixture.model.columnWidth(2), 300);
        QVERIFY(
            fixture.filter()->setData(fixture.filter()->index(0, 0), "B7x", TableContentModel::ContentRole));
        fixture.filter()->confirmUpdate();
        QCOMPARE(fixture.feeder.updates.size(), std::size_t(1));
        QCOMPARE(fixture.feeder.updates[0].GetValue(6, 0).toString(), QStringLiteral("B7x"));
        QVERIFY(fixture.filter()->setHeaderData(2, Qt::Horizontal, 1, TableContentModel::SortOrderRole));
    }
};

QTEST_MAIN(tst_TableFilterModel)
#include "tst_tablefiltermodel.moc"
