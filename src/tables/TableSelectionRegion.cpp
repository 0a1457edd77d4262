#include "TableSelectionRegion.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

TableSelectionRegion::TableSelectionRegion(int left, int right, std::vector<RowRun> runs)
    : m_left(left)
    , m_right(right)
    , m_runs(std::move(runs))
{ }

TableSelectionRegion TableSelectionRegion::Rectangle(int top, int left, int bottom, int right)
{
    return TableSelectionRegion(std::min(left, right), std::max(left, right),
                                { RowRun { std::min(top, bottom), std::max(top, bottom) } });
}

bool TableSelectionRegion::ContainsRow(int row) const
{
    // The last run starting at or before row is the only candidate.
    auto it = std::upper_bound(m_runs.begin(), m_runs.end(), row,
                               [](int value, const RowRun& run) { return value < run.first; });
    if (it == m_runs.begin())
        return false;
    --it;
    return row <= it->last;
}

bool TableSelectionRegion::Contains(int row, int column) const
{
    return column >= m_left && column <= m_right && ContainsRow(row);
}

int TableSelectionRegion::GetTop() const
{
    return m_runs.empty() ? -1 : m_runs.front().first;
}

int TableSelectionRegion::GetBottom() const
{
    return m_runs.empty() ? -1 : m_runs.back().last;
}

void TableSelectionRegion::ForEachRow(const std::function<void(int)>& visit) const
{
    for (const RowRun& run : m_runs) {
        for (int row = run.first; row <= run.last; ++row)
            visit(row);
    }
}

bool TableSelectionRegion::operator==(const TableSelectionRegion& other) const
{
    return m_left == other.m_left && m_right == other.m_right && m_runs == other.m_runs;
}

std::vector<RowRun> TableSelectionRegion::Intersect(const std::vector<RowRun>& a,
                                                    const std::vector<RowRun>& b)
{
    std::vector<RowRun> result;
    auto ia = a.begin();
    auto ib = b.begin();
    while (ia != a.end() && ib != b.end()) {
        const int first = std::max(ia->first, ib->first);
        const int last = std::min(ia->last, ib->last);
        if (first <= last)
            result.push_back({ first, last });
        if (ia->last < ib->last)
            ++ia;
        else
            ++ib;
    }
    return result;
}

std::vector<RowRun> TableSelectionRegion::Difference(const std::vector<RowRun>& a,
                                                     const std::vector<RowRun>& b)
{
    std::vector<RowRun> result;
    auto ib = b.begin();
    for (const RowRun& run : a) {
        int first = run.first;
        while (ib != b.end() && ib->last < first)
            ++ib;
        for (auto it = ib; it != b.end() && it->first <= run.last; ++it) {
            if (it->first > first)
                result.push_back({ first, it->first - 1 });
            first = std::max(first, it->last + 1);
        }
        if (first <= run.last)
            result.push_back({ first, run.last });
    }
    return result;
}

std::vector<TableSelectionRegion> TableSelectionRegion::Subtract(const TableSelectionRegion& other) const
{
    const int left = std::max(m_left, other.m_left);
    const int right = std::min(m_right, other.m_right);
    std::vector<RowRun> common = left <= right ? Intersect(m_runs, other.m_runs) : std::vector<RowRun>();
    if (common.empty())
        return { *this };

    std::vector<TableSelectionRegion> pieces;
    std::vector<RowRun> untouched = Difference(m_runs, common);
    if (!untouched.empty())
        pieces.emplace_back(m_left, m_right, std::move(untouched));
    if (m_left < left)
        pieces.emplace_back(m_left, left - 1, common);
    if (right < m_right)
        pieces.emplace_back(right + 1, m_right, common);
    return pieces;
}

bool TableSelectionRegion::RemoveRows(int first, int last)
{
    const int count = last - first + 1;
    std::vector<RowRun> runs;
    for (const RowRun& run : Difference(m_runs, { RowRun { first, last } })) {
        RowRun moved = run;
        if (moved.first > last) {
            moved.first -= count;
            moved.last -= count;
        }
        // Runs on both sides of the removed rows may now touch.
        if (!runs.empty() && runs.back().last + 1 == moved.first)
            runs.back().last = moved.last;
        else
            runs.push_back(moved);
    }
    m_runs = std::move(runs);
    return !IsEmpty();
}

void TableSelectionRegion::InsertRows(int first, int count)
{
    std::vector<RowRun> runs;
    for (const RowRun& run : m_runs) {
        if (run.last < first) {
            runs.push_back(run);
        } else if (run.first >= first) {
            runs.push_back({ run.first + count, run.last + count });
        } else {
            // New rows inside a run were not selected: the run splits around them.
            runs.push_back({ run.first, first - 1 });
            runs.push_back({ first + count, run.last + count });
        }
    }
    m_runs = std::move(runs);
}

bool TableSelectionRegion::RemoveColumns(int first, int last)
{
    const int count = last - first + 1;
    auto shift = [&](int column) { return column > last ? column - count : std::min(column, first); };
    if (m_left >= first && m_right <= last) {
        m_right = m_left - 1;
        return false;
    }
    const int left = m_left >= first && m_left <= last ? last + 1 : m_left;
    m_left = left > last ? left - count : left;
    m_right = m_right >= first && m_right <= last ? first - 1 : shift(m_right);
    return !IsEmpty();
}

void TableSelectionRegion::InsertColumns(int first, int count)
{
    if (m_left >= first)
        m_left += count;
    if (m_right >= first)
        m_right += count;
}

std::vector<TableSelectionRegion> TableSelectionRegion::MapColumns(const std::vector<int>& newColumnOf) const
{
    std::vector<int> columns;
    for (int column = m_left; column <= m_right; ++column) {
        if (column >= 0 && column < static_cast<int>(newColumnOf.size()))
            columns.push_back(newColumnOf[static_cast<std::size_t>(column)]);
    }
    std::sort(columns.begin(), columns.end());
    std::vector<TableSelectionRegion> pieces;
    for (std::size_t i = 0; i < columns.size();) {
        std::size_t j = i;
        while (j + 1 < columns.size() && columns[j + 1] == columns[j] + 1)
            ++j;
        pieces.emplace_back(columns[i], columns[j], m_runs);
        i = j + 1;
    }
    return pieces;
}

void RowRunBuilder::Add(int row)
{
    if (!m_runs.empty() && m_runs.back().last + 1 == row)
        m_runs.back().last = row;
    else
        m_runs.push_back({ row, row });
}

} // namespace Orvo::UI::UIComponents
