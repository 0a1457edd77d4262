#pragma once

namespace Orvo::UI::UIComponents {

// How the rows a user sees relate to the rows of the content model: directly, or through the filter.
class TableSelectionView
{
public:
    virtual ~TableSelectionView() = default;

    virtual int GetRowCount() const = 0; // rows shown, the new-row line included
    virtual int GetSelectableRowCount() const = 0; // rows shown that hold records
    virtual int GetColumnCount() const = 0;
    virtual int MapRowToSource(int row) const = 0;
    virtual int MapRowFromSource(int sourceRow) const = 0; // -1 when the row is not shown
    virtual bool IsIdentity() const = 0;

protected:
    TableSelectionView() = default;
    TableSelectionView(const TableSelectionView&) = default;
    TableSelectionView& operator=(const TableSelectionView&) = default;
};

} // namespace Orvo::UI::UIComponents
