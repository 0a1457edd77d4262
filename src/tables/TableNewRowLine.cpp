#include "TableNewRowLine.h"

#include "MoveVectorElement.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

void TableNewRowLine::AppendColumns(int count)
{
    m_values.resize(m_values.size() + static_cast<std::size_t>(std::max(count, 0)));
}

void TableNewRowLine::RemoveColumn(int column)
{
    if (column >= 0 && column < static_cast<int>(m_values.size()))
        m_values.erase(m_values.begin() + column);
}

void TableNewRowLine::MoveColumn(int srcIndex, int dstIndex)
{
    const int count = static_cast<int>(m_values.size());
    if (srcIndex < 0 || srcIndex >= count || dstIndex < 0 || dstIndex > count || srcIndex == dstIndex)
        return;
    MoveVectorElement(m_values, srcIndex, dstIndex);
}

QString TableNewRowLine::Value(int column) const
{
    return column >= 0 && column < static_cast<int>(m_values.size())
        ? m_values[static_cast<std::size_t>(column)]
        : QString();
}

bool TableNewRowLine::SetValue(int column, const QString& value)
{
    if (column < 0 || column >= static_cast<int>(m_values.size()))
        return false;
    m_values[static_cast<std::size_t>(column)] = value;
    m_hasData = true;
    return true;
}

bool TableNewRowLine::IsAllRequiredFilled(const TableColumnLayout& layout) const
{
    for (int column = 0; column < layout.Count(); ++column) {
        if (layout.At(column).required && Value(column).isEmpty())
            return false;
    }
    return true;
}

void TableNewRowLine::CopyInto(TableContentUpdate& update, int row) const
{
    if (!m_hasData)
        return;
    for (std::size_t column = 0; column < m_values.size(); ++column) {
        if (!m_values[column].isEmpty())
            update.SetValue(row, static_cast<int>(column), m_values[column]);
    }
}

void TableNewRowLine::Clear()
{
    for (QString& value : m_values)
        value.clear();
    m_hasData = false;
}

} // namespace Orvo::UI::UIComponents
