#pragma once

#include "TableCellContent.h"
#include "TableColumn.h"
#include "tables/TableDataCell.h"
#include "tables/TableDataColumn.h"

#include <QString>
#include <memory>

namespace Orvo::UI::UIComponents {

// How one column of a host table becomes a column of the table model, and its host cells the
// model's cells. One adapter per value type: numbers carry their unit and decimals, lists and
// named values their choices, colours their palette name; the base does what every type shares.
class ColumnDataAdapter
{
public:
    static constexpr std::int32_t c_defaultWidth = 96;

    explicit ColumnDataAdapter(Kernel::Tables::TableDataColumn column);
    virtual ~ColumnDataAdapter() = default;
    ColumnDataAdapter(const ColumnDataAdapter&) = delete;
    ColumnDataAdapter& operator=(const ColumnDataAdapter&) = delete;

    // The adapter for the column's value type.
    static std::unique_ptr<ColumnDataAdapter> Create(Kernel::Tables::TableDataColumn column);

    std::wstring GetId() const { return m_column.id; }
    std::wstring GetLabel() const { return m_column.label; }
    TableValueType GetValueType() const { return static_cast<TableValueType>(m_column.type); }
    const Kernel::Tables::TableDataColumn& Column() const { return m_column; }

    // The model's column; a width > 0 is the one the user left it at.
    virtual TableColumn CreateTableColumn(std::int32_t width) const;
    TableCellContent CreateCellContent(const Kernel::Tables::TableDataCell& cell) const;

protected:
    // What a cell of this type needs beyond the host's record.
    virtual void Complete(TableCellContent&) const { }

private:
    Kernel::Tables::TableDataColumn m_column;
};

} // namespace Orvo::UI::UIComponents
