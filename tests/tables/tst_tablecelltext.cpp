#include "TestHost.h"
#include "tables/TableCellText.h"

#include <QRegularExpression>
#include <QTest>

using namespace Orvo::UI::UIComponents;

Q_DECLARE_METATYPE(Orvo::UI::UIComponents::TableCellContent)

namespace {

TableCellContent Named(const QStringList& names, int index)
{
    TableCellContent cell;
    cell.content = names.value(index);
    cell.parametersNames = names;
    cell.parameterIndex = index;
    return cell;
}

} // namespace

// The numbers run in the C locale: the host's number settings say "." unless the user chose otherwise.
class tst_TableCellText : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_services = m_host.StartServices(); }

    void shouldConvertTypedText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("reason"); // when expected is null
        const int integer = int(TableValueType::Integer);
        const int real = int(TableValueType::Real);
        const int boolean = int(TableValueType::Bool);
        const QStringList none;
        QTest::newRow("integer expression") << "2*3" << integer << none << ""
                                            << "6"
                                            << "";
        QTest::newRow("integer as typed") << " 42 " << integer << none << ""
                                          << "42"
                                          << "";
        QTest::newRow("largest integer") << "2147483647" << integer << none << ""
                                         << "2147483647"
                                         << "";
        QTest::newRow("fraction in an integer cell is refused, not rounded")
            << "2,6" << integer << none << "" << QString() << "2.6 is not a whole number";
        QTest::newRow("fractional expression in an integer cell")
            << "=7/2" << integer << none << "" << QString() << "3.5 is not a whole number";
        QTest::newRow("beyond what the host holds")
            << "1e20" << integer << none << "" << QString() << "1e20 is outside -2147483648 … 2147483647";
        QTest::newRow("not a number") << "abc" << integer << none << "" << QString() << "abc is not a number";
        QTest::newRow("real as typed, decimal comma") << "1,5" << real << none << ""
                                                      << "1,5"
                                                      << "";
        QTest::newRow("expression led by =, decimal comma") << "=2*1,5" << real << none << ""
                                                            << "3"
                                                            << "";
        QTest::newRow("expression with a unit, no column unit") << "2500mm" << real << none << ""
                                                                << "2.5"
                                                                << "";
        QTest::newRow("invalid expression")
            << "=2+" << real << none << "" << QString() << "Invalid expression";
        QTest::newRow("= alone is nothing") << "=" << real << none << "" << QString() << "";
        QTest::newRow("units converted into the column's") << "=30cm" << real << none << "mm"
                                                           << "300"
                                                           << "";
        QTest::newRow("no units: read in the column's") << "=2*150" << real << none << "mm"
                                                        << "300"
                                                        << "";
        QTest::newRow("plain number in a column with a unit") << "2,5" << real << none << "m"
                                                              << "2,5"
                                                              << "";
        QTest::newRow("a unit of another quantity")
            << "=5kN" << real << none << "m" << QString() << "kN is a force; this field takes a length";
        QTest::newRow("same without =")
            << "5kN" << real << none << "m" << QString() << "kN is a force; this field takes a length";
        QTest::newRow("words with a unit are no number")
            << "abc" << real << none << "m" << QString() << "abc is not a number";
        QTest::newRow("named value, any case, as written")
            << "fREE" << boolean << QStringList { "Fixed", "Free" } << ""
            << "fREE"
            << "";
        QTest::newRow("bool number takes the first name")
            << "1" << boolean << QStringList { "Yes", "No" } << ""
            << "Yes"
            << "";
        QTest::newRow("bool zero takes the second name")
            << "0" << boolean << QStringList { "Yes", "No" } << ""
            << "No"
            << "";
        QTest::newRow("bool without names") << "5" << boolean << none << ""
                                            << "1"
                                            << "";
        QTest::newRow("text stays text") << "abc" << int(TableValueType::String) << none << ""
                                         << "abc"
                                         << "";
    }

    void shouldConvertTypedText()
    {
        QFETCH(QString, text);
        QFETCH(int, type);
        QFETCH(QStringList, names);
        QFETCH(QString, unit);
        QFETCH(QString, expected);
        QFETCH(QString, reason);
        const TableCellText::Reading reading
            = TableCellText::ReadTyped(text, TableValueType(type), names, TableNumberText(), unit);
        QCOMPARE(reading.value.isNull(), expected.isNull());
        QCOMPARE(reading.value, expected);
        QCOMPARE(reading.reason, reason);
    }

    void shouldRefuseIntegersTheHostCannotHold_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("exponent") << "1e20";
        QTest::newRow("expression") << "=10^19";
        QTest::newRow("twenty digits") << "12345678901234567890";
        QTest::newRow("one past the largest") << "2147483648";
        QTest::newRow("one below the smallest") << "-2147483649";
    }

    void shouldRefuseIntegersTheHostCannotHold()
    {
        QFETCH(QString, text);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("outside the integer range"));
        const QString value
            = TableCellText::CreateContentUpdateValue(text, TableValueType::Integer, {}, TableNumberText());
        QVERIFY2(value.isNull(), qPrintable(value));
    }

    void shouldShowWhatACellHolds_data()
    {
        QTest::addColumn<TableCellContent>("cell");
        QTest::addColumn<int>("type");
        QTest::addColumn<QVariant>("pending");
        QTest::addColumn<QString>("expected");
        TableCellContent length;
        length.content = 1.5;
        length.decimals = 3;
        TableCellContent plain;
        plain.content = 0.1 + 0.2;
        TableCellContent blue;
        blue.content = QStringLiteral("#0021f5");
        blue.text = QStringLiteral("Blue");
        TableCellContent yesNo = Named({ "Yes", "No" }, 1);
        yesNo.content = false;
        yesNo.parameterIndex = -1;
        TableCellContent check;
        check.content = true;
        const int real = int(TableValueType::Real);
        QTest::newRow("real with its decimals") << length << real << QVariant() << "1.500";
        QTest::newRow("real without decimals: the edit form") << plain << real << QVariant() << "0.3";
        QTest::newRow("pending real") << length << real << QVariant(QStringLiteral("2")) << "2.000";
        QTest::newRow("tiny negative shows no sign") << length << real << QVariant(-0.0001) << "0.000";
        QTest::newRow("colour by its name") << blue << int(TableValueType::Color) << QVariant() << "Blue";
        QTest::newRow("pending colour by its value")
            << blue << int(TableValueType::Color) << QVariant(QStringLiteral("#000000")) << "#000000";
        QTest::newRow("named value in use")
            << Named({ "S235", "S355" }, 1) << int(TableValueType::List) << QVariant() << "S355";
        QTest::newRow("pending named value, any case")
            << Named({ "S235", "S355" }, 1) << int(TableValueType::List) << QVariant(QStringLiteral("s235"))
            << "S235";
        QTest::newRow("check box with named states")
            << yesNo << int(TableValueType::Bool) << QVariant() << "No";
        QTest::newRow("pending check box state")
            << yesNo << int(TableValueType::Bool) << QVariant(QStringLiteral("1")) << "Yes";
        QTest::newRow("plain check box: no text") << check << int(TableValueType::Bool) << QVariant() << "";
    }

    void shouldShowWhatACellHolds()
    {
        QFETCH(TableCellContent, cell);
        QFETCH(int, type);
        QFETCH(QVariant, pending);
        QFETCH(QString, expected);
        QCOMPARE(TableCellText::DisplayText(cell, TableValueType(type), TableNumberText(), pending),
                 expected);
    }

    void shouldRecogniseTheValueACellHolds_data()
    {
        QTest::addColumn<TableCellContent>("cell");
        QTest::addColumn<int>("type");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("cached");
        TableCellContent length;
        length.content = 2.5;
        TableCellContent fixed;
        fixed.content = true;
        const int real = int(TableValueType::Real);
        QTest::newRow("same number") << length << real << QVariant(2.5) << true;
        QTest::newRow("same number as text") << length << real << QVariant(QStringLiteral("2.5")) << true;
        QTest::newRow("another number") << length << real << QVariant(QStringLiteral("2.6")) << false;
        QTest::newRow("name in another case") << Named({ "Fixed", "Free" }, 1) << int(TableValueType::Bool)
                                              << QVariant(QStringLiteral("FREE")) << true;
        QTest::newRow("the other name") << Named({ "Fixed", "Free" }, 1) << int(TableValueType::Bool)
                                        << QVariant(QStringLiteral("Fixed")) << false;
        QTest::newRow("check box as 1")
            << fixed << int(TableValueType::Bool) << QVariant(QStringLiteral("1")) << true;
    }

    void shouldRecogniseTheValueACellHolds()
    {
        QFETCH(TableCellContent, cell);
        QFETCH(int, type);
        QFETCH(QVariant, value);
        QFETCH(bool, cached);
        QCOMPARE(TableCellText::IsCachedValue(cell, value, TableValueType(type)), cached);
    }

private:
    TestHost m_host;
    std::shared_ptr<Orvo::Kernel::Framework::ServiceCatalog> m_services;
};

QTEST_GUILESS_MAIN(tst_TableCellText)
#include "tst_tablecelltext.moc"
