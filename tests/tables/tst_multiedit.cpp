#include "TableTestData.h"
#include "TableTestFeeder.h"
#include "framework/HostApplication.h"
#include "tables/FilterBarModel.h"
#include "tables/MultiEditActionSolver.h"
#include "tables/MultiEditSearchResult.h"
#include "tables/TableContentModel.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::TestData;

class tst_MultiEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Orvo::Kernel::Framework::HostApplication::Start(
            QCoreApplication::applicationDirPath().toStdWString());
    }

    void shouldReadTheExpression_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("isNumber");
        QTest::addColumn<bool>("valid");
        QTest::newRow("multiply by a negative number") << "*-2" << 2 << "-2" << true << true;
        QTest::newRow("subtract") << "-2" << 1 << "2" << true << true;
        QTest::newRow("symbol after text") << "5+3" << 0 << "3" << true << true;
        QTest::newRow("comma as decimal mark") << "+1,5" << 0 << "1.5" << true << true;
        QTest::newRow("add needs a number") << "+abc" << 0 << "abc" << false << false;
        QTest::newRow("replace takes text") << ">abc" << 5 << "abc" << false << true;
        QTest::newRow("search takes text") << "? IPE" << 6 << "IPE" << false << true;
        QTest::newRow("round alone") << "~" << 4 << "" << false << false;
        QTest::newRow("round") << "~2" << 4 << "2" << true << true;
        QTest::newRow("no symbol") << "12" << -1 << "" << false << false;
    }

    void shouldReadTheExpression()
    {
        QFETCH(QString, expression);
        QFETCH(int, action);
        QFETCH(QString, value);
        QFETCH(bool, isNumber);
        QFETCH(bool, valid);
        MultiEditActionSolver solver;
        QSignalSpy validity(&solver, &MultiEditActionSolver::currentActionIsValidChanged);
        solver.setExpression(expression);
        QCOMPARE(solver.getCurrentAction() ? solver.getCurrentAction()->getAction() : -1, action);
        QCOMPARE(solver.getCurrentActionValue(), value);
        QCOMPARE(solver.getCurrentActionValueIsNumber(), isNumber);
        QCOMPARE(solver.getCurrentActionIsValid(), valid);
        QCOMPARE(validity.count(), valid ? 1 : 0);
    }

    void shouldSwitchTheActionInPlace()
    {
        MultiEditActionSolver solver;
        QCOMPARE(solver.getActionsLcids().size(), 7);
        solver.setExpression("+5");
        QCOMPARE(solver.getExpressionUpdatedByActionAt(2), QStringLiteral("*5"));
        solver.setExpression("5");
        QCOMPARE(solver.getExpressionUpdatedByActionAt(2), QStringLiteral("*5"));
        QCOMPARE(solver.getExpression(), QStringLiteral("5"));
    }

    void shouldApplyOperatorsToSelectedEditableCells_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("operand");
        QTest::addColumn<QStringList>("counts"); // integer column, rows 1..3 hold 1, 2, 3
        QTest::addColumn<QStringList>("lengths"); // real column, rows 1..3 hold 3, 4.5, 6
        QTest::newRow("add") << 0 << "2" << QStringList { "3", "4", "5" } << QStringList { "5", "6.5", "8" };
        QTest::newRow("subtract") << 1 << "0.5" << QStringList { "1", "2", "3" }
                                  << QStringList { "2.5", "4", "5.5" };
        QTest::newRow("multiply rounds integers")
            << 2 << "1.5" << QStringList { "2", "3", "5" } << QStringList { "4.5", "6.75", "9" };
        QTest::newRow("divide") << 3 << "2" << QStringList { "1", "1", "2" }
                                << QStringList { "1.5", "2.25", "3" };
        QTest::newRow("divide by zero leaves cells")
            << 3 << "0" << QStringList { "1", "2", "3" } << QStringList { "3", "4.5", "6" };
        QTest::newRow("round to a multiple")
            << 4 << "2" << QStringList { "2", "2", "4" } << QStringList { "4", "4", "6" };
        QTest::newRow("replace parses numbers")
            << 5 << "7" << QStringList { "7", "7", "7" } << QStringList { "7", "7", "7" };
        QTest::newRow("replace ignores text in numeric cells")
            << 5 << "x" << QStringList { "1", "2", "3" } << QStringList { "3", "4.5", "6" };
    }

    void shouldApplyOperatorsToSelectedEditableCells()
    {
        QFETCH(int, action);
        QFETCH(QString, operand);
        QFETCH(QStringList, counts);
        QFETCH(QStringList, lengths);
        TableContentModel model;
        TableTestFeeder feeder(model);
        model.setAllowEdit(true);
        feeder.SetTable(MemberColumns(), MemberRows(6));
        feeder.Load();
        model.selectionModel()->select(model.index(1, 1), TableSelectionModel::CleanSelect);
        model.selectionModel()->selectRegion(model.index(3, 4), TableSelectionModel::CleanSelect);
        model.setDataForSelection(action, operand);
        model.confirmUpdate();
        for (int row = 1; row <= 3; ++row) {
            QCOMPARE(model.data(model.index(row, 1), TableContentModel::ContentRole).toString(),
                     counts[row - 1]);
            QCOMPARE(model.data(model.index(row, 2), TableContentModel::ContentRole).toString(),
                     lengths[row - 1]);
            QCOMPARE(model.data(model.index(row, 4), TableContentModel::ContentRole).toString(),
                     QStringLiteral("m%1").arg(row)); // read-only column untouched
        }
        QCOMPARE(model.data(model.index(0, 1), TableContentModel::ContentRole).toString(),
                 QStringLiteral("0"));
    }

    void shouldLeaveIntegersWhoseResultTheHostCannotHold_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("operand");
        QTest::addColumn<QStringList>("counts"); // rows 1..3 hold 1, 2, 3
        QTest::newRow("past the largest, the others still change")
            << 2 << "1e9" << QStringList { "1000000000", "2000000000", "3" };
        QTest::newRow("far past 64 bits") << 2 << "1e20" << QStringList { "1", "2", "3" };
        QTest::newRow("below the smallest")
            << 1 << "2147483650" << QStringList { "1", "-2147483648", "-2147483647" };
        QTest::newRow("added past the largest")
            << 0 << "2147483646" << QStringList { "2147483647", "2", "3" };
    }

    void shouldLeaveIntegersWhoseResultTheHostCannotHold()
    {
        // Given counts 1, 2 and 3 selected
        QFETCH(int, action);
        QFETCH(QString, operand);
        QFETCH(QStringList, counts);
        TableContentModel model;
        TableTestFeeder feeder(model);
        model.setAllowEdit(true);
        feeder.SetTable(MemberColumns(), MemberRows(6));
        feeder.Load();
        model.selectionModel()->select(model.index(1, 1), TableSelectionModel::CleanSelect);
        model.selectionModel()->selectRegion(model.index(3, 1), TableSelectionModel::CleanSelect);
        // When an operator takes some beyond what the host holds
        for (int row = 1; row <= 3; ++row) {
            if (counts[row - 1] == QString::number(row))
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression("outside the integer range"));
        }
        model.setDataForSelection(action, operand);
        // Then only the results the host can hold wait for it
        for (int row = 1; row <= 3; ++row) {
            const QVariant value = model.PendingValue(row, 1);
            if (counts[row - 1] == QString::number(row))
                QVERIFY2(!value.isValid(), qPrintable(value.toString()));
            else
                QCOMPARE(value.toString(), counts[row - 1]);
        }
        model.confirmUpdate();
        for (int row = 1; row <= 3; ++row)
            QCOMPARE(model.data(model.index(row, 1), TableContentModel::ContentRole).toString(),
                     counts[row - 1]);
    }

    void shouldReplaceNamedValuesByName()
    {
        TableContentModel model;
        TableTestFeeder feeder(model);
        model.setAllowEdit(true);
        feeder.SetTable(MemberColumns(), MemberRows(3));
        feeder.Load();
        model.selectionModel()->select(model.index(0, 3), TableSelectionModel::CleanSelect);
        model.selectionModel()->selectRegion(model.index(2, 3), TableSelectionModel::CleanSelect);
        QCOMPARE(model.getSelectionParametersNames(), QStringList({ "S235", "S355", "C30/37" }));
        QCOMPARE(model.getSelectionParametersSelectedIndices(), QList<int>({ 0, 1, 2 }));
        model.setDataForSelection(5, "steel"); // no such name: nothing changes
        QVERIFY(model.GetPendingUpdate().IsEmpty());
        model.setDataForSelection(5, "s355");
        model.confirmUpdate();
        for (int row = 0; row < 3; ++row)
            QCOMPARE(feeder.rows[static_cast<std::size_t>(row)][3].parameterIndex, 1);
    }

    void shouldGiveANamedValueCellOnlyValuesOfItsList_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("operand");
        QTest::addColumn<QStringList>("pending"); // rows 0..1 use "2" and "4" of 1, 2, 4, 8
        QTest::newRow("results in the list") << 2 << "2" << QStringList { "4", "8" };
        QTest::newRow("results outside the list") << 0 << "1" << QStringList { "", "" };
        QTest::newRow("one result in the list") << 2 << "4" << QStringList { "8", "" };
        QTest::newRow("round onto the list or unchanged") << 4 << "4" << QStringList { "4", "" };
    }

    void shouldGiveANamedValueCellOnlyValuesOfItsList()
    {
        // Given integer cells that take one of the named values 1, 2, 4 and 8, selected
        QFETCH(int, action);
        QFETCH(QString, operand);
        QFETCH(QStringList, pending);
        const QStringList sizes { "1", "2", "4", "8" };
        std::vector<std::vector<TableCellContent>> rows;
        for (int index : { 1, 2 }) {
            TableCellContent cell = Parameter(sizes, index);
            cell.valueType = TableValueType::Integer;
            rows.push_back({ cell });
        }
        TableContentModel model;
        TableTestFeeder feeder(model);
        model.setAllowEdit(true);
        feeder.SetTable({ Column("size", TableValueType::Integer) }, rows);
        feeder.Load();
        model.selectionModel()->select(model.index(0, 0), TableSelectionModel::CleanSelect);
        model.selectionModel()->selectRegion(model.index(1, 0), TableSelectionModel::CleanSelect);
        // When an arithmetic operator is applied
        model.setDataForSelection(action, operand);
        // Then only names of the list are queued
        for (int row = 0; row < 2; ++row)
            QCOMPARE(model.GetPendingUpdate().GetValue(row, 0).toString(), pending[row]);
    }

    void shouldSearchWithWrapAndReport()
    {
        TableContentModel model;
        TableTestFeeder feeder(model);
        FilterBarModel filterBar;
        feeder.SetTable(MemberColumns(), MemberRows(30));
        feeder.Load();
        model.setFilterBarModel(&filterBar);
        MultiEditSearchResult* search = model.getMultiEditSearchResult();
        TableSelectionFilterModel* selection = model.contentFilterModel()->selectionModel();
        QSignalSpy counts(search, &MultiEditSearchResult::matchCountChanged);

        // "B2" is in the names B2, B20..B29: eleven matches in reading order
        model.setDataForSelection(6, "B2");
        QCOMPARE(search->getMatchCount(), 11);
        QCOMPARE(counts.count(), 1);
        QVERIFY(search->getActive());
        QCOMPARE(selection->getCurrentSelectedIndex().row(), 1);
        QCOMPARE(search->getCurrentMatchIndex(), 0);
        QCOMPARE(search->getReport(), QStringLiteral("1 of 11"));
        for (int i = 0; i < 10; ++i)
            search->SearchNext("B2");
        QCOMPARE(selection->getCurrentSelectedIndex().row(), 28);
        search->SearchNext("B2");
        QCOMPARE(selection->getCurrentSelectedIndex().row(), 1); // wrapped to the first match
        QCOMPARE(search->getCurrentMatchIndex(), 0);

        // A new text starts from the match after the current cell
        selection->select(model.contentFilterModel()->index(15, 0), TableSelectionModel::CleanSelect);
        search->SearchNext("S355");
        QCOMPARE(selection->getCurrentSelectedIndex(), model.contentFilterModel()->index(16, 3));
        QCOMPARE(search->getMatchCount(), 10);

        // No match: the report says so and the selection stays
        search->SearchNext("nothing like it");
        QCOMPARE(search->getMatchCount(), 0);
        QCOMPARE(search->getReport(), QStringLiteral("No match"));
        QCOMPARE(selection->getCurrentSelectedIndex(), model.contentFilterModel()->index(16, 3));

        // Filtering moves rows: the matches are dropped
        search->SearchNext("B2");
        QVERIFY(filterBar.setData(filterBar.index(0), "B1", FilterBarModel::ConditionTextRole));
        QVERIFY(!search->getActive());
        QCOMPARE(search->getMatchCount(), 0);
    }
};

QTEST_MAIN(tst_MultiEdit)
#include "tst_multiedit.moc"
