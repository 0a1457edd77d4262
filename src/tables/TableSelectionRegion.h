#pragma once

#include <functional>
#include <vector>

namespace Orvo::UI::UIComponents {

// A run of consecutive content-model rows.
struct RowRun
{
    int first = 0;
    int last = -1;

    bool operator==(const RowRun& other) const { return first == other.first && last == other.last; }
    bool operator!=(const RowRun& other) const { return !(*this == other); }
};

// A selected block of cells in content-model coordinates: a column range over a set of row runs.
// A rectangle drawn through a filtered view skips the hidden rows, so one region may hold many runs;
// the runs are ascending and never touch each other.
class TableSelectionRegion
{
public:
    TableSelectionRegion() = default;
    TableSelectionRegion(int left, int right, std::vector<RowRun> runs);
    static TableSelectionRegion Rectangle(int top, int left, int bottom, int right);

    bool IsEmpty() const { return m_runs.empty() || m_left > m_right; }
    bool Contains(int row, int column) const;
    bool ContainsRow(int row) const;
    int GetLeft() const { return m_left; }
    int GetRight() const { return m_right; }
    int GetTop() const;
    int GetBottom() const;
    const std::vector<RowRun>& GetRuns() const { return m_runs; }
    void ForEachRow(const std::function<void(int)>& visit) const;
    bool operator==(const TableSelectionRegion& other) const;
    bool operator!=(const TableSelectionRegion& other) const { return !(*this == other); }

    // This region without the cells of other; up to three pieces.
    std::vector<TableSelectionRegion> Subtract(const TableSelectionRegion& other) const;

    // Keeping up with the content model; each returns false when nothing of the region is left.
    bool RemoveRows(int first, int last);
    void InsertRows(int first, int count);
    bool RemoveColumns(int first, int last);
    void InsertColumns(int first, int count);
    // newColumnOf maps every old column to its new place; the region may split into several.
    std::vector<TableSelectionRegion> MapColumns(const std::vector<int>& newColumnOf) const;

private:
    static std::vector<RowRun> Intersect(const std::vector<RowRun>& a, const std::vector<RowRun>& b);
    static std::vector<RowRun> Difference(const std::vector<RowRun>& a, const std::vector<RowRun>& b);

    int m_left = 0;
    int m_right = -1;
    std::vector<RowRun> m_runs;
};

// Compresses ascending rows into runs.
class RowRunBuilder
{
public:
    void Add(int row);
    std::vector<RowRun> Take() { return std::move(m_runs); }

private:
    std::vector<RowRun> m_runs;
};

} // namespace Orvo::UI::UIComponents
