#pragma once

#include "TableCellContent.h"

#include <bitset>
#include <cstddef>
#include <vector>

namespace Orvo::UI::UIComponents {

// Where a row lives in the grid: its bulk of rows and its place inside that bulk.
struct GridContentIndex
{
    static constexpr int c_rowsCountBulk = 100;

    int bulk = 0;
    int offset = 0;

    static GridContentIndex FromRow(int row) { return { row / c_rowsCountBulk, row % c_rowsCountBulk }; }
};

// The sparse cache of cells: bulks of 100 rows, each holding one cell vector per column that stays
// empty until the feeder delivers those rows. Only what the view has touched costs memory.
class TableContentGrid
{
public:
    void Reset(int columnCount, int bulkCount);
    void AppendBulks(int count);
    void AppendColumns(int count);
    void RemoveColumn(int column);
    void MoveColumn(int srcIndex, int dstIndex);

    int GetColumnCount() const { return m_columnCount; }
    int GetBulkCount() const { return static_cast<int>(m_bulks.size()); }

    bool IsFilled(GridContentIndex index, int column) const;
    // The cell at index; throws std::overflow_error when the bulk or the column is not allocated.
    const TableCellContent& GetCell(GridContentIndex index, int column) const;
    // Stores a run of a column's cells from firstRow on, bulk by bulk; the bulks must exist.
    void StoreRows(int firstRow, int column, std::vector<TableCellContent>&& cells);

private:
    struct BulkColumn
    {
        std::vector<TableCellContent> cells;
        std::bitset<GridContentIndex::c_rowsCountBulk> filled;
    };
    using Bulk = std::vector<BulkColumn>;

    BulkColumn& GetBulkColumn(int bulk, int column);
    const BulkColumn& GetBulkColumn(int bulk, int column) const;

    int m_columnCount = 0;
    std::vector<Bulk> m_bulks;
};

} // namespace Orvo::UI::UIComponents
