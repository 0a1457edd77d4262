#pragma once

#include "TableDataCell.h"
#include "TableDataColumn.h"

#include <string>
#include <vector>

namespace Orvo::Kernel::Tables {

enum class TableSortOrder : std::int32_t
{
    Unsorted = 0,
    Ascending = 1,
    Descending = 2,
};

// One table of the host as a table panel reads it: what it is, its columns, and its cells a run
// of rows at a time, so that a table of millions of rows costs only what is on screen. Rows are
// numbered from 0 in the current sort order. Lives on the GUI thread.
class ITableData
{
public:
    virtual ~ITableData() = default;

    virtual std::wstring GetId() const = 0;
    virtual std::wstring GetLabel() const = 0;
    // The name of the tab's icon; the host's file helper makes a QML file path of it.
    virtual std::wstring GetIconName() const = 0;
    virtual bool IsReadOnly() const = 0;
    // Some value breaks a rule of its property: the table's tab is shown alerted.
    virtual bool HasErrors() const { return false; }

    virtual std::vector<TableDataColumn> GetColumns() const = 0;
    virtual int GetRowCount() const = 0;
    // The cells of rows [first, first + count) of each column asked for, in the order asked; a
    // run past the last row is cut short, an unknown column gets empty cells.
    virtual std::vector<TableDataColumnContent>
    GetCells(int first, int count, const std::vector<std::wstring>& columnIds) const = 0;

    // Orders the rows by one column (texts in natural order); Unsorted restores the host's own
    // order. False, and no change, for a column that is unknown or cannot be sorted.
    virtual bool Sort(const std::wstring& columnId, TableSortOrder order) = 0;
    virtual std::wstring GetSortColumn() const = 0;
    virtual TableSortOrder GetSortOrder() const = 0;
};

} // namespace Orvo::Kernel::Tables
