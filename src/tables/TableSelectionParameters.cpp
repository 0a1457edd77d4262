#include "TableSelectionParameters.h"

#include "TableContentModel.h"
#include "TableSelectionModel.h"

namespace Orvo::UI::UIComponents {

void TableSelectionParameters::Begin()
{
    m_names.clear();
    m_values.clear();
    m_selectedIndices.clear();
    m_usedNames.clear();
    m_started = false;
}

bool TableSelectionParameters::Add(const TableCellContent& cell)
{
    if (!m_started) {
        // A cell without a value has no names to offer yet; the first one with a value decides.
        if (!cell.content.isValid())
            return true;
        m_started = true;
        m_names = cell.parametersNames;
        m_values = cell.parametersValues;
    } else {
        for (int i = static_cast<int>(m_names.size()) - 1; i >= 0; --i) {
            if (cell.parametersNames.contains(m_names[i]))
                continue;
            m_names.removeAt(i);
            if (i < m_values.size())
                m_values.removeAt(i);
        }
    }
    if (cell.parameterIndex >= 0 && cell.parameterIndex < cell.parametersNames.size())
        m_usedNames.insert(cell.parametersNames[cell.parameterIndex]);
    return !m_names.isEmpty();
}

void TableSelectionParameters::End()
{
    m_selectedIndices.clear();
    for (int i = 0; i < m_names.size(); ++i) {
        if (m_usedNames.contains(m_names[i]))
            m_selectedIndices.append(i);
    }
}

void TableSelectionParameters::Collect(const TableContentModel& model)
{
    Begin();
    bool more = true;
    model.selectionModel()->ForEachSelectedCell([&](int row, int column) {
        if (more && model.IsCellEditable(row, column))
            more = Add(model.GetFilledCell(row, column, TableContentModel::ContentRequest::VisibleColumns));
    });
    End();
}

} // namespace Orvo::UI::UIComponents
