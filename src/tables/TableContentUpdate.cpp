#include "TableContentUpdate.h"

#include <algorithm>
#include <iterator>

namespace Orvo::UI::UIComponents {

TableContentUpdate::Rows& TableContentUpdate::Detach()
{
    if (!m_rows)
        m_rows = std::make_shared<Rows>();
    else if (m_rows.use_count() > 1)
        m_rows = std::make_shared<Rows>(*m_rows);
    return *m_rows;
}

const TableContentUpdate::Rows& TableContentUpdate::GetRows() const
{
    static const Rows empty;
    return m_rows ? *m_rows : empty;
}

void TableContentUpdate::SetValue(int row, int column, const QVariant& value)
{
    Detach()[row][column] = value;
    m_maxRow = std::max(m_maxRow, row);
}

QVariant TableContentUpdate::GetValue(int row, int column) const
{
    const Rows& rows = GetRows();
    const auto rowIt = rows.find(row);
    if (rowIt == rows.end())
        return {};
    const auto columnIt = rowIt->second.find(column);
    return columnIt == rowIt->second.end() ? QVariant() : columnIt->second;
}

bool TableContentUpdate::Contains(int row, int column) const
{
    const Rows& rows = GetRows();
    const auto rowIt = rows.find(row);
    return rowIt != rows.end() && rowIt->second.count(column) > 0;
}

void TableContentUpdate::Remove(int row, int column)
{
    // maxRow keeps its value: it tells the largest row ever set since the last clear.
    if (!Contains(row, column))
        return;
    Rows& rows = Detach();
    const auto rowIt = rows.find(row);
    rowIt->second.erase(column);
    if (rowIt->second.empty())
        rows.erase(rowIt);
}

template<typename Mapping> void TableContentUpdate::RenumberColumns(Mapping newColumn)
{
    if (IsEmpty())
        return;
    Rows& rows = Detach();
    for (auto rowIt = rows.begin(); rowIt != rows.end();) {
        RowValues renumbered;
        for (auto& [column, value] : rowIt->second) {
            const int target = newColumn(column);
            if (target >= 0)
                renumbered.emplace(target, std::move(value));
        }
        rowIt->second = std::move(renumbered);
        rowIt = rowIt->second.empty() ? rows.erase(rowIt) : std::next(rowIt);
    }
}

void TableContentUpdate::RemoveColumn(int column)
{
    RenumberColumns([column](int c) { return c == column ? -1 : (c > column ? c - 1 : c); });
}

void TableContentUpdate::MoveColumn(int srcIndex, int dstIndex)
{
    const int target = dstIndex > srcIndex ? dstIndex - 1 : dstIndex;
    if (target == srcIndex)
        return;
    RenumberColumns([&](int c) {
        if (c == srcIndex)
            return target;
        if (srcIndex < target && c > srcIndex && c <= target)
            return c - 1;
        if (target < srcIndex && c >= target && c < srcIndex)
            return c + 1;
        return c;
    });
}

void TableContentUpdate::Clear()
{
    m_rows.reset();
    m_maxRow = -1;
}

} // namespace Orvo::UI::UIComponents
