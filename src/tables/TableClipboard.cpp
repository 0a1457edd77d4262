#include "TableClipboard.h"

#include "TableCellText.h"
#include "TableContentFilterModel.h"
#include "TableContentModel.h"
#include "TableSelectionFilterModel.h"
#include "TableSelectionModel.h"
#include "TablesLogging.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <algorithm>

namespace Orvo::UI::UIComponents {

TableClipboard::TableClipboard(const TableContentModel& model)
    : m_model(model)
{ }

QString TableClipboard::CopyText() const
{
    const TableSelectionModel& selection = *m_model.selectionModel();
    const auto envelope = selection.GetSourceEnvelope();
    if (!envelope)
        return QString();
    const auto& columns = m_model.GetColumns();
    // The clipboard carries every digit, so that a copy pasted back changes nothing.
    const TableNumberText numbers(TableNumberText::Precision::Exact);
    QStringList labels;
    for (int column = envelope->left; column <= envelope->right; ++column)
        labels.append(columns[static_cast<std::size_t>(column)].label);
    QStringList lines { labels.join(QLatin1Char('\t')) };
    QStringList fields;
    const int lastRow = std::min(envelope->bottom, m_model.rowCountSubmitted() - 1);
    for (int row = envelope->top; row <= lastRow; ++row) {
        fields.clear();
        bool anySelected = false;
        for (int column = envelope->left; column <= envelope->right; ++column) {
            if (!selection.IsCellSelected(row, column)) {
                fields.append(QString());
                continue;
            }
            anySelected = true;
            const TableCellContent& cell
                = m_model.GetFilledCell(row, column, TableContentModel::ContentRequest::VisibleColumns);
            if (cell.parameterIndex >= 0)
                fields.append(cell.parametersNames.value(cell.parameterIndex));
            else
                fields.append(
                    TableCellText::ToString(cell.content, m_model.GetValueType(row, column), numbers));
        }
        // Rows between two selected regions are not part of the copy.
        if (anySelected)
            lines.append(fields.join(QLatin1Char('\t')));
    }
    return lines.join(QLatin1Char('\n'));
}

bool TableClipboard::IsHeaderLine(const QString& line) const
{
    // Only two fields are compared: a data line whose first value happens to be a label stays data.
    const QStringList fields = line.split(QLatin1Char('\t'));
    const auto& columns = m_model.GetColumns();
    const int compared = std::min<int>(static_cast<int>(fields.size()), 2);
    for (int k = 0; k < compared; ++k) {
        const bool isLabel = std::any_of(columns.begin(), columns.end(), [&](const TableColumn& column) {
            return column.label == fields[k];
        });
        if (!isLabel)
            return false;
    }
    return true;
}

QString TableClipboard::PastedValue(int row, int column, bool existingRow, const QString& field) const
{
    const TableColumn& tableColumn = m_model.GetColumns()[static_cast<std::size_t>(column)];
    if (!tableColumn.editable)
        return QString();
    const TableNumberText numbers;
    if (!existingRow)
        return TableCellText::CreateContentUpdateValue(field, tableColumn.type, {}, numbers, tableColumn.unit);
    const TableCellContent& cell
        = m_model.GetFilledCell(row, column, TableContentModel::ContentRequest::VisibleColumns);
    if (!cell.editable)
        return QString();
    return TableCellText::CreateContentUpdateValue(field, m_model.GetValueType(row, column),
                                                   cell.parametersNames, numbers, tableColumn.unit);
}

TableContentUpdate TableClipboard::PasteUpdate(const QString& text) const
{
    TableContentUpdate update;
    QStringList lines = text.split(QLatin1Char('\n'));
    if (!lines.isEmpty() && lines.back().isEmpty())
        lines.removeLast();
    if (lines.isEmpty())
        return update;

    const TableContentFilterModel& shown = *m_model.contentFilterModel();
    const QModelIndex current = shown.selectionModel()->getCurrentSelectedIndex();
    const int startRow = current.isValid() ? current.row() : 0;
    const int startColumn = current.isValid() ? current.column() : 0;
    const int firstLine = IsHeaderLine(lines.front()) ? 1 : 0;
    const int records = shown.rowCountSubmitted();
    int newRow = m_model.rowCountSubmitted();
    for (int line = firstLine; line < lines.size(); ++line) {
        const int shownRow = startRow + (line - firstLine);
        const bool existing = shownRow < records;
        if (existing && !m_model.getAllowEdit())
            continue;
        if (!existing && !m_model.getAllowAddNew())
            break;
        const int row = existing ? shown.mapToSource(shown.index(shownRow, 0)).row() : newRow++;
        const QStringList fields = lines[line].split(QLatin1Char('\t'));
        for (int k = 0; k < fields.size() && startColumn + k < m_model.columnCount(); ++k) {
            const QString value = PastedValue(row, startColumn + k, existing, fields[k]);
            if (!value.isNull())
                update.SetValue(row, startColumn + k, value);
        }
    }
    return update;
}

void TableClipboard::CopyToSystemClipboard() const
{
    const QString text
        = CatchAtBoundary("TableContentModel::copyToClipboard", QString(), [&]() { return CopyText(); });
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (clipboard && !text.isEmpty())
        clipboard->setText(text);
}

TableContentUpdate TableClipboard::PasteFromSystemClipboard() const
{
    const QClipboard* clipboard = QGuiApplication::clipboard();
    const QString text = clipboard ? clipboard->text() : QString();
    if (text.isEmpty())
        return {};
    return CatchAtBoundary("TableContentModel::pasteFromClipboard", TableContentUpdate(),
                           [&]() { return PasteUpdate(text); });
}

bool TableClipboard::SystemClipboardHasText()
{
    const QClipboard* clipboard = QGuiApplication::clipboard();
    const QMimeData* mimeData = clipboard ? clipboard->mimeData() : nullptr;
    return mimeData && mimeData->hasText();
}

} // namespace Orvo::UI::UIComponents
