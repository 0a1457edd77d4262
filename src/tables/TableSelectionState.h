#pragma once

#include "TableSelectionRegion.h"

#include <functional>
#include <optional>
#include <set>
#include <vector>

namespace Orvo::UI::UIComponents {

// What a table's selection is made of, in content-model coordinates, and how it keeps up with
// rows and columns the content model inserts, removes and moves. It knows nothing of views or
// listeners: TableSelectionModel changes it and tells who needs to know.
struct TableSelectionState
{
    struct Cell
    {
        int row = -1;
        int column = -1;
        bool operator==(const Cell& other) const { return row == other.row && column == other.column; }
        bool operator!=(const Cell& other) const { return !(*this == other); }
    };
    // Bounding rows and columns of every selected cell.
    struct Envelope
    {
        int top, left, bottom, right;
    };

    std::vector<TableSelectionRegion> regions;
    // The rectangle being dragged, not part of regions until the drag ends.
    std::optional<TableSelectionRegion> dragged;
    bool selectedAll = false;
    // Rows selected by their header.
    std::set<int> wholeRows;
    Cell current;
    // The fixed corner of a Shift-extension and the moving one.
    Cell anchor;
    Cell extent;

    bool IsCellSelected(int row, int column) const { return FindRegion(row, column) >= 0; }
    int FindRegion(int row, int column) const;
    // nullopt when no cell is selected.
    static std::optional<Envelope> EnvelopeOf(const std::vector<TableSelectionRegion>& regions);
    // Visits every selected cell once, row by row, in ascending order.
    void ForEachSelectedCell(const std::function<void(int row, int column)>& visit) const;

    // False when region adds no cell: repeated identical clicks must not pile up regions.
    bool AddRegion(TableSelectionRegion region);
    // Removes the cells of region; the rows it touches are no longer selected as whole rows.
    void SubtractRegion(const TableSelectionRegion& region);

    // Cells on removed lines are no longer selected and a point (current, anchor, extent) on one is
    // forgotten; cells and points after them move up, or right for inserted lines.
    void RemoveRows(int first, int last);
    void InsertRows(int first, int count);
    void RemoveColumns(int first, int last);
    void InsertColumns(int first, int count);
    // Columns start..end moved to stand before column, as QAbstractItemModel::columnsMoved says.
    void MoveColumns(int start, int end, int column, int columnCount);

    // Rows 0..count-1 were inserted by a feeder refilling the table: they get back the selection
    // they had before (what lies beyond them is gone), points elsewhere move as for any insert.
    void InsertRefilledRows(TableSelectionState before, int count);

private:
    void ForgetPointsOnRemovedLines(int Cell::*line, int first, int last);
};

} // namespace Orvo::UI::UIComponents
