#include "TableSelectionState.h"

#include <algorithm>
#include <map>

namespace Orvo::UI::UIComponents {

int TableSelectionState::FindRegion(int row, int column) const
{
    for (std::size_t i = 0; i < regions.size(); ++i) {
        if (regions[i].Contains(row, column))
            return static_cast<int>(i);
    }
    return -1;
}

std::optional<TableSelectionState::Envelope>
TableSelectionState::EnvelopeOf(const std::vector<TableSelectionRegion>& regions)
{
    if (regions.empty())
        return std::nullopt;
    const TableSelectionRegion& first = regions.front();
    Envelope envelope { first.GetTop(), first.GetLeft(), first.GetBottom(), first.GetRight() };
    for (const TableSelectionRegion& region : regions) {
        envelope.top = std::min(envelope.top, region.GetTop());
        envelope.bottom = std::max(envelope.bottom, region.GetBottom());
        envelope.left = std::min(envelope.left, region.GetLeft());
        envelope.right = std::max(envelope.right, region.GetRight());
    }
    return envelope;
}

void TableSelectionState::ForEachSelectedCell(const std::function<void(int, int)>& visit) const
{
    if (regions.size() == 1) {
        // The common case, select all included: no bookkeeping needed.
        const TableSelectionRegion& region = regions.front();
        region.ForEachRow([&](int row) {
            for (int column = region.GetLeft(); column <= region.GetRight(); ++column)
                visit(row, column);
        });
        return;
    }
    // Regions may overlap: gather the columns of each row first so that no cell is visited twice.
    std::map<int, std::set<int>> cells;
    for (const TableSelectionRegion& region : regions) {
        region.ForEachRow([&](int row) {
            auto& columns = cells[row];
            for (int column = region.GetLeft(); column <= region.GetRight(); ++column)
                columns.insert(column);
        });
    }
    for (const auto& [row, columns] : cells) {
        for (int column : columns)
            visit(row, column);
    }
}

bool TableSelectionState::AddRegion(TableSelectionRegion region)
{
    if (region.IsEmpty())
        return false;
    for (const TableSelectionRegion& existing : regions) {
        if (region.Subtract(existing).empty())
            return false;
    }
    regions.push_back(std::move(region));
    return true;
}

void TableSelectionState::SubtractRegion(const TableSelectionRegion& region)
{
    std::vector<TableSelectionRegion> remaining;
    for (const TableSelectionRegion& existing : regions) {
        for (TableSelectionRegion& piece : existing.Subtract(region))
            remaining.push_back(std::move(piece));
    }
    regions = std::move(remaining);
    selectedAll = false;
    if (!wholeRows.empty())
        region.ForEachRow([&](int row) { wholeRows.erase(row); });
}

void TableSelectionState::RemoveRows(int first, int last)
{
    const int count = last - first + 1;
    std::vector<TableSelectionRegion> remaining;
    for (TableSelectionRegion& region : regions) {
        if (region.RemoveRows(first, last))
            remaining.push_back(std::move(region));
    }
    regions = std::move(remaining);
    if (dragged && !dragged->RemoveRows(first, last))
        dragged.reset();
    std::set<int> rows;
    for (int row : wholeRows) {
        if (row < first)
            rows.insert(row);
        else if (row > last)
            rows.insert(row - count);
    }
    wholeRows = std::move(rows);
    if (regions.empty())
        selectedAll = false;
    ForgetPointsOnRemovedLines(&Cell::row, first, last);
}

void TableSelectionState::InsertRows(int first, int count)
{
    for (TableSelectionRegion& region : regions)
        region.InsertRows(first, count);
    if (dragged)
        dragged->InsertRows(first, count);
    std::set<int> rows;
    for (int row : wholeRows)
        rows.insert(row >= first ? row + count : row);
    wholeRows = std::move(rows);
    for (Cell* point : { &current, &anchor, &extent }) {
        if (point->row >= first)
            point->row += count;
    }
}

void TableSelectionState::RemoveColumns(int first, int last)
{
    std::vector<TableSelectionRegion> remaining;
    for (TableSelectionRegion& region : regions) {
        if (region.RemoveColumns(first, last))
            remaining.push_back(std::move(region));
    }
    regions = std::move(remaining);
    if (dragged && !dragged->RemoveColumns(first, last))
        dragged.reset();
    if (regions.empty()) {
        selectedAll = false;
        wholeRows.clear();
    }
    ForgetPointsOnRemovedLines(&Cell::column, first, last);
}

void TableSelectionState::InsertColumns(int first, int count)
{
    for (TableSelectionRegion& region : regions)
        region.InsertColumns(first, count);
    if (dragged)
        dragged->InsertColumns(first, count);
    for (Cell* point : { &current, &anchor, &extent }) {
        if (point->column >= first)
            point->column += count;
    }
}

void TableSelectionState::ForgetPointsOnRemovedLines(int Cell::*line, int first, int last)
{
    const int count = last - first + 1;
    for (Cell* point : { &current, &anchor, &extent }) {
        if (point->*line > last)
            point->*line -= count;
        else if (point->*line >= first)
            *point = Cell();
    }
}

void TableSelectionState::MoveColumns(int start, int end, int column, int columnCount)
{
    // The permutation the move applied: old column -> new column.
    std::vector<int> order(static_cast<std::size_t>(columnCount));
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<int>(i);
    const int count = end - start + 1;
    std::vector<int> moved(order.begin() + start, order.begin() + end + 1);
    order.erase(order.begin() + start, order.begin() + end + 1);
    const int insertAt = column > start ? column - count : column;
    order.insert(order.begin() + insertAt, moved.begin(), moved.end());
    std::vector<int> newColumnOf(order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        newColumnOf[static_cast<std::size_t>(order[i])] = static_cast<int>(i);

    std::vector<TableSelectionRegion> mapped;
    for (const TableSelectionRegion& region : regions) {
        for (TableSelectionRegion& piece : region.MapColumns(newColumnOf))
            mapped.push_back(std::move(piece));
    }
    regions = std::move(mapped);
    dragged.reset();
    for (Cell* point : { &current, &anchor, &extent }) {
        if (point->column >= 0 && point->column < columnCount)
            point->column = newColumnOf[static_cast<std::size_t>(point->column)];
    }
}

void TableSelectionState::InsertRefilledRows(TableSelectionState before, int count)
{
    InsertRows(0, count);
    for (TableSelectionRegion& region : before.regions) {
        if (region.RemoveRows(count, std::max(count, region.GetBottom())))
            regions.push_back(std::move(region));
    }
    selectedAll = before.selectedAll && !regions.empty();
    for (int row : before.wholeRows) {
        if (row < count)
            wholeRows.insert(row);
    }
    if (before.current.row < count)
        current = anchor = extent = before.current;
}

} // namespace Orvo::UI::UIComponents
