#include "TableContentGrid.h"

#include "MoveVectorElement.h"

#include <QString>
#include <algorithm>
#include <stdexcept>

namespace Orvo::UI::UIComponents {

namespace {

std::overflow_error AllocationError(int bulk, int column)
{
    return std::overflow_error(QStringLiteral("No allocation for required row %1 and column %2")
                                   .arg(bulk)
                                   .arg(column)
                                   .toStdString());
}

} // namespace

void TableContentGrid::Reset(int columnCount, int bulkCount)
{
    m_columnCount = columnCount;
    m_bulks.clear();
    ++m_revision;
    AppendBulks(bulkCount);
}

void TableContentGrid::AppendBulks(int count)
{
    // Empty bulks cost no allocation of their own: announcing a million rows stays cheap.
    m_bulks.resize(m_bulks.size() + static_cast<std::size_t>(std::max(0, count)));
    ++m_revision;
}

void TableContentGrid::AppendColumns(int count)
{
    m_columnCount += count;
    for (Bulk& bulk : m_bulks) {
        if (!bulk.empty())
            bulk.resize(static_cast<std::size_t>(m_columnCount));
    }
    ++m_revision;
}

void TableContentGrid::RemoveColumn(int column)
{
    if (column < 0 || column >= m_columnCount)
        throw std::overflow_error(QStringLiteral("There is no column at %1").arg(column).toStdString());
    for (Bulk& bulk : m_bulks) {
        if (!bulk.empty())
            bulk.erase(bulk.begin() + column);
    }
    --m_columnCount;
    ++m_revision;
}

void TableContentGrid::MoveColumn(int srcIndex, int dstIndex)
{
    if (srcIndex < 0 || srcIndex >= m_columnCount || dstIndex < 0 || dstIndex > m_columnCount)
        throw std::overflow_error(
            "Expected range for source index is [0, count - 1] and destination index is [0, count]");
    for (Bulk& bulk : m_bulks) {
        if (!bulk.empty())
            MoveVectorElement(bulk, srcIndex, dstIndex);
    }
    ++m_revision;
}

const TableCompactCells* TableContentGrid::Find(int bulk, int column) const
{
    if (bulk < 0 || bulk >= GetBulkCount() || column < 0 || column >= m_columnCount)
        return nullptr;
    const Bulk& cells = m_bulks[static_cast<std::size_t>(bulk)];
    return cells.empty() ? nullptr : cells[static_cast<std::size_t>(column)].get();
}

TableCompactCells& TableContentGrid::Allocate(int bulk, int column)
{
    if (bulk < 0 || bulk >= GetBulkCount() || column < 0 || column >= m_columnCount)
        throw AllocationError(bulk, column);
    Bulk& cells = m_bulks[static_cast<std::size_t>(bulk)];
    if (cells.empty())
        cells.resize(static_cast<std::size_t>(m_columnCount));
    std::unique_ptr<TableCompactCells>& allocated = cells[static_cast<std::size_t>(column)];
    if (!allocated)
        allocated = std::make_unique<TableCompactCells>();
    return *allocated;
}

bool TableContentGrid::IsFilled(GridContentIndex index, int column) const
{
    const TableCompactCells* cells = Find(index.bulk, column);
    return cells && cells->IsFilled(index.offset);
}

bool TableContentGrid::IsBulkFilled(int bulk, int column, int rows) const
{
    if (bulk < 0 || bulk >= GetBulkCount() || column < 0 || column >= m_columnCount)
        return false;
    const TableCompactCells* cells = Find(bulk, column);
    if (!cells)
        return rows <= 0;
    if (rows == GridContentIndex::c_rowsCountBulk)
        return cells->Filled().all();
    for (int offset = 0; offset < rows; ++offset) {
        if (!cells->IsFilled(offset))
            return false;
    }
    return true;
}

std::uint64_t TableContentGrid::Revision(int bulk, int column) const
{
    const TableCompactCells* cells = Find(bulk, column);
    return cells ? cells->revision : 0;
}

TableCellContent TableContentGrid::GetCell(GridContentIndex index, int column) const
{
    const TableCompactCells* cells = Find(index.bulk, column);
    if (!cells || index.offset < 0 || index.offset >= cells->Size())
        throw AllocationError(index.bulk, column);
    return cells->Cell(index.offset);
}

void TableContentGrid::StoreRows(int firstRow, int column, std::vector<TableCellContent>&& cells)
{
    auto source = cells.begin();
    int row = firstRow;
    int left = static_cast<int>(cells.size());
    while (left > 0) {
        // Each chunk ends at a bulk boundary.
        const GridContentIndex index = GridContentIndex::FromRow(row);
        const int chunk = std::min(left, GridContentIndex::c_rowsCountBulk - index.offset);
        TableCompactCells& stored = Allocate(index.bulk, column);
        for (int i = 0; i < chunk; ++i, ++source)
            stored.Store(index.offset + i, std::move(*source));
        stored.Squeeze();
        stored.revision = ++m_revision;
        row += chunk;
        left -= chunk;
    }
}

} // namespace Orvo::UI::UIComponents
