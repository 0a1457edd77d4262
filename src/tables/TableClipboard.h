#pragma once

#include "TableContentUpdate.h"

#include <QString>
#include <QStringList>

namespace Orvo::UI::UIComponents {

class TableContentModel;

// Table text as spreadsheets exchange it: tab-separated fields, one line per row, the column
// labels first. Copy reads the selected cells of a content model; paste turns text into the
// edits it stands for, starting at the current cell, and leaves queueing them to the model.
class TableClipboard
{
public:
    explicit TableClipboard(const TableContentModel& model);

    // The selection: a line of the labels of its columns, then one line per row with a selected
    // cell, unselected cells as empty fields. Empty without a selection.
    QString CopyText() const;

    // The edits a pasted text makes, keyed by content-model rows and columns. Lines go to the rows
    // shown from the current one on; lines past the last record become new rows when the table
    // allows adding. Fields that do not fit their cell are left out.
    TableContentUpdate PasteUpdate(const QString& text) const;

    // A line of column labels rather than data: its first two fields are both labels.
    bool IsHeaderLine(const QString& line) const;

    // The same with the system clipboard. A copy of nothing leaves the clipboard as it was; a
    // failure reading the table is logged, never thrown.
    void CopyToSystemClipboard() const;
    TableContentUpdate PasteFromSystemClipboard() const;
    static bool SystemClipboardHasText();

private:
    QString PastedValue(int row, int column, bool existingRow, const QString& field) const;

    const TableContentModel& m_model;
};

} // namespace Orvo::UI::UIComponents
