#pragma once

#include "TableCellContent.h"
#include "TableCompactCells.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
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
static_assert(TableCompactCells::c_rows == GridContentIndex::c_rowsCountBulk);

// The sparse cache of cells: bulks of 100 rows, each holding the compact cells of every column once
// the feeder delivered some of its rows. Only what the view has touched costs memory: a bulk that
// was never delivered to is an empty vector.
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
    // The cell at index, put together from the compact cells; throws std::overflow_error when the
    // bulk or the column is not allocated.
    TableCellContent GetCell(GridContentIndex index, int column) const;
    // Stores a run of a column's cells from firstRow on, bulk by bulk; the bulks must exist.
    void StoreRows(int firstRow, int column, std::vector<TableCellContent>&& cells);
    // Whether the first `rows` rows of the bulk all have the column's cell.
    bool IsBulkFilled(int bulk, int column, int rows) const;
    // The number of rows the bulk holds when the table has rowCount rows.
    static int BulkRowCount(int bulk, int rowCount)
    {
        return std::max(
            0,
            std::min(GridContentIndex::c_rowsCountBulk, rowCount - bulk * GridContentIndex::c_rowsCountBulk));
    }
    // Changes whenever the cells of the bulk's column change; never repeats within one grid, so that
    // whatever was derived from the cells can tell whether it is still current. 0: nothing stored.
    std::uint64_t Revision(int bulk, int column) const;
    // Changes whenever any cell, bulk or column changes.
    std::uint64_t Revision() const { return m_revision; }

private:
    // Empty until something is stored in the bulk; then one entry per column, null for a column
    // with nothing stored.
    using Bulk = std::vector<std::unique_ptr<TableCompactCells>>;

    // The compact cells of the bulk's column; null when nothing was stored there.
    const TableCompactCells* Find(int bulk, int column) const;
    TableCompactCells& Allocate(int bulk, int column);

    int m_columnCount = 0;
    std::vector<Bulk> m_bulks;
    std::uint64_t m_revision = 0;
};

} // namespace Orvo::UI::UIComponents
