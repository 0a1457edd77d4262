#include "TableColumnLayout.h"

#include "MoveVectorElement.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

int TableColumnLayout::FindById(const QString& id) const
{
    const auto it = std::find_if(m_columns.begin(), m_columns.end(),
                                 [&](const TableColumn& column) { return column.id == id; });
    return it == m_columns.end() ? -1 : static_cast<int>(it - m_columns.begin());
}

std::vector<QString> TableColumnLayout::Ids() const
{
    std::vector<QString> ids;
    ids.reserve(m_columns.size());
    for (const TableColumn& column : m_columns)
        ids.push_back(column.id);
    return ids;
}

void TableColumnLayout::Append(std::vector<TableColumn>&& columns)
{
    for (TableColumn& column : columns) {
        // A column without a stored layout width starts one step wide.
        if (column.width <= 0)
            column.width = c_widthStep;
        m_liveWidths.push_back(column.width);
        m_minimumWidthDecided.push_back(false);
        m_columns.push_back(std::move(column));
    }
}

void TableColumnLayout::Remove(int column)
{
    if (!Contains(column))
        return;
    m_columns.erase(m_columns.begin() + column);
    m_liveWidths.erase(m_liveWidths.begin() + column);
    m_minimumWidthDecided.erase(m_minimumWidthDecided.begin() + column);
}

void TableColumnLayout::Move(int srcIndex, int dstIndex)
{
    if (!Contains(srcIndex) || dstIndex < 0 || dstIndex > Count() || srcIndex == dstIndex)
        return;
    MoveVectorElement(m_columns, srcIndex, dstIndex);
    MoveVectorElement(m_liveWidths, srcIndex, dstIndex);
    MoveVectorElement(m_minimumWidthDecided, srcIndex, dstIndex);
}

void TableColumnLayout::SetLabel(int column, const QString& label)
{
    if (Contains(column))
        m_columns[static_cast<std::size_t>(column)].label = label;
}

int TableColumnLayout::LiveWidth(int column) const
{
    return Contains(column) ? m_liveWidths[static_cast<std::size_t>(column)] : 0;
}

bool TableColumnLayout::SetLiveWidth(int column, int width)
{
    if (!Contains(column))
        return false;
    width = std::max(width, At(column).minWidth);
    int& liveWidth = m_liveWidths[static_cast<std::size_t>(column)];
    if (liveWidth == width)
        return false;
    liveWidth = width;
    return true;
}

bool TableColumnLayout::Submit()
{
    bool changed = false;
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        if (m_columns[column].width != m_liveWidths[column]) {
            m_columns[column].width = m_liveWidths[column];
            changed = true;
        }
    }
    return changed;
}

std::vector<int> TableColumnLayout::Extend()
{
    std::vector<int> changed;
    for (int column = 0; column < Count(); ++column) {
        // Integer division on purpose: a width snaps to the next multiple of the step.
        const int width = LiveWidth(column);
        const qint64 snapped = (static_cast<qint64>(width) / c_widthStep + 1) * c_widthStep;
        const int wider = std::max<int>(width, static_cast<int>(std::min<qint64>(snapped, c_maxWidth)));
        if (SetLiveWidth(column, wider))
            changed.push_back(column);
    }
    return changed;
}

std::vector<int> TableColumnLayout::Narrow()
{
    std::vector<int> changed;
    for (int column = 0; column < Count(); ++column) {
        const int width = LiveWidth(column);
        const int snapped = (width / c_widthStep - 1) * c_widthStep;
        if (SetLiveWidth(column, std::min(width, std::max(snapped, At(column).minWidth))))
            changed.push_back(column);
    }
    return changed;
}

std::vector<int> TableColumnLayout::SetSortOrder(int column, int order)
{
    if (!Contains(column) || At(column).sortOrder == order)
        return {};
    // The host sorts by one column at a time.
    std::vector<int> changed;
    for (int other = 0; other < Count(); ++other) {
        TableColumn& otherColumn = m_columns[static_cast<std::size_t>(other)];
        if (other != column && otherColumn.sortOrder != 0) {
            otherColumn.sortOrder = 0;
            changed.push_back(other);
        }
    }
    m_columns[static_cast<std::size_t>(column)].sortOrder = order;
    changed.push_back(column);
    return changed;
}

bool TableColumnLayout::SetMinWidth(int column, int minWidth)
{
    if (!Contains(column) || At(column).minWidth == minWidth)
        return false;
    TableColumn& tableColumn = m_columns[static_cast<std::size_t>(column)];
    tableColumn.minWidth = minWidth;
    if (tableColumn.width < minWidth)
        tableColumn.width = minWidth;
    SetLiveWidth(column, LiveWidth(column));
    return true;
}

bool TableColumnLayout::IsMinimumWidthDecided(int column) const
{
    return !Contains(column) || m_minimumWidthDecided[static_cast<std::size_t>(column)] != 0;
}

void TableColumnLayout::SetMinimumWidthDecided(int column)
{
    if (Contains(column))
        m_minimumWidthDecided[static_cast<std::size_t>(column)] = true;
}

} // namespace Orvo::UI::UIComponents
