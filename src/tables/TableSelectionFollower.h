#pragma once

#include "TableSelectionParameters.h"

#include <QItemSelection>
#include <QModelIndex>
#include <QObject>
#include <unordered_set>

namespace Orvo::UI::UIComponents {

class TableContentModel;
class TableSelectionModel;

// What a selection change means to the content model it selects in: the cells whose selection
// roles changed, and the multi-edit bar's selection parameters, which are collected again only
// when asked for after a change.
class TableSelectionFollower : public QObject
{
    Q_OBJECT

public:
    TableSelectionFollower(const TableContentModel& model, const TableSelectionModel& selection,
                           QObject* parent = nullptr);

    const TableSelectionParameters& Parameters() const;

signals:
    // The selection roles of the cells from topLeft to bottomRight changed.
    void selectionRolesChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    void parametersChanged();

private:
    void EmitRolesChanged(const QItemSelectionRange& range);
    void OnCurrentChanged(const QModelIndex& previous);
    void OnDraggedRegionChanged(const QItemSelectionRange& previous);
    void OnSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected);
    void OnRowsChanged(const std::unordered_set<int>& selected, const std::unordered_set<int>& deselected);

    const TableContentModel& m_model;
    const TableSelectionModel& m_selection;
    mutable TableSelectionParameters m_parameters;
    mutable bool m_parametersDirty = true;
};

} // namespace Orvo::UI::UIComponents
