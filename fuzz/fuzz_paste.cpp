// Table text pasted into a content model whose columns cover every value type, at a current
// cell, into a table of a size, with adding rows allowed or not, all taken from the input. Long
// multi-line texts come from the seeds. Whatever is pasted, the model stays consistent (Qt's
// model tester) and queues only edits a cell can take.
#include "FuzzSupport.h"
#include "TableTestFeeder.h"
#include "tables/TableContentFilterModel.h"
#include "tables/TableSelectionModel.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <cmath>

using namespace Orvo::UI::UIComponents;

namespace {

TableColumn Column(const QString& id, TableValueType type, bool editable = true)
{
    TableColumn column;
    column.id = id;
    column.label = QStringLiteral("Label %1").arg(id);
    column.type = type;
    column.required = id == QLatin1String("name");
    column.editable = editable;
    return column;
}

TableCellContent Cell(QVariant value, TableValueType type)
{
    TableCellContent cell;
    cell.content = std::move(value);
    cell.valueType = type;
    cell.editable = true;
    return cell;
}

TableCellContent Named(TableValueType type, const QStringList& names, const QVariantList& values, int index)
{
    TableCellContent cell = Cell(values.value(index), type);
    cell.parametersNames = names;
    cell.parametersValues = values;
    cell.parameterIndex = index;
    return cell;
}

std::vector<TableColumn> Columns()
{
    return { Column("name", TableValueType::String),       Column("count", TableValueType::Integer),
             Column("length", TableValueType::Real),       Column("material", TableValueType::List),
             Column("hinged", TableValueType::Bool),       Column("colour", TableValueType::Color),
             Column("any", TableValueType::Unknown),       Column("factor", TableValueType::Real),
             Column("mark", TableValueType::String, false) };
}

std::vector<TableCellContent> Row(int row)
{
    const QStringList materials { "S235", "S355", "C30/37" };
    TableCellContent length = Cell(1.5 * (row + 1), TableValueType::Real);
    length.decimals = 2;
    TableCellContent colour = Cell(QStringLiteral("#ff0000"), TableValueType::Color);
    colour.text = QStringLiteral("Red");
    const TableValueType anyType = row % 2 == 0 ? TableValueType::Integer : TableValueType::String;
    return { Cell(QStringLiteral("B%1").arg(row + 1), TableValueType::String),
             Cell(row % 7, TableValueType::Integer),
             length,
             Named(TableValueType::List, materials, { 0, 1, 2 }, row % 3),
             Cell(row % 2 == 0, TableValueType::Bool),
             colour,
             Cell(anyType == TableValueType::Integer ? QVariant(row)
                                                     : QVariant(QStringLiteral("t%1").arg(row)),
                  anyType),
             Named(TableValueType::Real, { "low", "high" }, { 0.5, 2.0 }, row % 2),
             Cell(QStringLiteral("m%1").arg(row), TableValueType::String) };
}

// An edit the feeder would get must fit its cell: a known column that can be edited, a row of the
// table or, when adding is allowed, after it, and for numbers a value the host can hold.
void CheckPending(const TableContentModel& model, const std::vector<TableColumn>& columns, int rowCount)
{
    const TableContentUpdate& pending = model.GetPendingUpdate();
    for (const auto& [row, values] : pending.GetRows()) {
        FUZZ_CHECK(row >= 0);
        FUZZ_CHECK(model.getAllowAddNew() || row < rowCount);
        for (const auto& [column, value] : values) {
            FUZZ_CHECK(column >= 0 && column < int(columns.size()));
            const TableColumn& described = columns[std::size_t(column)];
            FUZZ_CHECK(described.editable);
            if (described.type == TableValueType::Integer && !value.toString().isEmpty()) {
                bool ok = false;
                value.toString().toLongLong(&ok);
                FUZZ_CHECK(ok);
            }
            if (described.type == TableValueType::Real && value.typeId() == QMetaType::Double)
                FUZZ_CHECK(std::isfinite(value.toDouble()));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Fuzz::EnsureApplication(true);
    FuzzedDataProvider data(bytes, size);
    const int rowCount = data.ConsumeIntegralInRange(0, 12);
    const bool allowAddNew = data.ConsumeBool();
    const int currentRow = data.ConsumeIntegralInRange(0, 13);
    const int currentColumn = data.ConsumeIntegralInRange(0, 9);
    const bool confirm = data.ConsumeBool();
    const QString text = Fuzz::RemainingText(data);

    TableContentModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    TableTestFeeder feeder(model);
    model.setAllowEdit(true);
    model.setAllowAddNew(allowAddNew);
    std::vector<std::vector<TableCellContent>> rows;
    for (int row = 0; row < rowCount; ++row)
        rows.push_back(Row(row));
    const std::vector<TableColumn> columns = Columns();
    feeder.SetTable(columns, std::move(rows));
    feeder.Load();

    TableContentFilterModel* shown = model.contentFilterModel();
    shown->selectionModel()->select(shown->index(currentRow, currentColumn),
                                    TableSelectionModel::CleanSelect);
    QGuiApplication::clipboard()->setText(text);
    model.pasteFromClipboard();
    CheckPending(model, columns, rowCount);
    if (confirm) {
        model.confirmUpdate();
        FUZZ_CHECK(model.GetPendingUpdate().IsEmpty());
    }
    return 0;
}
