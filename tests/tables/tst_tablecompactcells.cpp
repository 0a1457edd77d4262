#include "tables/TableCompactCells.h"

#include <QDate>
#include <QTest>
#include <cmath>
#include <cstring>

using namespace Orvo::UI::UIComponents;

Q_DECLARE_METATYPE(Orvo::UI::UIComponents::TableCellContent)

namespace {

// Everything a record carries, including what a plain comparison would miss: the variant's type,
// a double's exact bits and whether a text is null or only empty.
QString DescribeValue(const QVariant& value)
{
    if (!value.isValid())
        return QStringLiteral("invalid");
    QString shown = value.toString();
    if (value.typeId() == QMetaType::Double) {
        const double number = value.toDouble();
        quint64 bits = 0;
        std::memcpy(&bits, &number, sizeof bits);
        shown = QString::number(bits, 16);
    }
    return QStringLiteral("%1(%2%3)")
        .arg(value.typeName(), shown, shown.isNull() ? QStringLiteral(",null") : QString());
}

QString Describe(const TableCellContent& cell)
{
    QStringList parameterValues;
    for (const QVariant& value : cell.parametersValues)
        parameterValues << DescribeValue(value);
    return QStringLiteral("%1 text=%2%3 all=[%4] p=%5 names=[%6] values=[%7] type=%8 words=%9,%10 "
                          "decimals=%11 e%12 a%13 b%14 h%15")
        .arg(DescribeValue(cell.content), cell.text,
             cell.text.isNull() ? QStringLiteral("(null)") : QString())
        .arg(cell.allValues.join('|'))
        .arg(cell.parameterIndex)
        .arg(cell.parametersNames.join('|'), parameterValues.join('|'))
        .arg(static_cast<int>(cell.valueType))
        .arg(cell.adapterWord1)
        .arg(cell.adapterWord2)
        .arg(cell.decimals ? QString::number(*cell.decimals) : QStringLiteral("none"))
        .arg(cell.editable)
        .arg(cell.hasAction)
        .arg(cell.bold)
        .arg(cell.highlightState);
}

TableCellContent Cell(QVariant value, TableValueType type)
{
    TableCellContent cell;
    cell.content = std::move(value);
    cell.valueType = type;
    return cell;
}

// A bulk's worth of cells of every kind, so that a cell lies between neighbours of other kinds.
TableCellContent Mixed(int row)
{
    switch (row % 5) {
    case 0:
        return Cell(QStringLiteral("Stütze %1").arg(row), TableValueType::String);
    case 1: {
        TableCellContent cell = Cell(row * 0.25, TableValueType::Real);
        cell.decimals = 2;
        return cell;
    }
    case 2:
        return Cell(row % 3 == 0, TableValueType::Bool);
    case 3:
        return Cell(row, TableValueType::Integer);
    default:
        return TableCellContent();
    }
}

} // namespace

class tst_TableCompactCells : public QObject
{
    Q_OBJECT

private slots:
    void shouldGiveBackTheStoredRecord_data()
    {
        QTest::addColumn<TableCellContent>("cell");
        const QStringList grades { "S235", "S355" };

        QTest::newRow("default") << TableCellContent();
        QTest::newRow("true") << Cell(true, TableValueType::Bool);
        QTest::newRow("false") << Cell(false, TableValueType::Bool);
        QTest::newRow("negative int") << Cell(-42, TableValueType::Integer);
        QTest::newRow("long long") << Cell(qlonglong(1) << 40, TableValueType::Integer);
        QTest::newRow("negative zero") << Cell(-0.0, TableValueType::Real);
        QTest::newRow("nan") << Cell(std::nan(""), TableValueType::Real);
        QTest::newRow("non-ASCII text") << Cell(QStringLiteral("Ångström ø 漢字 😀"), TableValueType::String);
        QTest::newRow("empty text") << Cell(QStringLiteral(""), TableValueType::String);
        QTest::newRow("null text") << Cell(QString(), TableValueType::String);
        QTest::newRow("other variant") << Cell(QDate(2024, 2, 29), TableValueType::Unknown);
        TableCellContent colour = Cell(QStringLiteral("#fc4d4d"), TableValueType::Color);
        colour.text = QStringLiteral("Rot");
        QTest::newRow("colour with name") << colour;
        colour.text = QStringLiteral("");
        QTest::newRow("colour with empty name") << colour;
        TableCellContent list = Cell(QStringLiteral("IPE 200"), TableValueType::List);
        list.allValues = QStringList { "IPE 200", "HEA 300", "Ø 40" };
        QTest::newRow("list") << list;
        TableCellContent named = Cell(1, TableValueType::Integer);
        named.parametersNames = grades;
        named.parametersValues = QVariantList { 0, 1.5 };
        named.parameterIndex = 1;
        QTest::newRow("named value") << named;
        TableCellContent flagged = Cell(3.75, TableValueType::Real);
        flagged.decimals = 0;
        flagged.editable = true;
        flagged.hasAction = true;
        flagged.bold = true;
        flagged.highlightState = TableCellContent::Error;
        flagged.adapterWord1 = -7;
        flagged.adapterWord2 = 9;
        QTest::newRow("every attribute") << flagged;
    }

    void shouldGiveBackTheStoredRecord()
    {
        QFETCH(TableCellContent, cell);
        // Given a bulk of mixed cells
        TableCompactCells cells;
        for (int row = 0; row < TableCompactCells::c_rows; ++row)
            cells.Store(row, Mixed(row));

        // When the cell is stored among them, first as a new cell and then over an old one
        TableCompactCells fresh;
        fresh.Store(7, TableCellContent(cell));
        cells.Store(37, TableCellContent(cell));
        cells.Squeeze();

        // Then both read back as stored, and no neighbour changed
        QCOMPARE(Describe(fresh.Cell(7)), Describe(cell));
        QCOMPARE(Describe(cells.Cell(37)), Describe(cell));
        for (int row = 0; row < TableCompactCells::c_rows; ++row) {
            if (row != 37)
                QCOMPARE(Describe(cells.Cell(row)), Describe(Mixed(row)));
        }
        // Cells below the last one stored that were never stored read as default cells.
        QVERIFY(!fresh.IsFilled(3));
        QCOMPARE(Describe(fresh.Cell(3)), Describe(TableCellContent()));
        QCOMPARE(fresh.Size(), 8);
    }

    void shouldKeepEveryCellThroughManyReplacements()
    {
        // Given a bulk whose cells are replaced again and again, each time with other attributes and
        // texts of other lengths
        TableCompactCells cells;
        std::vector<TableCellContent> expected(TableCompactCells::c_rows);
        for (int round = 0; round < 12; ++round) {
            for (int row = round % 3; row < TableCompactCells::c_rows; row += 3) {
                TableCellContent cell = Cell(QString(row % 11 + round, QChar(u'é')), TableValueType::String);
                cell.highlightState = (row + round) % 4;
                cell.adapterWord1 = round * 1000 + row;
                expected[static_cast<std::size_t>(row)] = cell;
                cells.Store(row, std::move(cell));
            }
        }

        // Then every cell reads back as last stored
        for (int row = 0; row < TableCompactCells::c_rows; ++row)
            QCOMPARE(Describe(cells.Cell(row)), Describe(expected[static_cast<std::size_t>(row)]));
    }
};

QTEST_APPLESS_MAIN(tst_TableCompactCells)
#include "tst_tablecompactcells.moc"
