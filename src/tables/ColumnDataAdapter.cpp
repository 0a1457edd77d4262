#include "ColumnDataAdapter.h"

namespace Orvo::UI::UIComponents {

using namespace Kernel::Tables;

namespace {

QString ToQString(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

// Numbers are written with the column's unit in its title, and with the column's decimals where
// a cell does not say otherwise (results cells come without).
class NumberColumnDataAdapter : public ColumnDataAdapter
{
public:
    using ColumnDataAdapter::ColumnDataAdapter;

    TableColumn CreateTableColumn(std::int32_t width) const override
    {
        TableColumn column = ColumnDataAdapter::CreateTableColumn(width);
        if (!Column().unit.isEmpty())
            column.label = QStringLiteral("%1 [%2]").arg(column.label, Column().unit);
        return column;
    }

protected:
    void Complete(TableCellContent& cell) const override
    {
        if (!cell.decimals && Column().decimals >= 0 && GetValueType() == TableValueType::Real)
            cell.decimals = static_cast<std::int16_t>(Column().decimals);
    }
};

// A list cell offers the column's choices when the host gave the cell none of its own.
class ListColumnDataAdapter : public ColumnDataAdapter
{
public:
    using ColumnDataAdapter::ColumnDataAdapter;

protected:
    void Complete(TableCellContent& cell) const override
    {
        if (cell.allValues.isEmpty())
            cell.allValues = Column().listValues;
    }
};

// Named values (a yes/no property named "Fixed"/"Free", a steel grade for a strength): the
// column's names when the cell has none, so that paste and multi-edit accept the names.
class NamedValuesColumnDataAdapter : public NumberColumnDataAdapter
{
public:
    using NumberColumnDataAdapter::NumberColumnDataAdapter;

protected:
    void Complete(TableCellContent& cell) const override
    {
        NumberColumnDataAdapter::Complete(cell);
        if (!cell.parametersNames.isEmpty() || Column().parameters.empty())
            return;
        for (const TableNamedValue& parameter : Column().parameters) {
            cell.parametersNames << parameter.name;
            cell.parametersValues << parameter.value;
        }
        if (cell.parameterIndex < 0 && cell.content.isValid())
            cell.parameterIndex = static_cast<std::int32_t>(cell.parametersValues.indexOf(cell.content));
    }
};

// Colours are "#rrggbb" names; the table model finds their palette name itself.
class ColorColumnDataAdapter : public ColumnDataAdapter
{
public:
    using ColumnDataAdapter::ColumnDataAdapter;

protected:
    void Complete(TableCellContent& cell) const override
    {
        if (cell.content.isValid())
            cell.content = cell.content.toString().toLower();
    }
};

} // namespace

ColumnDataAdapter::ColumnDataAdapter(TableDataColumn column)
    : m_column(std::move(column))
{ }

std::unique_ptr<ColumnDataAdapter> ColumnDataAdapter::Create(TableDataColumn column)
{
    switch (column.type) {
    case TableDataType::Bool:
    case TableDataType::Integer:
    case TableDataType::Real:
        if (!column.parameters.empty())
            return std::make_unique<NamedValuesColumnDataAdapter>(std::move(column));
        return std::make_unique<NumberColumnDataAdapter>(std::move(column));
    case TableDataType::List:
        return std::make_unique<ListColumnDataAdapter>(std::move(column));
    case TableDataType::Color:
        return std::make_unique<ColorColumnDataAdapter>(std::move(column));
    case TableDataType::Group:
    case TableDataType::String:
        break;
    }
    return std::make_unique<ColumnDataAdapter>(std::move(column));
}

TableColumn ColumnDataAdapter::CreateTableColumn(std::int32_t width) const
{
    TableColumn column;
    column.id = ToQString(m_column.id);
    column.label = ToQString(m_column.label);
    column.type = GetValueType();
    column.unit = m_column.unit;
    column.required = m_column.required;
    column.editable = !m_column.readOnly;
    column.parentId = ToQString(m_column.groupId);
    column.sortable = m_column.sortable;
    column.width = width > 0 ? width : c_defaultWidth;
    return column;
}

TableCellContent ColumnDataAdapter::CreateCellContent(const TableDataCell& data) const
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
    cell.editable = data.editable && !m_column.readOnly;
    cell.hasAction = data.hasAction;
    cell.bold = data.bold;
    cell.highlightState = static_cast<std::int32_t>(data.highlight);
    Complete(cell);
    return cell;
}

} // namespace Orvo::UI::UIComponents
