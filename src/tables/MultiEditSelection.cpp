#include "MultiEditSelection.h"

#include "MultiEditOperation.h"
#include "TableContentModel.h"
#include "TableSelectionModel.h"

namespace Orvo::UI::UIComponents {

MultiEditSelection::MultiEditSelection(const TableContentModel& model)
    : m_model(model)
{ }

TableContentUpdate MultiEditSelection::Edits(int action, const QString& operand) const
{
    TableContentUpdate edits;
    m_model.selectionModel()->ForEachSelectedCell([&](int row, int column) {
        if (!m_model.IsCellEditable(row, column))
            return;
        const TableCellContent& cell
            = m_model.GetFilledCell(row, column, TableContentModel::ContentRequest::VisibleColumns);
        const QVariant pending = m_model.PendingValue(row, column);
        const MultiEditOperation::Cell current { pending.isValid() ? pending : cell.content,
                                                 m_model.GetValueType(row, column), cell.parametersNames,
                                                 cell.allValues, cell.parameterIndex != -1,
                                                 m_model.GetColumns()[static_cast<std::size_t>(column)].unit };
        const auto result = MultiEditOperation::Apply(action, current, operand);
        if (result && *result != current.value)
            edits.SetValue(row, column, *result);
    });
    return edits;
}

} // namespace Orvo::UI::UIComponents
