#pragma once

#include <QStringList>
#include <QTextCursor>
#include <vector>

namespace Orvo::Kernel::Tables {
class ITableData;
}

namespace Orvo::UI::UIComponents {

// Writes one of the host's tables into a report as a text table: a header row of the column
// labels with their units, repeated on every page the table runs over, then the rows as the table
// panels show them (the host's number settings, named values, colour names). A report is read on
// paper: past maximumRows the rest is left to the table panels, and a note says how many rows
// that is.
class ReportTableWriter
{
public:
    static constexpr int c_defaultMaximumRows = 100;

    // Rows written and rows left out.
    struct Written
    {
        int rows = 0;
        int omitted = 0;
    };

    static Written Write(QTextCursor& cursor, const Kernel::Tables::ITableData& table,
                         int maximumRows = c_defaultMaximumRows);
    // A table of texts in the same form; numeric columns are aligned right. Nothing without
    // headers.
    static void WriteTexts(QTextCursor& cursor, const QStringList& headers,
                           const std::vector<QStringList>& rows, const std::vector<bool>& numeric);

private:
    // Rows read from the host at once: enough to keep the calls few, few enough to stay small.
    static constexpr int c_rowsPerRead = 100;
};

} // namespace Orvo::UI::UIComponents
