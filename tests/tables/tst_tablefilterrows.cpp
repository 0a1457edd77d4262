#include "TableTestData.h"
#include "TableTestFeeder.h"
#include "tables/FilterBarModel.h"
#include "tables/FilterConditionFactory.h"
#include "tables/FilterTextScan.h"
#include "tables/TableContentModel.h"
#include "tables/TableFilterRows.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::TestData;

namespace {

// Texts that fold in every way a search meets: accents, letters without a decomposition, case
// folding that leaves Latin-1 (µ, K as the Kelvin sign), ligatures, surrogate pairs, blanks.
const QStringList c_texts {
    QStringLiteral("Kalina"),
    QStringLiteral("KAL-12"),
    QStringLiteral(" kal "),
    QStringLiteral("Kälte"),
    QStringLiteral("Straße"),
    QStringLiteral("µm"),
    QStringLiteral("ΣΊΣΥΦΟΣ"),
    QStringLiteral("σίσυφος"),
    QStringLiteral("\u212Aelvin"),
    QStringLiteral("\uFB01le"),
    QStringLiteral("Øre"),
    QStringLiteral("x\U0001F600y"),
    QStringLiteral("–12,5 kN"),
    QStringLiteral("12.5"),
    QStringLiteral("-3"),
    QStringLiteral("1e+06"),
    QString(),
    QStringLiteral(""),
    QStringLiteral("ab"),
    QStringLiteral("0"),
};

const double c_nan = std::numeric_limits<double>::quiet_NaN();
const double c_infinity = std::numeric_limits<double>::infinity();
const std::vector<double> c_reals { 0.0,        -0.0,        2.345,    2.355, -2.345, 12.5,
                                    -12.5,      1e6,         999.9999, 0.125, 1e-9,   c_nan,
                                    c_infinity, -c_infinity, 100.0,    250.5, -1000.0 };

// A cell of the column's type, drawn at random from values that stress each type.
TableCellContent RandomCell(TableValueType type, QRandomGenerator& random)
{
    const auto pick = [&](const auto& values) { return values[random.bounded(int(values.size()))]; };
    switch (type) {
    case TableValueType::Integer: {
        TableCellContent cell = Cell(random.bounded(-50, 5000), type);
        if (random.bounded(8) == 0)
            cell.content = pick(c_texts); // a feeder sending text for a number
        return cell;
    }
    case TableValueType::Real: {
        TableCellContent cell = Cell(pick(c_reals) * (random.bounded(2) ? 1.0 : random.bounded(100.0)), type);
        const int decimals = random.bounded(-1, 4);
        if (decimals >= 0)
            cell.decimals = static_cast<std::int16_t>(decimals);
        return cell;
    }
    case TableValueType::Bool: {
        const QVariant values[] = { true, false, QVariant(), 1, QStringLiteral("yes") };
        return Cell(values[random.bounded(5)], type);
    }
    case TableValueType::List: {
        static const QStringList names { "Stahl", "Beton C30/37", "Öl", "Holz" };
        return Parameter(names, random.bounded(-1, 6)); // also past the list's end
    }
    case TableValueType::Color: {
        TableCellContent cell = Cell(random.bounded(0xFFFFFF), type);
        if (random.bounded(3) != 0)
            cell.text = pick(QStringList { "Rot", "Grün", "Blau", "Ölgelb" });
        return cell;
    }
    default: {
        TableCellContent cell = Cell(
            pick(c_texts) + (random.bounded(2) ? QString::number(random.bounded(100)) : QString()), type);
        if (random.bounded(10) == 0)
            cell.valueType = TableValueType::Unknown;
        return cell;
    }
    }
}

const std::vector<TableValueType> c_types { TableValueType::String, TableValueType::Integer,
                                            TableValueType::Real,   TableValueType::Bool,
                                            TableValueType::List,   TableValueType::Color };

struct GeneratedTable
{
    // Columns of every type; rows reach into a last bulk that is not full.
    explicit GeneratedTable(int rowCount, quint32 seed = 21)
        : feeder(model)
        , sourceTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
        , filterTester(model.contentFilterModel(), QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        QRandomGenerator random(seed);
        std::vector<TableColumn> columns;
        for (TableValueType type : c_types)
            columns.push_back(Column(QStringLiteral("c%1").arg(int(type)), type));
        std::vector<std::vector<TableCellContent>> rows(static_cast<std::size_t>(rowCount));
        for (auto& row : rows) {
            for (TableValueType type : c_types)
                row.push_back(RandomCell(type, random));
        }
        feeder.SetTable(std::move(columns), std::move(rows));
        feeder.Load();
        model.setFilterBarModel(&filterBar);
    }

    void SetFilter(int column, const QString& text)
    {
        filterBar.setData(filterBar.index(column), text, FilterBarModel::ConditionTextRole);
    }

    // The source rows the filter model shows.
    QList<int> Shown() const
    {
        QList<int> rows;
        const TableContentFilterModel* filter = model.contentFilterModel();
        for (int row = 0; row < filter->rowCount(); ++row)
            rows.append(filter->mapToSource(filter->index(row, 0)).row());
        return rows;
    }

    // The source rows whose cells pass every filter text, each cell asked on its own.
    QList<int> PassingCellByCell(const std::vector<std::pair<int, QString>>& filters) const
    {
        std::vector<std::pair<int, std::unique_ptr<FilterConditionBase>>> conditions;
        for (const auto& [column, text] : filters)
            conditions.emplace_back(column, FilterConditionFactory::CreateFilterCondition(text));
        QList<int> rows;
        for (int row = 0; row < model.rowCountSubmitted(); ++row) {
            bool passes = true;
            for (const auto& [column, condition] : conditions)
                passes = passes && (!condition || condition->Evaluate(model.GetCell(row, column)));
            if (passes)
                rows.append(row);
        }
        return rows;
    }

    TableContentModel model;
    TableTestFeeder feeder;
    FilterBarModel filterBar;
    QAbstractItemModelTester sourceTester;
    QAbstractItemModelTester filterTester;
};

constexpr int c_rowsPerPart = TableFilterRows::c_bulksPerPart * GridContentIndex::c_rowsCountBulk;

int ColumnOf(TableValueType type)
{
    return int(std::find(c_types.begin(), c_types.end(), type) - c_types.begin());
}

// Folded texts of one bulk laid out as the fold lays them out.
FilterFoldedBulk::Texts BulkOf(const QStringList& texts)
{
    FilterFoldedBulk::Texts bulk;
    for (const QString& text : texts)
        bulk.latin1 = bulk.latin1
            && std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x100; });
    std::uint32_t position = 0;
    for (int row = 0; row <= FilterFoldedBulk::c_rows; ++row) {
        bulk.offsets[std::size_t(row)] = position;
        if (row >= texts.size())
            continue;
        for (QChar c : texts[row]) {
            if (bulk.latin1)
                bulk.latin1Text.push_back(std::uint8_t(c.unicode()));
            else
                bulk.utf16Text.push_back(c.unicode());
        }
        position += std::uint32_t(texts[row].size());
    }
    return bulk;
}

} // namespace

class tst_TableFilterRows : public QObject
{
    Q_OBJECT

private slots:
    // Tables of a few parts take the paths of large tables, quickly enough for the race checker.
    void initTestCase() { TableFilterRows::SetRowsJudgedOnOneThread(c_rowsPerPart / 2); }
    void cleanupTestCase() { TableFilterRows::SetRowsJudgedOnOneThread(100'000); }

    void shouldShowWhatEachCellSaysForItself_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        const auto add = [](TableValueType type, const char* text) {
            QTest::addRow("%d %s", int(type), text) << int(type) << QString::fromUtf8(text);
        };
        for (const char* text :
             { "kal", "KAL", "al", "a", "ä", "ss", "straße", "µ", "μm", "σίσυφος", "kelvin", "fi",
               "\xF0\x9F\x98\x80", "12", "-3", "12,5", "1e+06", "\xCC\x81" })
            add(TableValueType::String, text);
        for (const char* text : { "12", "-4", "0", "1e6", "<100", ">=-20", "<>7", "=42", "[10;200)",
                                  "<-50;0>", "(abc;kal]", "> kal" })
            add(TableValueType::Integer, text);
        for (const char* text :
             { "2.35", "2,34", "12.5", "-12", "<=2.345", "<2.35", "=2.35", "<>0", ">-1e300", "[-12.5;12.5]",
               "(0;1000)", "<-0.001;100>", "[5;1)", "nan", "inf", "=nan", "<inf", ">a", "e" })
            add(TableValueType::Real, text);
        for (const char* text : { "1", "0", "2", "yes", "tr", "<1" })
            add(TableValueType::Bool, text);
        for (const char* text : { "ol", "st", "c30", "1", "<2", "[0;2]" })
            add(TableValueType::List, text);
        for (const char* text : { "rot", "ol", "gr", "1", "<5" })
            add(TableValueType::Color, text);
    }

    void shouldShowWhatEachCellSaysForItself()
    {
        QFETCH(int, type);
        QFETCH(QString, text);
        GeneratedTable table(1234);
        const int column = ColumnOf(TableValueType(type));
        table.SetFilter(column, text);
        QCOMPARE(table.Shown(), table.PassingCellByCell({ { column, text } }));
    }

    void shouldCombineTheFiltersOfSeveralColumns_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("real");
        QTest::addColumn<QString>("check");
        QTest::newRow("text and range") << "a"
                                        << "[0;50]"
                                        << "";
        QTest::newRow("all three") << "k"
                                   << ">-10"
                                   << "1";
        QTest::newRow("nothing passes the first") << "zzzz"
                                                  << "<5"
                                                  << "0";
    }

    void shouldCombineTheFiltersOfSeveralColumns()
    {
        QFETCH(QString, text);
        QFETCH(QString, real);
        QFETCH(QString, check);
        GeneratedTable table(777);
        const int textColumn = ColumnOf(TableValueType::String);
        const int realColumn = ColumnOf(TableValueType::Real);
        const int checkColumn = ColumnOf(TableValueType::Bool);
        table.SetFilter(textColumn, text);
        table.SetFilter(realColumn, real);
        table.SetFilter(checkColumn, check);
        QCOMPARE(
            table.Shown(),
            table.PassingCellByCell({ { textColumn, text }, { realColumn, real }, { checkColumn, check } }));
    }

    void shouldFollowATextTypedLetterByLetter_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::newRow("growing") << QStringList { "k", "ka", "kal", "kali" };
        QTest::newRow("growing then shrinking") << QStringList { "s", "st", "str", "st", "s" };
        QTest::newRow("a number, then text") << QStringList { "1", "12", "12a", "12" };
        QTest::newRow("replaced") << QStringList { "ka", "lo", "kal" };
    }

    void shouldFollowATextTypedLetterByLetter()
    {
        QFETCH(QStringList, typed);
        GeneratedTable table(1500);
        const int column = ColumnOf(TableValueType::String);
        table.SetFilter(ColumnOf(TableValueType::Real), QStringLiteral(">0"));
        for (const QString& text : typed) {
            table.SetFilter(column, text);
            QCOMPARE(table.Shown(),
                     table.PassingCellByCell({ { ColumnOf(TableValueType::Real), ">0" }, { column, text } }));
        }
    }

    void shouldFilterCellsTheFeederChangedSince()
    {
        // Given a filtered table whose folded texts are kept
        GeneratedTable table(450);
        const int column = ColumnOf(TableValueType::String);
        table.SetFilter(column, QStringLiteral("zebra"));
        QVERIFY(table.Shown().isEmpty());

        // When the feeder delivers new content for a few rows of one bulk
        std::vector<TableCellContent> cells;
        for (int row = 0; row < 3; ++row)
            cells.push_back(Cell(QStringLiteral("Zebra %1").arg(row), TableValueType::String));
        table.model.SetColumnsContent(
            201, { TableColumnContent { QStringLiteral("c%1").arg(int(TableValueType::String)), cells } });
        table.SetFilter(column, QStringLiteral("zebr"));

        // Then the filter finds them
        QCOMPARE(table.Shown(), (QList<int> { 201, 202, 203 }));
    }

    void shouldAskForAColumnOnlyWhenARowNeedsIt()
    {
        // Given a table no one has looked at
        GeneratedTable table(300);
        table.model.SetRowCount(300);
        table.feeder.requests.clear();

        // When filtering two columns, the first of which lets nothing through
        table.SetFilter(ColumnOf(TableValueType::String), QStringLiteral("nothing like this"));
        table.SetFilter(ColumnOf(TableValueType::Real), QStringLiteral(">0"));
        QVERIFY(table.Shown().isEmpty());

        // Then only the first column was asked for, once, and whole
        QCOMPARE(table.feeder.requests.size(), std::size_t(1));
        QCOMPARE(table.feeder.requests.front().count, 300);
        QCOMPARE(table.feeder.requests.front().ids,
                 std::vector<QString> { QStringLiteral("c%1").arg(int(TableValueType::String)) });
    }

    void shouldJudgeLargeTablesInParts_data()
    {
        QTest::addColumn<QStringList>("realFilters");
        QTest::addColumn<QString>("textFilter");
        QTest::newRow("one range") << QStringList { "[-50;50)" } << QString();
        QTest::newRow("a range and a text") << QStringList { "<-0.001;100>" } << "a";
        QTest::newRow("narrowed step by step") << QStringList { ">-100", ">-10", ">0", ">=12.5" } << "k";
        QTest::newRow("nothing passes") << QStringList { "<-1e300" } << QString();
    }

    void shouldJudgeLargeTablesInParts()
    {
        // More rows than one thread judges: the parts must meet without losing or doubling a row,
        // whether the filter model judged them while its proxy asked or before.
        QFETCH(QStringList, realFilters);
        QFETCH(QString, textFilter);
        const int rows = 4 * c_rowsPerPart + 2 * GridContentIndex::c_rowsCountBulk + 17;
        GeneratedTable table(rows, 5);
        const int realColumn = ColumnOf(TableValueType::Real);
        const int textColumn = ColumnOf(TableValueType::String);
        if (!textFilter.isEmpty())
            table.SetFilter(textColumn, textFilter);
        for (const QString& filter : realFilters) {
            table.SetFilter(realColumn, filter);
            QCOMPARE(table.Shown(),
                     table.PassingCellByCell({ { realColumn, filter }, { textColumn, textFilter } }));
        }
    }

    void shouldAnswerRowsAskedInAnyOrderWhileJudging_data()
    {
        QTest::addColumn<QString>("order");
        QTest::newRow("first to last") << "forward";
        QTest::newRow("last to first") << "backward";
        QTest::newRow("at random") << "random";
        QTest::newRow("none, then joined") << "none";
    }

    void shouldAnswerRowsAskedInAnyOrderWhileJudging()
    {
        // Given a large table with its columns delivered
        QFETCH(QString, order);
        const int rows = 3 * c_rowsPerPart + 41;
        GeneratedTable table(rows, 8);
        const int realColumn = ColumnOf(TableValueType::Real);
        const int textColumn = ColumnOf(TableValueType::String);
        for (int column : { realColumn, textColumn })
            table.model.GetFilledCell(0, column, TableContentModel::ContentRequest::WholeColumn);
        const auto range = FilterConditionFactory::CreateFilterCondition(QStringLiteral("[0;50]"));
        const auto text = FilterConditionFactory::CreateFilterCondition(QStringLiteral("al"));
        const std::vector<TableFilterRows::Condition> conditions {
            { realColumn, QStringLiteral("real"), range.get() },
            { textColumn, QStringLiteral("text"), text.get() }
        };
        std::vector<bool> passing(static_cast<std::size_t>(rows));
        for (int row : table.PassingCellByCell({ { realColumn, "[0;50]" }, { textColumn, "al" } }))
            passing[static_cast<std::size_t>(row)] = true;

        // When the rows are judged while they are asked
        TableFilterRows judgedWhileAsked;
        judgedWhileAsked.Compute(table.model, conditions, TableFilterRows::Asking::InOrder);
        std::vector<int> asked(static_cast<std::size_t>(rows));
        std::iota(asked.begin(), asked.end(), 0);
        if (order == "backward")
            std::reverse(asked.begin(), asked.end());
        else if (order == "random")
            std::shuffle(asked.begin(), asked.end(), std::mt19937(4));
        else if (order == "none")
            asked.clear();
        for (int row : asked)
            QCOMPARE(judgedWhileAsked.Accepts(row), bool(passing[static_cast<std::size_t>(row)]));
        judgedWhileAsked.Join();

        // Then every answer is what the cells say for themselves
        for (int row = 0; row < rows; ++row) {
            if (judgedWhileAsked.Accepts(row) != passing[static_cast<std::size_t>(row)])
                QFAIL(qPrintable(QStringLiteral("row %1 differs").arg(row)));
        }
        QVERIFY(judgedWhileAsked.IsCurrent(table.model));
    }

    void shouldJudgeAtOnceWhatIsNotDeliveredYet()
    {
        // Given a large table no one has looked at, and one that is filtered while the proxy asks
        const int rows = TableFilterRows::RowsJudgedOnOneThread() + 250;
        GeneratedTable table(rows, 13);
        table.model.SetRowCount(rows);
        table.feeder.requests.clear();
        const int textColumn = ColumnOf(TableValueType::String);

        // When a filter is set on a column whose cells are not delivered
        table.SetFilter(textColumn, QStringLiteral("k"));

        // Then the column is asked for once, on this thread, and the rows judged as cell by cell
        QCOMPARE(table.feeder.requests.size(), std::size_t(1));
        QCOMPARE(table.Shown(), table.PassingCellByCell({ { textColumn, "k" } }));
    }

    void shouldScanLikeAPlainSearch_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("searched");
        const QStringList latin1 {
            "kalina", "akal", "",     "kakal", "lak", "ka", "l", "kal", "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxkal",
            "kaxl",   "k",    "äkal", "kalkal"
        };
        const QStringList utf16 { "καλ", "kal", "σίσυφος", "x\U0001F600kal", "", "ka\u0142", "kal\u03BC" };
        for (const char* searched : { "k", "kal", "ka", "al", "kalkal", "xxxxxxxxxxxxxxxxxxxxkal", "ä" })
            QTest::addRow("latin-1 %s", searched) << latin1 << QString::fromUtf8(searched);
        for (const char* searched : { "kal", "ί", "\xF0\x9F\x98\x80", "\xC5\x82", "μ", "k" })
            QTest::addRow("utf-16 %s", searched) << utf16 << QString::fromUtf8(searched);
    }

    void shouldScanLikeAPlainSearch()
    {
        QFETCH(QStringList, texts);
        QFETCH(QString, searched);
        // Rows shuffled into a full bulk, so that matches fall at every place of a vector step.
        QRandomGenerator random(3);
        QStringList rows;
        for (int row = 0; row < FilterFoldedBulk::c_rows; ++row)
            rows.append(texts[random.bounded(int(texts.size()))]);
        const FilterFoldedBulk::Texts bulk = BulkOf(rows);
        BulkRows candidates;
        BulkRows expected;
        for (int row = 0; row < rows.size(); ++row) {
            candidates.set(std::size_t(row), random.bounded(4) != 0);
            expected.set(std::size_t(row), candidates.test(std::size_t(row)) && rows[row].contains(searched));
        }
        const FilterSearchText text(searched);
        QCOMPARE(FilterTextScan::Containing(bulk, int(rows.size()), text, candidates), expected);
        QCOMPARE(FilterTextScan::ContainingPlainly(bulk, int(rows.size()), text, candidates), expected);
    }
};

QTEST_GUILESS_MAIN(tst_TableFilterRows)
#include "tst_tablefilterrows.moc"
