#include "ResultsTableData.h"

#include "basiccomponents/DisplayUnits.h"

#include "ResultsDatabase.h"
#include "model/ModelMessage.h"

#include <algorithm>

namespace Orvo::Kernel::Results {

using namespace Tables;

namespace {

TableDataType TypeOf(const ResultsColumn& column)
{
    switch (column.kind) {
    case ResultsColumn::Kind::ResultSet:
        return TableDataType::String;
    case ResultsColumn::Kind::Number:
        return TableDataType::Integer;
    case ResultsColumn::Kind::End:
        return TableDataType::List;
    case ResultsColumn::Kind::Value:
        break;
    }
    return TableDataType::Real;
}

} // namespace

ResultsTableData::ResultsTableData(ResultsTable table,
                                   std::shared_ptr<const Framework::IStringLoader> strings,
                                   std::shared_ptr<const UI::BasicComponents::DisplayUnits> units)
    : m_table(table)
    , m_strings(std::move(strings))
    , m_units(std::move(units))
{ }

UI::BasicComponents::DisplayUnits::Shown ResultsTableData::Shown(const ResultsColumn& column) const
{
    if (m_units)
        return m_units->ForStoredUnit(column.unit, column.decimals);
    return { column.unit, 1.0, column.decimals };
}

QString ResultsTableData::Text(const QString& id) const
{
    return Model::ModelMessage(id).ToText(m_strings.get());
}

void ResultsTableData::SetDatabase(std::shared_ptr<ResultsDatabase> database)
{
    m_database = std::move(database);
    if (m_database && m_sortOrder != TableSortOrder::Unsorted)
        m_database->Sort(m_table, QString::fromStdWString(m_sortColumn), m_sortOrder);
}

TableResultsTabInfo ResultsTableData::GetTabInfo() const
{
    return { GetId(), GetLabel(), GetIconName() };
}

std::wstring ResultsTableData::GetId() const
{
    return L"results." + ResultsSchema::TableName(m_table).toStdWString();
}

std::wstring ResultsTableData::GetLabel() const
{
    return Text(ResultsSchema::LabelId(m_table)).toStdWString();
}

std::wstring ResultsTableData::GetIconName() const
{
    return L"table-" + ResultsSchema::TableName(m_table).toStdWString();
}

std::vector<TableDataColumn> ResultsTableData::GetColumns() const
{
    std::vector<TableDataColumn> columns;
    for (const ResultsColumn& source : ResultsSchema::Columns(m_table)) {
        TableDataColumn column;
        column.id = source.name.toStdWString();
        column.label = Text(source.labelId).toStdWString();
        column.type = TypeOf(source);
        const auto shown = Shown(source);
        column.unit = shown.unit;
        column.decimals = source.kind == ResultsColumn::Kind::Value ? shown.decimals : -1;
        column.readOnly = true;
        if (source.kind == ResultsColumn::Kind::End)
            column.listValues = { Text(QStringLiteral("UI_RESULTS_END_START")),
                                  Text(QStringLiteral("UI_RESULTS_END_END")) };
        columns.push_back(std::move(column));
    }
    return columns;
}

int ResultsTableData::GetRowCount() const
{
    return m_database ? m_database->RowCount(m_table) : 0;
}

QString ResultsTableData::SetLabel(int position) const
{
    const auto& sets = m_database->Sets();
    if (position < 0 || std::size_t(position) >= sets.size())
        return {};
    const ResultSetSummary& set = sets[std::size_t(position)];
    return Model::ModelMessage(set.combination ? QStringLiteral("UI_RESULTS_SET_COMBINATION")
                                               : QStringLiteral("UI_RESULTS_SET_LOAD_CASE"),
                               { QString::number(set.number), set.name })
        .ToText(m_strings.get());
}

std::vector<TableDataColumnContent>
ResultsTableData::GetCells(int first, int count, const std::vector<std::wstring>& columnIds) const
{
    const auto rows
        = m_database ? m_database->ReadRows(m_table, first, count) : std::vector<std::vector<QVariant>>();
    const auto& columns = ResultsSchema::Columns(m_table);
    const QStringList ends { Text(QStringLiteral("UI_RESULTS_END_START")),
                             Text(QStringLiteral("UI_RESULTS_END_END")) };
    std::vector<TableDataColumnContent> contents;
    for (const std::wstring& columnId : columnIds) {
        TableDataColumnContent content { columnId, std::vector<TableDataCell>(rows.size()) };
        const QString id = QString::fromStdWString(columnId);
        const auto column
            = std::find_if(columns.begin(), columns.end(),
                           [&id](const ResultsColumn& candidate) { return candidate.name == id; });
        if (column != columns.end()) {
            const auto shown = Shown(*column);
            const std::size_t position = std::size_t(column - columns.begin());
            for (std::size_t row = 0; row < rows.size(); ++row) {
                TableDataCell& cell = content.cells[row];
                const QVariant& value = rows[row][position];
                cell.valueType = TypeOf(*column);
                switch (column->kind) {
                case ResultsColumn::Kind::ResultSet:
                    cell.content = SetLabel(value.toInt());
                    break;
                case ResultsColumn::Kind::Number:
                    cell.content = value.toInt();
                    break;
                case ResultsColumn::Kind::End:
                    cell.content = ends.value(value.toInt());
                    cell.allValues = ends;
                    break;
                case ResultsColumn::Kind::Value:
                    cell.content = shown.ToShown(value.toDouble());
                    cell.decimals = std::int16_t(shown.decimals);
                    break;
                }
            }
        }
        contents.push_back(std::move(content));
    }
    return contents;
}

bool ResultsTableData::Sort(const std::wstring& columnId, TableSortOrder order)
{
    const QString id = QString::fromStdWString(columnId);
    const auto& columns = ResultsSchema::Columns(m_table);
    if (order != TableSortOrder::Unsorted
        && std::none_of(columns.begin(), columns.end(),
                        [&id](const ResultsColumn& column) { return column.name == id; }))
        return false;
    if (m_database && !m_database->Sort(m_table, id, order))
        return false;
    m_sortColumn = order == TableSortOrder::Unsorted ? std::wstring() : columnId;
    m_sortOrder = order;
    return true;
}

} // namespace Orvo::Kernel::Results
