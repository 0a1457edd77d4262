#pragma once

#include "TableColumn.h"

#include <QString>
#include <limits>
#include <vector>

namespace Orvo::UI::UIComponents {

// The visible columns of a table with their layout: the widths being dragged (live) and the ones
// kept in the layout, minimum widths, the one sorted column and the order of the columns. It
// knows nothing of cells or signals; the content model announces what the returned values say.
class TableColumnLayout
{
public:
    static constexpr int c_widthStep = 64; // widths snap to multiples of it
    static constexpr int c_maxWidth = std::numeric_limits<int>::max();

    int Count() const { return static_cast<int>(m_columns.size()); }
    bool Contains(int column) const { return column >= 0 && column < Count(); }
    const std::vector<TableColumn>& Columns() const { return m_columns; }
    const TableColumn& At(int column) const { return m_columns[static_cast<std::size_t>(column)]; }
    int FindById(const QString& id) const; // -1 when no visible column has that id
    std::vector<QString> Ids() const;

    void Append(std::vector<TableColumn>&& columns);
    void Remove(int column);
    // Moves a column so that it stands before dstIndex (Count() moves it to the end).
    void Move(int srcIndex, int dstIndex);
    void SetLabel(int column, const QString& label);

    int LiveWidth(int column) const; // 0 outside the columns
    // The live width, never below the column's minimum; true when it changed.
    bool SetLiveWidth(int column, int width);
    // Keeps the live widths in the layout; true when any differed.
    bool Submit();
    // One step wider or narrower for every column, snapped to the step; the columns that changed.
    std::vector<int> Extend();
    std::vector<int> Narrow();

    // At most one column is sorted: the columns whose order changed, this one last; empty when
    // the column already had that order.
    std::vector<int> SetSortOrder(int column, int order);
    // True when the minimum changed; a narrower column is widened to it, live width included.
    bool SetMinWidth(int column, int minWidth);

    // A column whose minimum follows its first delivered value is looked at only once.
    bool IsMinimumWidthDecided(int column) const;
    void SetMinimumWidthDecided(int column);

private:
    std::vector<TableColumn> m_columns;
    std::vector<int> m_liveWidths;
    std::vector<char> m_minimumWidthDecided; // not vector<bool>: its elements move like any other
};

} // namespace Orvo::UI::UIComponents
