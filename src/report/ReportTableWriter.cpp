#include "ReportTableWriter.h"

#include "plugin/QtComponentsText.h"
#include "tables/ColumnDataAdapter.h"
#include "tables/ITableData.h"
#include "tables/TableCellText.h"
#include "tables/TableNumberText.h"

#include <QTextTable>
#include <algorithm>

namespace Orvo::UI::UIComponents {

using Kernel::Tables::TableDataType;

namespace {

constexpr qreal c_cellFontPoints = 7.5;
constexpr qreal c_cellPadding = 2.5;
constexpr qreal c_borderWidth = 0.5;
const QColor c_borderColor { 0x9a, 0xa3, 0xad };
const QColor c_headerBackground { 0xe6, 0xea, 0xee };
// A check box cell on paper: ticked or empty.
const QString c_checked = QStringLiteral("\u2713");

QString HeaderText(const Kernel::Tables::TableDataColumn& column)
{
    const QString label = QString::fromStdWString(column.label);
    return column.unit.isEmpty() ? label : QStringLiteral("%1 [%2]").arg(label, column.unit);
}

void WriteCell(QTextTable& table, int row, int column, const QString& text, Qt::Alignment alignment,
               const QTextCharFormat& format)
{
    QTextCursor cursor = table.cellAt(row, column).firstCursorPosition();
    QTextBlockFormat block;
    block.setAlignment(alignment);
    cursor.setBlockFormat(block);
    cursor.insertText(text, format);
}

} // namespace

ReportTableWriter::Written ReportTableWriter::Write(QTextCursor& cursor,
                                                    const Kernel::Tables::ITableData& table, int maximumRows)
{
    // Group columns only head others; they hold no values of their own.
    std::vector<std::unique_ptr<ColumnDataAdapter>> columns;
    for (Kernel::Tables::TableDataColumn& column : table.GetColumns()) {
        if (column.type != TableDataType::Group)
            columns.push_back(ColumnDataAdapter::Create(std::move(column)));
    }
    Written written;
    if (columns.empty())
        return written;
    const int rowCount = std::max(0, table.GetRowCount());
    written.rows = std::min(rowCount, std::max(0, maximumRows));
    written.omitted = rowCount - written.rows;

    QStringList headers;
    std::vector<bool> numeric;
    std::vector<std::wstring> ids;
    for (const auto& column : columns) {
        headers << HeaderText(column->Column());
        numeric.push_back(column->Column().type == TableDataType::Integer
                          || column->Column().type == TableDataType::Real);
        ids.push_back(column->GetId());
    }
    std::vector<QStringList> rows(std::size_t(written.rows), QStringList());
    const TableNumberText numbers;
    for (int first = 0; first < written.rows; first += c_rowsPerRead) {
        const int count = std::min(c_rowsPerRead, written.rows - first);
        const auto contents = table.GetCells(first, count, ids);
        for (std::size_t c = 0; c < columns.size(); ++c) {
            const ColumnDataAdapter& adapter = *columns[c];
            // A run cut short, or a column the host did not answer for, leaves its cells empty.
            const std::vector<Kernel::Tables::TableDataCell> none;
            const auto& cells = c < contents.size() ? contents[c].cells : none;
            for (int r = 0; r < count; ++r) {
                QString text;
                if (std::size_t(r) < cells.size()) {
                    const TableCellContent content = adapter.CreateCellContent(cells[std::size_t(r)]);
                    text = TableCellText::DisplayText(content, adapter.GetValueType(), numbers);
                    if (text.isEmpty() && adapter.GetValueType() == TableValueType::Bool
                        && TableCellText::IsChecked(content.content))
                        text = c_checked;
                }
                rows[std::size_t(first + r)] << text;
            }
        }
    }
    WriteTexts(cursor, headers, rows, numeric);

    if (written.omitted > 0) {
        QTextCharFormat noteFormat;
        noteFormat.setFontPointSize(c_cellFontPoints);
        noteFormat.setFontItalic(true);
        cursor.insertBlock();
        cursor.insertText(GetText(QStringLiteral("UI_REPORT_ROWS_OMITTED")).arg(written.omitted), noteFormat);
    }
    return written;
}

void ReportTableWriter::WriteTexts(QTextCursor& cursor, const QStringList& headers,
                                   const std::vector<QStringList>& rows, const std::vector<bool>& numeric)
{
    if (headers.isEmpty())
        return;
    QTextTableFormat tableFormat;
    tableFormat.setHeaderRowCount(1);
    tableFormat.setBorder(c_borderWidth);
    tableFormat.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    tableFormat.setBorderBrush(c_borderColor);
    tableFormat.setCellPadding(c_cellPadding);
    tableFormat.setCellSpacing(0);
    tableFormat.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    QTextTable* table = cursor.insertTable(int(rows.size()) + 1, int(headers.size()), tableFormat);

    QTextCharFormat cellFormat;
    cellFormat.setFontPointSize(c_cellFontPoints);
    QTextCharFormat headerFormat = cellFormat;
    headerFormat.setFontWeight(QFont::Bold);
    for (int c = 0; c < headers.size(); ++c) {
        QTextTableCell cell = table->cellAt(0, c);
        QTextCharFormat background = cell.format();
        background.setBackground(c_headerBackground);
        cell.setFormat(background);
        const bool right = std::size_t(c) < numeric.size() && numeric[std::size_t(c)];
        WriteCell(*table, 0, c, headers[c], right ? Qt::AlignRight : Qt::AlignLeft, headerFormat);
    }
    for (std::size_t r = 0; r < rows.size(); ++r) {
        for (int c = 0; c < headers.size() && c < rows[r].size(); ++c) {
            const bool right = std::size_t(c) < numeric.size() && numeric[std::size_t(c)];
            WriteCell(*table, int(r) + 1, c, rows[r][c], right ? Qt::AlignRight : Qt::AlignLeft, cellFormat);
        }
    }
    cursor.movePosition(QTextCursor::End);
}

} // namespace Orvo::UI::UIComponents
