#include "TableContentGrid.h"

#include "MoveVectorElement.h"

#include <QString>
#include <algorithm>
#include <stdexcept>

namespace Orvo::UI::UIComponents {

void TableContentGrid::Reset(int columnCount, int bulkCount)
{
    m_columnCount = columnCount;
    m_bulks.clear();
    ++m_revision;
    AppendBulks(bulkCount);
}

void TableContentGrid::AppendBulks(int count)
{
    for (int i = 0; i < count; ++i)
        m_bulks.emplace_back(static_cast<std::size_t>(m_columnCount));
    ++m_revision;
}

void TableContentGrid::AppendColumns(int count)
{
    m_columnCount += count;
    for (Bulk& bulk : m_bulks)
        bulk.resize(static_cast<std::size_t>(m_columnCount));
    ++m_revision;
}

void TableContentGrid::RemoveColumn(int column)
{
    if (column < 0 || column >= m_columnCount)
        throw std::overflow_error(QStringLiteral("There is no column at %1").arg(column).toStdString());
    for (Bulk& bulk : m_bulks)
        bulk.erase(bulk.begin() + column);
    --m_columnCount;
    ++m_revision;
}

void TableContentGrid::MoveColumn(int srcIndex, int dstIndex)
{
    if (srcIndex < 0 || srcIndex >= m_columnCount || dstIndex < 0 || dstIndex > m_columnCount)
        throw std::overflow_error(
            "Expected range for source index is [0, count - 1] and destination index is [0, count]");
    for (Bulk& bulk : m_bulks)
        MoveVectorElement(bulk, srcIndex, dstIndex);
    ++m_revision;
}

bool TableContentGrid::IsFilled(GridContentIndex index, int column) const
{
    if (index.bulk < 0 || index.bulk >= GetBulkCount() || column < 0 || column >= m_columnCount)
        return false;
    return m_bulks[static_cast<std::size_t>(index.bulk)][static_cast<std::size_t>(column)].filled.test(
        static_cast<std::size_t>(index.offset));
}

bool TableContentGrid::IsBulkFilled(int bulk, int column, int rows) const
{
    if (bulk < 0 || bulk >= GetBulkCount() || column < 0 || column >= m_columnCount)
        return false;
    const BulkColumn& bulkColumn = m_bulks[static_cast<std::size_t>(bulk)][static_cast<std::size_t>(column)];
    if (rows == GridContentIndex::c_rowsCountBulk)
        return bulkColumn.filled.all();
    for (int offset = 0; offset < rows; ++offset) {
        if (!bulkColumn.filled.test(static_cast<std::size_t>(offset)))
            return false;
    }
    return true;
}

std::uint64_t TableContentGrid::Revision(int bulk, int column) const
{
    if (bulk < 0 || bulk >= GetBulkCount() || column < 0 || column >= m_columnCount)
        return 0;
    return m_bulks[static_cast<std::size_t>(bulk)][static_cast<std::size_t>(column)].revision;
}

const TableCellContent& TableContentGrid::GetCell(GridContentIndex index, int column) const
{
    const BulkColumn& bulkColumn = GetBulkColumn(index.bulk, column);
    if (static_cast<std::size_t>(index.offset) >= bulkColumn.cells.size())
        throw std::overflow_error(QStringLiteral("No allocation for required row %1 and column %2")
                                      .arg(index.bulk)
                                      .arg(column)
                                      .toStdString());
    return bulkColumn.cells[static_cast<std::size_t>(index.offset)];
}

TableContentGrid::BulkColumn& TableContentGrid::GetBulkColumn(int bulk, int column)
{
    return const_cast<BulkColumn&>(static_cast<const TableContentGrid*>(this)->GetBulkColumn(bulk, column));
}

const TableContentGrid::BulkColumn& TableContentGrid::GetBulkColumn(int bulk, int column) const
{
    if (bulk < 0 || bulk >= GetBulkCount() || column < 0 || column >= m_columnCount)
        throw std::overflow_error(QStringLiteral("No allocation for required row %1 and column %2")
                                      .arg(bulk)
                                      .arg(column)
                                      .toStdString());
    return m_bulks[static_cast<std::size_t>(bulk)][static_cast<std::size_t>(column)];
}

void TableContentGrid::StoreRows(int firstRow, int column, std::vector<TableCellContent>&& cells)
{
    auto source = std::make_move_iterator(cells.begin());
    int row = firstRow;
    int left = static_cast<int>(cells.size());
    while (left > 0) {
        // Each chunk ends at a bulk boundary.
        const GridContentIndex index = GridContentIndex::FromRow(row);
        const int chunk = std::min(left, GridContentIndex::c_rowsCountBulk - index.offset);
        BulkColumn& bulkColumn = GetBulkColumn(index.bulk, column);
        const std::size_t end = static_cast<std::size_t>(index.offset + chunk);
        if (bulkColumn.cells.size() < end)
            bulkColumn.cells.resize(end);
        for (int i = 0; i < chunk; ++i, ++source) {
            bulkColumn.cells[static_cast<std::size_t>(index.offset + i)] = *source;
            bulkColumn.filled.set(static_cast<std::size_t>(index.offset + i));
        }
        bulkColumn.revision = ++m_revision;
        row += chunk;
        left -= chunk;
    }
}

} // namespace Orvo::UI::UIComponents
