#include "TableContentUpdate.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

void TableContentUpdate::SetValue(int row, int column, const QVariant& value)
{
    m_rows[row][column] = value;
    m_maxRow = std::max(m_maxRow, row);
}

QVariant TableContentUpdate::GetValue(int row, int column) const
{
    const auto rowIt = m_rows.find(row);
    if (rowIt == m_rows.end())
        return {};
    const auto columnIt = rowIt->second.find(column);
    return columnIt == rowIt->second.end() ? QVariant() : columnIt->second;
}

bool TableContentUpdate::Contains(int row, int column) const
{
    const auto rowIt = m_rows.find(row);
    return rowIt != m_rows.end() && rowIt->second.count(column) > 0;
}

void TableContentUpdate::Remove(int row, int column)
{
    // maxRow keeps its value: it tells the largest row ever set since the last clear.
    const auto rowIt = m_rows.find(row);
    if (rowIt == m_rows.end())
        return;
    rowIt->second.erase(column);
    if (rowIt->second.empty())
        m_rows.erase(rowIt);
}

void TableContentUpdate::Clear()
{
    m_rows.clear();
    m_maxRow = -1;
}

} // namespace Orvo::UI::UIComponents
