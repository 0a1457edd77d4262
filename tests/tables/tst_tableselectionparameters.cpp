#include "tables/TableSelectionParameters.h"

#include <QTest>

using namespace Orvo::UI::UIComponents;

namespace {

// A cell that can take names and uses the one at index (-1: none).
TableCellContent Cell(const QStringList& names, int index, QVariant content = QStringLiteral("v"))
{
    TableCellContent cell;
    cell.content = std::move(content);
    cell.parametersNames = names;
    for (const QString& name : names)
        cell.parametersValues.append(name.toLower());
    cell.parameterIndex = index;
    return cell;
}

struct Cells
{
    std::vector<TableCellContent> cells;
};

} // namespace

Q_DECLARE_METATYPE(Cells)

class tst_TableSelectionParameters : public QObject
{
    Q_OBJECT

private slots:
    void shouldOfferTheNamesEverySelectedCellCanTake_data()
    {
        QTest::addColumn<Cells>("selected");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QVariantList>("values");
        QTest::addColumn<QList<int>>("inUse");
        const QStringList steel { "S235", "S355", "S460" };
        QTest::newRow("one cell") << Cells { { Cell(steel, 1) } } << steel
                                  << QVariantList { "s235", "s355", "s460" } << QList<int> { 1 };
        QTest::newRow("intersection, in the first cell's order, with values")
            << Cells { { Cell(steel, 0), Cell({ "S460", "S235", "C30/37" }, 0) } }
            << QStringList { "S235", "S460" } << QVariantList { "s235", "s460" } << QList<int> { 0, 1 };
        QTest::newRow("a cell without a value does not decide")
            << Cells { { Cell({ "X" }, -1, QVariant()), Cell(steel, 2) } } << steel
            << QVariantList { "s235", "s355", "s460" } << QList<int> { 2 };
        QTest::newRow("nothing in common")
            << Cells { { Cell(steel, 0), Cell({ "C30/37" }, 0), Cell(steel, 1) } } << QStringList()
            << QVariantList() << QList<int>();
        QTest::newRow("a name in use that not every cell has is not marked")
            << Cells { { Cell(steel, 2), Cell({ "S235" }, 0) } } << QStringList { "S235" }
            << QVariantList { "s235" } << QList<int> { 0 };
        QTest::newRow("no cells") << Cells {} << QStringList() << QVariantList() << QList<int>();
    }

    void shouldOfferTheNamesEverySelectedCellCanTake()
    {
        QFETCH(Cells, selected);
        QFETCH(QStringList, names);
        QFETCH(QVariantList, values);
        QFETCH(QList<int>, inUse);
        TableSelectionParameters parameters;
        parameters.Begin();
        for (const TableCellContent& cell : selected.cells)
            parameters.Add(cell);
        parameters.End();
        QCOMPARE(parameters.Names(), names);
        QCOMPARE(parameters.Values(), values);
        QCOMPARE(parameters.SelectedIndices(), inUse);
    }

    void shouldTellWhenNoCellCanChangeTheResult()
    {
        TableSelectionParameters parameters;
        parameters.Begin();
        QVERIFY(parameters.Add(Cell({ "A", "B" }, 0)));
        QVERIFY(!parameters.Add(Cell({ "C" }, 0)));
    }

    void shouldStartAfreshOnBegin()
    {
        TableSelectionParameters parameters;
        parameters.Begin();
        parameters.Add(Cell({ "A", "B" }, 0));
        parameters.End();
        parameters.Begin();
        parameters.Add(Cell({ "C" }, 0));
        parameters.End();
        QCOMPARE(parameters.Names(), QStringList { "C" });
        QCOMPARE(parameters.SelectedIndices(), QList<int> { 0 });
    }
};

QTEST_APPLESS_MAIN(tst_TableSelectionParameters)
#include "tst_tableselectionparameters.moc"
