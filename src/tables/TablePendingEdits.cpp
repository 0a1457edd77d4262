#include "TablePendingEdits.h"

#include "TableCellText.h"
#include "TableNumberText.h"
#include "TablesLogging.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

TablePendingEdits::EditResult TablePendingEdits::EditCell(int row, int column, const TableCellContent& cell,
                                                          TableValueType type, QVariant value,
                                                          bool byParameterIndex, const QString& unit)
{
    if (byParameterIndex) {
        const int parameter = value.toInt();
        if (parameter < 0 || parameter >= cell.parametersNames.size()) {
            qCWarning(lcTables) << "setData: no parameter" << parameter << "in cell" << row << column;
            return EditResult::Rejected;
        }
        value = cell.parametersNames[parameter];
    } else if (value.typeId() == QMetaType::QString) {
        value = TableCellText::CreateContentUpdateValue(value.toString(), type, cell.parametersNames,
                                                        TableNumberText(), unit);
        if (value.toString().isNull())
            return EditResult::Rejected;
    }
    if (!TableCellText::IsCachedValue(cell, value, type)) {
        m_update.SetValue(row, column, value);
        return EditResult::Queued;
    }
    if (!m_update.Contains(row, column))
        return EditResult::Rejected;
    m_update.Remove(row, column);
    return EditResult::Withdrawn;
}

std::optional<QRect> TablePendingEdits::Queue(const TableContentUpdate& edits, int recordCount)
{
    std::optional<QRect> touched;
    for (const auto& [row, values] : edits.GetRows()) {
        for (const auto& [column, value] : values) {
            m_update.SetValue(row, column, value);
            if (row >= recordCount)
                continue;
            const QRect cell(column, row, 1, 1);
            touched = touched ? touched->united(cell) : cell;
        }
    }
    return touched;
}

std::optional<TableContentUpdate> TablePendingEdits::Confirm(const TableColumnLayout& layout,
                                                             std::optional<int> newRow)
{
    if (newRow && m_newRow.IsAllRequiredFilled(layout))
        m_newRow.CopyInto(m_update, *newRow);
    if (m_update.IsEmpty())
        return std::nullopt;
    m_newRow.Clear();
    return m_update;
}

void TablePendingEdits::RemoveColumn(int column)
{
    m_newRow.RemoveColumn(column);
    m_update.RemoveColumn(column);
}

void TablePendingEdits::MoveColumn(int srcIndex, int dstIndex)
{
    m_newRow.MoveColumn(srcIndex, dstIndex);
    m_update.MoveColumn(srcIndex, dstIndex);
}

} // namespace Orvo::UI::UIComponents
