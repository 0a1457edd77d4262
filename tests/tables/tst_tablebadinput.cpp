#include "TableFixture.h"
#include "tables/TableContentFilterModel.h"
#include "tables/TableSelectionModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <functional>
#include <stdexcept>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::TestData;

namespace {

// Everything a bad input could disturb, in one comparable text: the shape of the table, every
// cell's value, every column's width and the edits waiting for the host.
QStringList Snapshot(const TableContentModel& model)
{
    QStringList state { QStringLiteral("rows %1 columns %2").arg(model.rowCount()).arg(model.columnCount()) };
    for (int column = 0; column < model.columnCount(); ++column)
        state << QStringLiteral("width %1 = %2").arg(column).arg(model.columnWidth(column));
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << model.data(model.index(row, column), TableContentModel::ContentRole).toString();
        state << cells.join(QLatin1Char('|'));
    }
    for (const auto& [row, values] : model.GetPendingUpdate().GetRows()) {
        for (const auto& [column, value] : values)
            state << QStringLiteral("pending %1,%2 = %3").arg(row).arg(column).arg(value.toString());
    }
    return state;
}

TableColumnContent Content(const QString& columnId, int cells)
{
    return { columnId,
             std::vector<TableCellContent>(std::size_t(cells),
                                           Cell(QStringLiteral("bad"), TableValueType::String)) };
}

void Paste(TableFixture& fixture, int row, int column, const QString& text)
{
    fixture.SelectShown(row, column);
    QGuiApplication::clipboard()->setText(text);
    fixture.model.pasteFromClipboard();
}

struct BadInput
{
    const char* name;
    std::function<void(TableFixture&)> apply;
    // What the caller is told: an exception's text, or a warning matched as a pattern; empty for
    // input that is ignored without a word.
    QString thrown;
    QString warning;
};

// Each starts from a table of three members (name, count, length, material, read-only mark) with
// one edit already waiting for the host, which none of them may lose.
const std::vector<BadInput>& BadInputs()
{
    static const std::vector<BadInput> inputs {
        // Breaches of the feeder's contract throw to the feeder, before anything is stored.
        { "rows past the end delivered",
          [](TableFixture& f) { f.model.SetColumnsContent(2, { Content("name", 2) }); },
          "Index and count of rows is larger than allocated capacity",
          {} },
        { "rows before the first delivered",
          [](TableFixture& f) { f.model.SetColumnsContent(-1, { Content("name", 1) }); },
          "Index and count of rows is larger than allocated capacity",
          {} },
        { "negative row count",
          [](TableFixture& f) { f.model.SetRowCount(-1); },
          "Index and count of rows is larger than allocated capacity",
          {} },
        { "columns of unequal length",
          [](TableFixture& f) {
              f.model.SetColumnsContent(0, { Content("name", 2), Content("count", 1) });
          },
          "Expected same size of all column contents",
          {} },
        { "unknown column delivered",
          [](TableFixture& f) { f.model.SetColumnsContent(0, { Content("weight", 1) }); },
          "Expected existing column id",
          {} },
        { "unknown column after a known one",
          [](TableFixture& f) {
              f.model.SetColumnsContent(0, { Content("name", 1), Content("weight", 1) });
          },
          "Expected existing column id",
          {} },
        // Edits the cells cannot take are refused and queue nothing.
        { "text into an integer cell",
          [](TableFixture& f) {
              QVERIFY(!f.model.setData(f.model.index(1, 1), "abc", TableContentModel::ContentRole));
          },
          {},
          {} },
        { "integer beyond the host's range",
          [](TableFixture& f) {
              QVERIFY(!f.model.setData(f.model.index(1, 1), "1e20", TableContentModel::ContentRole));
          },
          {},
          "outside the integer range" },
        { "expression beyond the host's range",
          [](TableFixture& f) {
              QVERIFY(!f.model.setData(f.model.index(1, 1), "=10^19", TableContentModel::ContentRole));
          },
          {},
          "outside the integer range" },
        { "value into a read-only cell",
          [](TableFixture& f) {
              QVERIFY(!f.model.setData(f.model.index(1, 4), "x", TableContentModel::ContentRole));
          },
          {},
          {} },
        { "value past the last row",
          [](TableFixture& f) {
              QVERIFY(!f.model.setData(f.model.index(7, 0), "x", TableContentModel::ContentRole));
          },
          {},
          {} },
        { "the value a cell already has",
          [](TableFixture& f) {
              QVERIFY(!f.model.setData(f.model.index(1, 0), "B2", TableContentModel::ContentRole));
          },
          {},
          {} },
        { "a role that cannot be edited",
          [](TableFixture& f) {
              QVERIFY(!f.model.setData(f.model.index(1, 0), "x", TableContentModel::DecimalsRole));
          },
          {},
          {} },
        // Pasted fields that fit no cell are left out.
        { "paste into the read-only column and beyond the last",
          [](TableFixture& f) { Paste(f, 1, 4, "x\ty\tz"); },
          {},
          {} },
        { "paste of text into an integer column",
          [](TableFixture& f) { Paste(f, 0, 1, "abc\nx\n=1/0"); },
          {},
          {} },
        { "paste of an integer beyond the host's range",
          [](TableFixture& f) { Paste(f, 2, 1, "1e20"); },
          {},
          "outside the integer range" },
        { "paste past the last row without adding",
          [](TableFixture& f) { Paste(f, 2, 4, "a\nb\nc\nd"); },
          {},
          {} },
        // Out-of-range indices from QML are ignored.
        { "width of a column that does not exist",
          [](TableFixture& f) { f.model.setColumnWidth(9, 200); },
          {},
          {} },
        { "move from a column that does not exist",
          [](TableFixture& f) { f.model.moveColumn(9, 0); },
          {},
          {} },
        { "move to a column that does not exist",
          [](TableFixture& f) { f.model.moveColumn(0, -3); },
          {},
          {} },
        { "unknown multi-edit action",
          [](TableFixture& f) { f.model.setDataForSelection(99, "x"); },
          {},
          "unknown action" },
        { "action of no cell", [](TableFixture& f) { f.model.executeAction(QModelIndex()); }, {}, {} },
    };
    return inputs;
}

} // namespace

// Bad input from any side of a content model (the feeder, the user, QML) is refused as the model
// promises, and leaves everything else as it was.
class tst_TableBadInput : public QObject
{
    Q_OBJECT

private slots:
    void shouldRefuseBadInputAndChangeNothingElse_data()
    {
        QTest::addColumn<int>("input");
        for (std::size_t i = 0; i < BadInputs().size(); ++i)
            QTest::newRow(BadInputs()[i].name) << int(i);
    }

    void shouldRefuseBadInputAndChangeNothingElse()
    {
        QFETCH(int, input);
        const BadInput& bad = BadInputs()[std::size_t(input)];
        TableFixture fixture(3);
        QVERIFY(fixture.model.setData(fixture.model.index(0, 0), "edited", TableContentModel::ContentRole));
        const QStringList before = Snapshot(fixture.model);
        QSignalSpy updates(&fixture.model, &TableContentModel::updateDataRequest);
        QSignalSpy actions(&fixture.model, &TableContentModel::executeActionRequest);
        if (!bad.warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(bad.warning));

        QString thrown;
        try {
            bad.apply(fixture);
        } catch (const std::exception& error) {
            thrown = QString::fromUtf8(error.what());
        }

        QCOMPARE(thrown, bad.thrown);
        QCOMPARE(Snapshot(fixture.model), before);
        QCOMPARE(updates.count(), 0);
        QCOMPARE(actions.count(), 0);
        QVERIFY(fixture.feeder.updates.empty());
    }
};

QTEST_MAIN(tst_TableBadInput)
#include "tst_tablebadinput.moc"
