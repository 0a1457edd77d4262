#include "TableInput.h"

#include "TablesLogging.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "tables/TableDataCatalog.h"
#include "tables/TableDataEvents.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Tables;
using Kernel::Framework::EventBus;
using Kernel::Framework::ServiceCatalog;

namespace {

QString ToQString(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

TableColumn ToColumn(const TableDataColumn& data)
{
    TableColumn column;
    column.id = ToQString(data.id);
    column.label = data.unit.isEmpty() ? ToQString(data.label)
                                       : QStringLiteral("%1 [%2]").arg(ToQString(data.label), data.unit);
    column.type = static_cast<TableValueType>(data.type);
    column.unit = data.unit;
    column.required = data.required;
    column.editable = !data.readOnly;
    column.sortable = data.sortable;
    column.width = TableInput::c_defaultColumnWidth;
    return column;
}

TableCellContent ToCell(const TableDataCell& data)
{
    TableCellContent cell;
    cell.content = data.content;
    cell.text = data.text;
    cell.allValues = data.allValues;
    cell.parameterIndex = data.parameterIndex;
    cell.parametersNames = data.parametersNames;
    cell.parametersValues = data.parametersValues;
    cell.valueType = static_cast<TableValueType>(data.valueType);
    cell.decimals = data.decimals;
    cell.editable = data.editable;
    cell.hasAction = data.hasAction;
    cell.bold = data.bold;
    cell.highlightState = static_cast<std::int32_t>(data.highlight);
    return cell;
}

} // namespace

TableInput::TableInput(QQuickItem* parent)
    : UIComponent(parent)
{
    connect(&m_model, &TableContentModel::addColumnsRequest, this, &TableInput::OnAddColumnsRequest);
    connect(&m_model, &TableContentModel::refillContentRequest, this, &TableInput::OnRefillContentRequest);
    connect(&m_model, &TableContentModel::setRowsRequest, this, &TableInput::OnSetRowsRequest);
    connect(&m_model, &TableContentModel::updateDataRequest, this, &TableInput::OnUpdateDataRequest);
    connect(&m_model, &TableContentModel::executeActionRequest, this, &TableInput::OnExecuteActionRequest);
    m_model.setAllowEdit(true);
    m_model.setAllowAddNew(true);
    m_model.setAllowDelete(true);
}

TableInput::~TableInput() = default;

void TableInput::setTableId(const QString& id)
{
    if (id == m_tableId)
        return;
    m_tableId = id;
    const auto catalog = ServiceCatalog::Global();
    const auto tables = catalog ? catalog->Get<TableDataCatalog>() : nullptr;
    m_table = tables ? tables->FindInputTable(id.toStdWString()) : nullptr;
    if (!m_table)
        qCWarning(lcTables).noquote() << "TableInput: the host has no input table" << id;
    Connect();
    SetMessage({});
    m_model.Clear();
    std::vector<TableColumnModelItem> items;
    if (m_table) {
        for (const TableDataColumn& column : m_table->GetColumns()) {
            if (column.type != TableDataType::Group)
                items.push_back({ ToQString(column.id), ToQString(column.label), true, column.required });
        }
    }
    // The model asks for the visible columns, then for the rows.
    m_model.SetAllColumns(std::move(items));
    emit tableIdChanged();
}

QString TableInput::label() const
{
    return m_table ? ToQString(m_table->GetLabel()) : QString();
}

std::vector<std::shared_ptr<ITableInputTableData>> TableInput::InputTables() const
{
    const auto catalog = ServiceCatalog::Global();
    const auto tables = catalog ? catalog->Get<TableDataCatalog>() : nullptr;
    std::vector<std::shared_ptr<ITableInputTableData>> inputs;
    if (!tables)
        return inputs;
    for (const TableWorkstation& workstation : tables->Workstations()) {
        for (const auto& table : workstation.tables) {
            if (auto input = tables->FindInputTable(table->GetId()))
                inputs.push_back(std::move(input));
        }
    }
    return inputs;
}

QStringList TableInput::tableIds() const
{
    QStringList ids;
    for (const auto& table : InputTables())
        ids << ToQString(table->GetId());
    return ids;
}

QStringList TableInput::tableLabels() const
{
    QStringList labels;
    for (const auto& table : InputTables())
        labels << ToQString(table->GetLabel());
    return labels;
}

void TableInput::Connect()
{
    m_changedConnection.Disconnect();
    const auto catalog = ServiceCatalog::Global();
    const auto eventBus = catalog ? catalog->Get<EventBus>() : nullptr;
    if (!eventBus || !m_table)
        return;
    m_changedConnection = eventBus->Subscribe<TableDataChangedEvent>(
        [this](const TableDataChangedEvent& event) { OnTableDataChanged(event); });
}

void TableInput::OnTableDataChanged(const TableDataChangedEvent& event)
{
    const std::wstring id = m_tableId.toStdWString();
    if (std::find(event.tableIds.begin(), event.tableIds.end(), id) != event.tableIds.end())
        OnRefillContentRequest();
}

void TableInput::OnAddColumnsRequest(const std::vector<QString>& ids)
{
    if (!m_table)
        return;
    const std::vector<TableDataColumn> all = m_table->GetColumns();
    std::vector<TableColumn> columns;
    for (const QString& id : ids) {
        const auto found = std::find_if(all.begin(), all.end(), [&id](const TableDataColumn& column) {
            return ToQString(column.id) == id;
        });
        if (found == all.end())
            continue;
        TableColumn column = ToColumn(*found);
        if (found->id == m_table->GetSortColumn())
            column.sortOrder = static_cast<std::int32_t>(m_table->GetSortOrder());
        columns.push_back(std::move(column));
    }
    m_model.AddColumns(std::move(columns));
}

void TableInput::OnRefillContentRequest()
{
    if (!m_table)
        return;
    // The sort order is the layout's: the user clicked a title.
    const auto& columns = m_model.GetColumns();
    const auto sorted = std::find_if(columns.begin(), columns.end(),
                                     [](const TableColumn& column) { return column.sortOrder != 0; });
    if (sorted == columns.end())
        m_table->Sort(m_table->GetSortColumn(), TableSortOrder::Unsorted);
    else
        m_table->Sort(sorted->id.toStdWString(), static_cast<TableSortOrder>(sorted->sortOrder));
    m_model.SetRowCount(m_table->GetRowCount());
}

void TableInput::OnSetRowsRequest(int index, int count, const std::vector<QString>& ids)
{
    if (!m_table)
        return;
    std::vector<std::wstring> columnIds;
    for (const QString& id : ids)
        columnIds.push_back(id.toStdWString());
    std::vector<TableColumnContent> contents;
    for (TableDataColumnContent& data : m_table->GetCells(index, count, columnIds)) {
        TableColumnContent content { ToQString(data.columnId), {} };
        content.cells.reserve(data.cells.size());
        for (const TableDataCell& cell : data.cells)
            content.cells.push_back(ToCell(cell));
        contents.push_back(std::move(content));
    }
    CatchAtBoundary("TableInput::OnSetRowsRequest",
                    [&]() { m_model.SetColumnsContent(index, std::move(contents)); });
}

void TableInput::OnUpdateDataRequest(const TableContentUpdate& update)
{
    if (!m_table)
        return;
    const auto& columns = m_model.GetColumns();
    TableDataUpdate data;
    for (const auto& [row, values] : update.GetRows()) {
        for (const auto& [column, value] : values) {
            if (column >= 0 && column < static_cast<int>(columns.size()))
                data[row][columns[static_cast<std::size_t>(column)].id.toStdWString()] = value;
        }
    }
    const TableUpdateResult result = m_table->Update(data);
    Report(result);
    // Nothing changed: the host announces nothing, yet the edits that were refused must go.
    if (!result.Changed())
        OnRefillContentRequest();
}

void TableInput::OnExecuteActionRequest(int row, int column)
{
    const auto& columns = m_model.GetColumns();
    if (!m_table || column < 0 || column >= static_cast<int>(columns.size()))
        return;
    m_table->ExecuteAction(row, columns[static_cast<std::size_t>(column)].id.toStdWString());
}

bool TableInput::removeRows(const QList<int>& rows)
{
    if (!m_table)
        return false;
    const TableUpdateResult result = m_table->RemoveRows(std::vector<int>(rows.begin(), rows.end()));
    Report(result);
    return result.removedRows > 0;
}

void TableInput::Report(const TableUpdateResult& result)
{
    if (result.rejections.empty()) {
        SetMessage({});
        return;
    }
    // The reasons name the objects they are about ("There is no node 99").
    SetMessage(result.rejections.front().reason);
}

void TableInput::SetMessage(const QString& message)
{
    if (message == m_message)
        return;
    m_message = message;
    emit messageChanged();
}

} // namespace Orvo::UI::UIComponents
