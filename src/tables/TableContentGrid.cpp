#include "TableContentGrid.h"

#include <QString>
#include <stdexcept>

namespace Orvo::UI::UIComponents {

void TableContentGrid::Reset(int columnCount, int bulkCount)
{
    m_columnCount = columnCount;
    m_bulks.clear();
    AppendBulks(bulkCount);
}

void TableContentGrid::AppendBulks(int count)
{
    for (int i = 0; i < count; ++i)
        m_bulks.emplace_back(static_cast<std::size_t>(m_columnCount));
}

void TableContentGrid::AppendColumns(int count)
{
    m_columnCount += count;
    for (Bulk& bulk : m_bulks)
        bulk.resize(static_cast<std::size_t>(m_columnCount));
}

void TableContentGrid::RemoveColumn(int column)
{
    if (column < 0 || column >= m_columnCount)
        throw std::overflow_error(QStringLiteral("There is no column at %1").arg(column).toStdString());
    for (Bulk& bulk : m_bulks)
        bulk.erase(bulk.begin() + column);
    --m_columnCount;
}

void TableContentGrid::MoveColumn(int srcIndex, int dstIndex)
{
    if (srcIndex < 0 || srcIndex >= m_columnCount || dstIndex < 0 || dstIndex > m_columnCount)
        throw std::overflow_error(
            "Expected range for source index is [0, count - 1] and destination index is [0, count]");
    // dstIndex is the position before which the column lands, counted before the move.
    const int target = dstIndex > srcIndex ? dstIndex - 1 : dstIndex;
    if (target == srcIndex)
        return;
    for (Bulk& bulk : m_bulks) {
        BulkColumn moved = std::move(bulk[static_cast<std::size_t>(srcIndex)]);
        bulk.erase(bulk.begin() + srcIndex);
        bulk.insert(bulk.begin() + target, std::move(moved));
    }
}

bool TableContentGrid::IsFilled(GridContentIndex index, int column) const
{
    if (index.bulk < 0 || index.bulk >= GetBulkCount() || column < 0 || column >= m_columnCount)
        return false;
    return m_bulks[static_cast<std::size_t>(index.bulk)][static_cast<std::size_t>(column)].filled.test(
        static_cast<std::size_t>(index.offset));
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

} // namespace Orvo::UI::UIComponents
