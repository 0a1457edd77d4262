#include "TableSelectionFollower.h"

#include "TableContentModel.h"
#include "TableSelectionModel.h"
#include "TablesLogging.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

TableSelectionFollower::TableSelectionFollower(const TableContentModel& model,
                                               const TableSelectionModel& selection, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_selection(selection)
{
    connect(&selection, &TableSelectionModel::currentSelectedIndexChanged, this,
            &TableSelectionFollower::OnCurrentChanged);
    connect(&selection, &TableSelectionModel::currentRegionChanged, this,
            &TableSelectionFollower::OnDraggedRegionChanged);
    connect(&selection, &TableSelectionModel::selectionChanged, this,
            &TableSelectionFollower::OnSelectionChanged);
    connect(&selection, &TableSelectionModel::rowSelectionChanged, this,
            &TableSelectionFollower::OnRowsChanged);
    connect(&selection, &TableSelectionModel::rowExtraHighlightChanged, this,
            &TableSelectionFollower::OnRowsChanged);
}

const TableSelectionParameters& TableSelectionFollower::Parameters() const
{
    // A selection change only marks the parameters; a selection of 100,000 cells is walked once,
    // when the multi-edit bar asks.
    if (m_parametersDirty) {
        m_parametersDirty = false;
        CatchAtBoundary("TableContentModel selection parameters", [&]() { m_parameters.Collect(m_model); });
    }
    return m_parameters;
}

void TableSelectionFollower::EmitRolesChanged(const QItemSelectionRange& range)
{
    if (!range.isValid())
        return;
    const int top = std::max(range.top(), 0);
    const int left = std::max(range.left(), 0);
    const int bottom = std::min(range.bottom(), m_model.rowCount() - 1);
    const int right = std::min(range.right(), m_model.columnCount() - 1);
    if (top <= bottom && left <= right)
        emit selectionRolesChanged(m_model.index(top, left), m_model.index(bottom, right));
}

void TableSelectionFollower::OnCurrentChanged(const QModelIndex& previous)
{
    EmitRolesChanged(QItemSelectionRange(previous));
    EmitRolesChanged(QItemSelectionRange(m_selection.getCurrentSelectedIndex()));
}

void TableSelectionFollower::OnDraggedRegionChanged(const QItemSelectionRange& previous)
{
    EmitRolesChanged(previous);
    EmitRolesChanged(m_selection.getCurrentRegion());
}

void TableSelectionFollower::OnSelectionChanged(const QItemSelection& selected,
                                                const QItemSelection& deselected)
{
    for (const QItemSelection* selection : { &selected, &deselected }) {
        for (const QItemSelectionRange& range : *selection)
            EmitRolesChanged(range);
    }
    m_parametersDirty = true;
    emit parametersChanged();
}

void TableSelectionFollower::OnRowsChanged(const std::unordered_set<int>& selected,
                                           const std::unordered_set<int>& deselected)
{
    int top = m_model.rowCount(), bottom = -1;
    for (const auto* rows : { &selected, &deselected }) {
        for (int row : *rows) {
            top = std::min(top, row);
            bottom = std::max(bottom, row);
        }
    }
    if (bottom >= top && m_model.columnCount() > 0)
        EmitRolesChanged(
            QItemSelectionRange(m_model.index(top, 0), m_model.index(bottom, m_model.columnCount() - 1)));
}

} // namespace Orvo::UI::UIComponents
