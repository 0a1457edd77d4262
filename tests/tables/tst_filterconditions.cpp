#include "tables/ExpressionFilterCondition.h"
#include "tables/FilterComparison.h"
#include "tables/FilterConditionFactory.h"
#include "tables/IntervalFilterCondition.h"
#include "tables/NaturalTextOrder.h"
#include "tables/TableCellContent.h"
#include "tables/ValueTextFilterCondition.h"

#include <QRandomGenerator>
#include <QTest>
#include <type_traits>

using namespace Orvo::UI::UIComponents;

Q_DECLARE_METATYPE(TableCellContent)

static_assert(
    std::is_copy_constructible_v<
        ExpressionFilterCondition> && std::is_move_assignable_v<IntervalFilterCondition> && std::is_copy_assignable_v<ValueTextFilterCondition>);

namespace {

TableCellContent Cell(TableValueType type, QVariant value, std::optional<std::int16_t> decimals = {})
{
    TableCellContent cell;
    cell.valueType = type;
    cell.content = std::move(value);
    cell.decimals = decimals;
    return cell;
}

TableCellContent Text(const QString& text)
{
    return Cell(TableValueType::String, text);
}
TableCellContent Integer(int value)
{
    return Cell(TableValueType::Integer, value);
}
TableCellContent Real(double value, std::optional<std::int16_t> decimals = {})
{
    return Cell(TableValueType::Real, value, decimals);
}
TableCellContent Bool(bool value)
{
    return Cell(TableValueType::Bool, value);
}

TableCellContent Color(const QString& hex, const QString& name)
{
    TableCellContent cell = Cell(TableValueType::Color, hex);
    cell.text = name;
    return cell;
}

TableCellContent List(TableValueType type, QStringList names, QVariantList values, int index)
{
    TableCellContent cell = Cell(type, QVariant());
    cell.parametersNames = std::move(names);
    cell.parametersValues = std::move(values);
    cell.parameterIndex = index;
    return cell;
}

enum class Kind
{
    None,
    Interval,
    Expression,
    ValueText,
};

Kind KindOf(const FilterConditionBase* condition)
{
    if (!condition)
        return Kind::None;
    if (dynamic_cast<const IntervalFilterCondition*>(condition))
        return Kind::Interval;
    if (dynamic_cast<const ExpressionFilterCondition*>(condition))
        return Kind::Expression;
    return dynamic_cast<const ValueTextFilterCondition*>(condition) ? Kind::ValueText : Kind::None;
}

} // namespace

class tst_FilterConditions : public QObject
{
    Q_OBJECT

private slots:
    void shouldParseTheFormThatMatchesFirst_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Kind>("kind");
        // clang-format off
        QTest::newRow("empty") << "" << Kind::None;
        QTest::newRow("blanks") << " \t " << Kind::None;
        QTest::newRow("less") << "<5" << Kind::Expression;
        QTest::newRow("two-character operator") << "<=5" << Kind::Expression;
        QTest::newRow("operator alone") << "<" << Kind::ValueText;
        QTest::newRow("two-character operator alone") << ">=" << Kind::ValueText;
        QTest::newRow("equal with operand <5") << "=<5" << Kind::Expression;
        QTest::newRow("continental interval") << "<1;5>" << Kind::Interval;
        QTest::newRow("mixed brackets, padded") << "  <1;5[  " << Kind::Interval;
        QTest::newRow("no closing bracket") << "[1;5" << Kind::ValueText;
        QTest::newRow("three parts") << "[1;2;3]" << Kind::ValueText;
        QTest::newRow("one part after dropping the empty one") << "[;5]" << Kind::ValueText;
        QTest::newRow("malformed interval read as expression") << "<;5>" << Kind::Expression;
        QTest::newRow("comma is no separator") << "[1,5]" << Kind::ValueText;
        QTest::newRow("plain text with wildcard") << "a*" << Kind::ValueText;
        // clang-format on
    }

    void shouldParseTheFormThatMatchesFirst()
    {
        QFETCH(QString, text);
        QFETCH(Kind, kind);
        QCOMPARE(KindOf(FilterConditionFactory::CreateFilterCondition(text).get()), kind);
    }

    void shouldAcceptCellsAsTheFilterTextSays_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<TableCellContent>("cell");
        QTest::addColumn<bool>("accepted");

        // Comparisons: numbers within a whole unit of the last shown decimal.
        // clang-format off
        QTest::newRow("=10 accepts 9 with 0 decimals") << "=10" << Real(9, 0) << true;
        QTest::newRow("=10 accepts 11 with 0 decimals") << "=10" << Real(11, 0) << true;
        QTest::newRow("=10 rejects 12 with 0 decimals") << "=10" << Real(12, 0) << false;
        QTest::newRow("<10 rejects 9 with 0 decimals") << "<10" << Real(9, 0) << false;
        QTest::newRow("<10 accepts 8 with 0 decimals") << "<10" << Real(8, 0) << true;
        QTest::newRow("<>10 rejects 10") << "<>10" << Real(10, 0) << false;
        QTest::newRow("<>5 accepts 6") << "<>5" << Integer(6) << true;
        QTest::newRow(">=5 accepts 5") << ">=5" << Integer(5) << true;
        QTest::newRow(">5 rejects 5") << ">5" << Integer(5) << false;
        QTest::newRow("<=5 accepts 5") << "<=5" << Integer(5) << true;
        QTest::newRow("operand keeps its blank") << "> 5" << Integer(6) << true;
        QTest::newRow("=1,5 decimal comma") << "=1,5" << Real(1.5, 1) << true;
        QTest::newRow("=1.5 compares the shown 1.50") << "=1.5" << Real(1.504, 2) << true;
        QTest::newRow("=1.5 rejects 1.52") << "=1.5" << Real(1.52, 2) << false;
        QTest::newRow("=0.1 without decimals") << "=0.1" << Real(0.1) << true;
        QTest::newRow("exponent") << "=1e3" << Integer(1000) << true;
        QTest::newRow("<10 against text 9") << "<10" << Text("9") << true;
        QTest::newRow("<10 against 10 kN") << "<10" << Text("10 kN") << false;
        QTest::newRow("<=10 against 10 kN") << "<=10" << Text("10 kN") << true;
        QTest::newRow("lenient reading drops the sign") << ">10" << Text("-12 kN") << true;
        QTest::newRow("lenient reading drops the point") << "=5" << Text(".5 m") << true;
        QTest::newRow("<10 against abc compares text") << "<10" << Text("abc") << false;
        QTest::newRow(">10 against abc compares text") << ">10" << Text("abc") << true;
        QTest::newRow("=<5 compares with the text <5") << "=<5" << Text("<5") << true;
        QTest::newRow("=<5 reads 5 when the cell is a number") << "=<5" << Integer(4) << false;
        QTest::newRow("text equality ignores case") << "=abc" << Text(" ABC ") << true;
        QTest::newRow("<=abc accepts abc") << "<=abc" << Text("abc") << true;
        QTest::newRow(">=abc accepts abc") << ">=abc" << Text("abc") << true;
        QTest::newRow("<abc rejects abc") << "<abc" << Text("abc") << false;
        QTest::newRow(">abc rejects abc") << ">abc" << Text("abc") << false;
        QTest::newRow("natural order") << "<item10" << Text("item2") << true;
        QTest::newRow("leading zeros") << "=x007" << Text("X7") << true;
        QTest::newRow("accents folded") << "=Angstrom" << Text("Ångström") << true;
        QTest::newRow("list value compared") << ">=2" << List(TableValueType::List, { "one", "two" }, { 1, 2 }, 1) << true;

        // Intervals.
        QTest::newRow("<1;5> accepts 1") << "<1;5>" << Integer(1) << true;
        QTest::newRow("[1;5] accepts 5") << "[1;5]" << Integer(5) << true;
        QTest::newRow("(1;5) rejects 1") << "(1;5)" << Integer(1) << false;
        QTest::newRow("]1;5[ rejects 5") << "]1;5[" << Integer(5) << false;
        QTest::newRow("]1;5[ accepts 3") << "]1;5[" << Integer(3) << true;
        QTest::newRow("<1;5[ accepts 1") << "<1;5[" << Integer(1) << true;
        QTest::newRow("<1;5[ rejects 5") << "<1;5[" << Integer(5) << false;
        QTest::newRow("[5;1] filters like [1;5]") << "[5;1]" << Integer(1) << true;
        QTest::newRow("[5;1) swaps with flags: 1 exclusive") << "[5;1)" << Integer(1) << false;
        QTest::newRow("[5;1) swaps with flags: 5 inclusive") << "[5;1)" << Integer(5) << true;
        QTest::newRow("decimal commas in bounds") << "[1,5;2,5]" << Real(2, 1) << true;
        QTest::newRow("bounds keep blanks") << "[ 1; 5]" << Integer(5) << true;
        QTest::newRow("shown decimals decide") << "[0;10]" << Real(10.4, 0) << true;
        QTest::newRow("text bounds") << "[a;c]" << Text("B") << true;
        QTest::newRow("text bounds reject") << "[a;c]" << Text("d") << false;

        // Contains-matches.
        QTest::newRow("contains ignoring case") << "abc" << Text("xxABCxx") << true;
        QTest::newRow("contains rejects") << "abc" << Text("ab") << false;
        QTest::newRow("wildcard is a character") << "a*" << Text("ab") << false;
        QTest::newRow("malformed interval as text") << "[1;2;3]" << Text("x[1;2;3]") << true;
        QTest::newRow("operator alone as text") << ">=" << Text("a>=b") << true;
        QTest::newRow("control characters dropped") << "ab" << Text("a\tb") << true;
        QTest::newRow("ø finds o") << "ø" << Text("Ole") << true;
        QTest::newRow("Ø finds Ø") << "Ø" << Text("Øresund") << true;
        QTest::newRow("number as shown") << "2.50" << Real(2.5, 2) << true;
        QTest::newRow("number with comma") << "1,5" << Real(1.5, 2) << true;
        QTest::newRow("number is case-sensitive text") << "2.50" << Integer(25) << false;
        QTest::newRow("integer contains number") << "25" << Integer(125) << true;
        QTest::newRow("text on a number cell") << "k" << Integer(42) << false;
        QTest::newRow("bool: text finds none") << "yes" << Bool(true) << false;
        QTest::newRow("bool: 1 finds checked") << "1" << Bool(true) << true;
        QTest::newRow("bool: 1 skips unchecked") << "1" << Bool(false) << false;
        QTest::newRow("bool: 0.0 finds unchecked") << "0.0" << Bool(false) << true;
        QTest::newRow("bool: 2 finds checked") << "2" << Bool(true) << true;
        QTest::newRow("bool by its list text") << "Yes" << List(TableValueType::Bool, { "Yes", "No" }, { true, false }, 0) << true;
        QTest::newRow("list text") << "TWO" << List(TableValueType::List, { "one", "two" }, { 1, 2 }, 1) << true;
        QTest::newRow("list index past the list") << "x" << List(TableValueType::List, { "x" }, { "x" }, 3) << false;
        QTest::newRow("list index at the list's size") << "x" << List(TableValueType::List, { "x" }, { "x" }, 1) << false;
        QTest::newRow("colour by name") << "whi" << Color("#ffffff", "White") << true;
        QTest::newRow("colour never by value") << "ff" << Color("#ffffff", "White") << false;
        QTest::newRow("colour name folded") << "grun" << Color("#55c388", "Grün") << true;
        QTest::newRow("colour without name") << "f" << Color("#ffffff", QString()) << false;
        // clang-format on
    }

    void shouldAcceptCellsAsTheFilterTextSays()
    {
        QFETCH(QString, filter);
        QFETCH(TableCellContent, cell);
        QFETCH(bool, accepted);
        const auto condition = FilterConditionFactory::CreateFilterCondition(filter);
        QVERIFY(condition);
        QCOMPARE(condition->Evaluate(cell), accepted);
    }

    void shouldTellTextsThatLookLikeAConditionButAreNone_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("malformed");
        QTest::newRow("comparison") << "<=5" << false;
        QTest::newRow("comparison with blanks") << " > 5 " << false;
        QTest::newRow("interval") << "[1;5)" << false;
        QTest::newRow("plain text") << "S355" << false;
        QTest::newRow("blank") << "  " << false;
        QTest::newRow("operators only") << "<<<" << true;
        QTest::newRow("an opening bracket") << "[" << true;
        QTest::newRow("unfinished interval") << "[1;5" << true;
        QTest::newRow("three bounds") << "[1;2;3]" << true;
        QTest::newRow("operator without operand") << ">=" << true;
        QTest::newRow("= followed by an operator") << "=<5" << true;
    }

    void shouldTellTextsThatLookLikeAConditionButAreNone()
    {
        QFETCH(QString, text);
        QFETCH(bool, malformed);
        QCOMPARE(FilterConditionFactory::IsMalformed(text), malformed);
    }

    void shouldReadNumbersWithEitherDecimalMark_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("allowTrailing");
        QTest::addColumn<std::optional<double>>("number");
        // clang-format off
        QTest::newRow("comma") << "1,5" << false << std::optional(1.5);
        QTest::newRow("leading blank") << " 2" << false << std::optional(2.0);
        QTest::newRow("trailing blank") << "2 " << false << std::optional<double>();
        QTest::newRow("trailing text allowed") << "12,5 kN" << true << std::optional(12.5);
        QTest::newRow("two marks") << "1,000.5" << false << std::optional<double>();
        QTest::newRow("out of range") << "1e999" << false << std::optional<double>();
        QTest::newRow("nothing") << "" << true << std::optional<double>();
        QTest::newRow("text") << "abc" << true << std::optional<double>();
        QTest::newRow("longer than a cell text") << QString(100, u'0') + "7" << false << std::optional(7.0);
        // clang-format on
    }

    void shouldReadNumbersWithEitherDecimalMark()
    {
        QFETCH(QString, text);
        QFETCH(bool, allowTrailing);
        QFETCH(std::optional<double>, number);
        QCOMPARE(FilterComparison::ReadNumber(text.toStdWString(), allowTrailing), number);
    }

    void shouldOrderTextsNaturally_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("order"); // -1: a before b, 0: neither, 1: b before a
        // clang-format off
        QTest::newRow("shorter number first") << "item2" << "item10" << -1;
        QTest::newRow("case ignored") << "ABC" << "abc" << 0;
        QTest::newRow("z upper-cased like every letter") << "zeta" << "ZETA" << 0;
        QTest::newRow("z as Z sorts before _") << "z" << "_" << -1;
        QTest::newRow("case ignored beyond ASCII") << "жук" << "ЖУК" << 0;
        QTest::newRow("leading zeros ignored") << "007" << "7" << 0;
        QTest::newRow("after equal numbers") << "x007y" << "x7z" << -1;
        QTest::newRow("longer than any integer") << "12345678901234567890" << "12345678901234567891" << -1;
        QTest::newRow("digits before letters") << "1abc" << "abc" << -1;
        QTest::newRow("prefix first") << "a" << "a1" << -1;
        QTest::newRow("empty first") << "" << "a" << -1;
        QTest::newRow("both empty") << "" << "" << 0;
        QTest::newRow("blank before letter") << "a b" << "ab" << -1;
        // clang-format on
    }

    void shouldOrderTextsNaturally()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, order);
        QCOMPARE(NaturalTextOrder::Before(a.toStdWString(), b.toStdWString()), order < 0);
        QCOMPARE(NaturalTextOrder::Before(b.toStdWString(), a.toStdWString()), order > 0);
    }

    void shouldNeverFailOnArbitraryText()
    {
        const QString alphabet = QStringLiteral("<>=[]();,. -+e0159aZøÅ\u0301\u0000\t*");
        // Among them cells a host should not deliver: negative decimals, a list index past the list.
        const std::vector<TableCellContent> cells { Text("abc"),
                                                    Integer(3),
                                                    Real(2.5, 1),
                                                    Real(2.5, -3),
                                                    Real(-1e300),
                                                    Bool(true),
                                                    Color("#000000", "Black"),
                                                    List(TableValueType::List, { "a" }, { 1 }, 0),
                                                    List(TableValueType::Bool, { "a" }, {}, 5),
                                                    {} };
        QRandomGenerator random(42);
        int accepted = 0;
        for (int i = 0; i < 3000; ++i) {
            QString text;
            for (int length = random.bounded(8); length > 0; --length)
                text += alphabet.at(random.bounded(int(alphabet.size())));
            const auto condition = FilterConditionFactory::CreateFilterCondition(text);
            QCOMPARE(condition == nullptr, text.trimmed().isEmpty());
            for (const TableCellContent& cell : cells) {
                if (condition)
                    accepted += condition->Evaluate(cell) ? 1 : 0;
            }
        }
        QVERIFY(accepted > 0);
    }
};

QTEST_GUILESS_MAIN(tst_FilterConditions)
#include "tst_filterconditions.moc"
