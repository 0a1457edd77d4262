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
    // Copies count cells from first into the rows starting at index (all inside one bulk).
    template<typename Iterator> void Store(GridContentIndex index, int column, Iterator first, int count);

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

template<typename Iterator>
void TableContentGrid::Store(GridContentIndex index, int column, Iterator first, int count)
{
    BulkColumn& bulkColumn = GetBulkColumn(index.bulk, column);
    const std::size_t end = static_cast<std::size_t>(index.offset + count);
    if (bulkColumn.cells.empty())
        bulkColumn.cells.reserve(end);
    if (bulkColumn.cells.size() < end)
        bulkColumn.cells.resize(end);
    for (int i = 0; i < count; ++i, ++first) {
        bulkColumn.cells[static_cast<std::size_t>(index.offset + i)] = *first;
        bulkColumn.filled.set(static_cast<std::size_t>(index.offset + i));
    }
}

} // namespace Orvo::UI::UIComponents
