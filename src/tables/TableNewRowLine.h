#pragma once

#include "TableColumnLayout.h"
#include "TableContentUpdate.h"

#include <QString>
#include <vector>

namespace Orvo::UI::UIComponents {

// The texts typed into the table's new-row line, one per column, until the record is confirmed.
class TableNewRowLine
{
public:
    void AppendColumns(int count);
    void RemoveColumn(int column);
    void MoveColumn(int srcIndex, int dstIndex);

    QString Value(int column) const;
    bool SetValue(int column, const QString& value); // false outside the columns
    bool HasData() const { return m_hasData; }
    // False as soon as a required column has no text.
    bool IsAllRequiredFilled(const TableColumnLayout& layout) const;
    // Puts every typed text into update at row; nothing when nothing was typed.
    void CopyInto(TableContentUpdate& update, int row) const;
    void Clear();

private:
    std::vector<QString> m_values;
    bool m_hasData = false;
};

} // namespace Orvo::UI::UIComponents
