#pragma once

#include "TableCellContent.h"
#include "TableColumnLayout.h"
#include "TableContentUpdate.h"
#include "TableNewRowLine.h"
#include "TableValueType.h"

#include <QRect>
#include <QVariant>
#include <optional>

namespace Orvo::UI::UIComponents {

// The edits a table holds until the user confirms them: new values of record cells and the texts
// typed into the new-row line. Keyed by content-model rows and columns, they follow the columns as
// the table appends, removes and moves them; the content model tells its views what changed.
class TablePendingEdits
{
public:
    enum class EditResult
    {
        Rejected, // not a value for the cell, or the cell's own value with no edit waiting
        Queued,
        Withdrawn, // the cell's own value typed back: its waiting edit is gone
    };

    // An edit of the record cell at row, column whose cached content is cell. Typed text is read
    // as the cell's type reads it (numbers may be expressions, named values match without case);
    // with byParameterIndex the value picks one of the cell's named values. Numbers are read in the
    // column's unit, when it has one.
    EditResult EditCell(int row, int column, const TableCellContent& cell, TableValueType type,
                        QVariant value, bool byParameterIndex, const QString& unit = QString());
    // Queues every value of edits. Returns the block of record rows (below recordCount) and
    // columns they touch, for one repaint; nullopt when they touch none.
    std::optional<QRect> Queue(const TableContentUpdate& edits, int recordCount);
    // What a confirmation sends: the cell edits, and the new-row line at newRow when given and
    // every required column of it is filled. nullopt when there is nothing to send. The new-row
    // line starts over; the cell edits stay until the refilled table clears them.
    std::optional<TableContentUpdate> Confirm(const TableColumnLayout& layout, std::optional<int> newRow);
    // The edits of records go, the new-row line stays.
    void ClearRecordEdits() { m_update.Clear(); }

    const TableContentUpdate& Update() const { return m_update; }
    const TableNewRowLine& NewRow() const { return m_newRow; }
    bool SetNewRowValue(int column, const QString& text) { return m_newRow.SetValue(column, text); }

    void AppendColumns(int count) { m_newRow.AppendColumns(count); }
    void RemoveColumn(int column);
    void MoveColumn(int srcIndex, int dstIndex);

private:
    TableContentUpdate m_update;
    TableNewRowLine m_newRow;
};

} // namespace Orvo::UI::UIComponents
