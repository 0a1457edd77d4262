#include "TableTestFeeder.h"

namespace Orvo::UI::UIComponents {

TableTestFeeder::TableTestFeeder(TableContentModel& model)
    : m_model(model)
{
    connect(&model, &TableContentModel::setRowsRequest, this, &TableTestFeeder::OnSetRowsRequest);
    connect(&model, &TableContentModel::addColumnsRequest, this, &TableTestFeeder::OnAddColumnsRequest);
    connect(&model, &TableContentModel::updateDataRequest, this, &TableTestFeeder::OnUpdateDataRequest);
    connect(&model, &TableContentModel::executeActionRequest, this,
            [this](int row, int column) { actions.emplace_back(row, column); });
    connect(&model, &TableContentModel::refillContentRequest, this, [this]() {
        ++refills;
        m_model.SetRowCount(static_cast<int>(rows.size()));
    });
}

void TableTestFeeder::SetTable(std::vector<TableColumn> tableColumns,
                               std::vector<std::vector<TableCellContent>> tableRows)
{
    columns = std::move(tableColumns);
    rows = std::move(tableRows);
}

void TableTestFeeder::Load()
{
    std::vector<TableColumnModelItem> items;
    for (const TableColumn& column : columns)
        items.push_back({ column.id, column.label, true, column.required });
    m_model.SetAllColumns(std::move(items));
}

int TableTestFeeder::FindColumn(const QString& id) const
{
    for (std::size_t column = 0; column < columns.size(); ++column) {
        if (columns[column].id == id)
            return static_cast<int>(column);
    }
    return -1;
}

void TableTestFeeder::OnAddColumnsRequest(const std::vector<QString>& ids)
{
    std::vector<TableColumn> added;
    for (const QString& id : ids) {
        const int column = FindColumn(id);
        if (column >= 0)
            added.push_back(columns[static_cast<std::size_t>(column)]);
    }
    m_model.AddColumns(std::move(added));
}

void TableTestFeeder::OnSetRowsRequest(int index, int count, const std::vector<QString>& ids)
{
    requests.push_back({ index, count, ids });
    if (!deliver)
        return;
    std::vector<TableColumnContent> contents;
    for (const QString& id : ids) {
        const int column = FindColumn(id);
        TableColumnContent content { id, {} };
        for (int row = index; row < index + count; ++row)
            content.cells.push_back(rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
        contents.push_back(std::move(content));
    }
    m_model.SetColumnsContent(index, std::move(contents));
}

void TableTestFeeder::OnUpdateDataRequest(const TableContentUpdate& update)
{
    updates.push_back(update);
    const auto& modelColumns = m_model.GetColumns();
    for (const auto& [row, values] : update.GetRows()) {
        while (row >= static_cast<int>(rows.size())) {
            std::vector<TableCellContent> record(columns.size());
            for (std::size_t column = 0; column < columns.size(); ++column) {
                record[column].editable = true;
                record[column].valueType = columns[column].type;
            }
            rows.push_back(std::move(record));
        }
        for (const auto& [modelColumn, value] : values) {
            const int column = FindColumn(modelColumns[static_cast<std::size_t>(modelColumn)].id);
            TableCellContent& cell = rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            const int parameter = static_cast<int>(cell.parametersNames.indexOf(value.toString()));
            if (parameter >= 0)
                cell.parameterIndex = parameter;
            cell.content = value;
        }
    }
    m_model.SetRowCount(static_cast<int>(rows.size()));
}

} // namespace Orvo::UI::UIComponents
