#pragma once

#include "tables/TableCellContent.h"
#include "tables/TableColumn.h"

#include <QString>
#include <vector>

namespace Orvo::UI::UIComponents::TestData {

inline TableColumn Column(const QString& id, TableValueType type, bool required = false, bool editable = true)
{
    TableColumn column;
    column.id = id;
    column.label = QStringLiteral("Label %1").arg(id);
    column.type = type;
    column.required = required;
    column.editable = editable;
    column.sortable = true;
    return column;
}

inline TableCellContent Cell(QVariant value, TableValueType type, bool editable = true)
{
    TableCellContent cell;
    cell.content = std::move(value);
    cell.valueType = type;
    cell.editable = editable;
    return cell;
}

inline TableCellContent Parameter(const QStringList& names, int index)
{
    TableCellContent cell = Cell(names.value(index), TableValueType::List);
    cell.parametersNames = names;
    for (int i = 0; i < names.size(); ++i)
        cell.parametersValues.append(i);
    cell.parameterIndex = index;
    return cell;
}

// Members of a small frame: name, count, length, material (named values) and a read-only mark.
inline std::vector<TableColumn> MemberColumns()
{
    return { Column("name", TableValueType::String, true), Column("count", TableValueType::Integer),
             Column("length", TableValueType::Real), Column("material", TableValueType::List),
             Column("mark", TableValueType::String, false, false) };
}

inline std::vector<std::vector<TableCellContent>> MemberRows(int count)
{
    const QStringList materials { "S235", "S355", "C30/37" };
    std::vector<std::vector<TableCellContent>> rows;
    for (int row = 0; row < count; ++row) {
        TableCellContent length = Cell(1.5 * (row + 1), TableValueType::Real);
        length.decimals = 2;
        rows.push_back({ Cell(QStringLiteral("B%1").arg(row + 1), TableValueType::String),
                         Cell(row % 7, TableValueType::Integer), length, Parameter(materials, row % 3),
                         Cell(QStringLiteral("m%1").arg(row), TableValueType::String, false) });
    }
    return rows;
}

} // namespace Orvo::UI::UIComponents::TestData
