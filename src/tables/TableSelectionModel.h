#pragma once

#include "TableSelectionRegion.h"
#include "TableSelectionState.h"
#include "TableSelectionView.h"

#include <QItemSelection>
#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <optional>
#include <set>
#include <unordered_set>
#include <vector>

namespace Orvo::UI::UIComponents {

class TableContentModel;

// The cells a user has selected in a table, in content-model coordinates, with spreadsheet behaviour:
// click, Ctrl-click toggling, Shift-extension from the anchor, dragged rectangles, whole rows, select
// all and keyboard extension. The operations take view coordinates; this class's own invokables see
// the content model directly, TableSelectionFilterModel's see it through the filter.
class TableSelectionModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableSelectionModel)
    Q_PROPERTY(int regionCount READ getRegionCount NOTIFY regionCountChanged)
    Q_PROPERTY(
        QModelIndex currentSelectedIndex READ getCurrentSelectedIndex NOTIFY currentSelectedIndexChanged)
    Q_PROPERTY(QItemSelectionRange currentRegion READ getCurrentRegion NOTIFY currentRegionChanged)
    Q_PROPERTY(
        bool activeRectangleSelecting READ isActiveRectangleSelecting NOTIFY activeRectangleSelectingChanged)
    Q_PROPERTY(bool selectedAll READ isSelectedAll NOTIFY selectedAllChanged)

public:
    enum SelectionMode
    {
        None = 0,
        Append = 2,
        CleanSelect = 3,
        Deselect = 4,
        Toggle = 8,
    };
    Q_ENUM(SelectionMode)

    explicit TableSelectionModel(QObject* parent = nullptr);
    explicit TableSelectionModel(TableContentModel* model, QObject* parent = nullptr);
    ~TableSelectionModel() override;

    TableContentModel* GetModel() const { return m_model; }

    int getRegionCount() const { return static_cast<int>(m_state.regions.size()); }
    QModelIndex getCurrentSelectedIndex() const;
    QItemSelectionRange getCurrentRegion() const;
    bool isActiveRectangleSelecting() const { return m_state.dragged.has_value(); }
    bool isSelectedAll() const { return m_state.selectedAll; }

    Q_INVOKABLE void select(const QModelIndex& index, int mode, bool ensureVisible);
    Q_INVOKABLE void select(const QModelIndex& index, int mode) { select(index, mode, false); }
    Q_INVOKABLE void beginSelectRegion(const QModelIndex& index, int mode);
    Q_INVOKABLE void selectRegion(const QModelIndex& index, int mode);
    Q_INVOKABLE void endSelectRegion(bool discard);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE bool isSelected(const QModelIndex& index) const;
    Q_INVOKABLE int findRegion(const QModelIndex& index) const;
    Q_INVOKABLE void selectRow(int row, int mode);
    Q_INVOKABLE void selectRowFromLast(int row);
    Q_INVOKABLE void extendSelection(int rows, int columns);
    Q_INVOKABLE bool isRowSelected(int row) const;
    Q_INVOKABLE QItemSelectionRange getEnvelope() const;

    // The same operations in the coordinates of a view (rows of the view, columns of the model).
    void Select(const TableSelectionView& view, int row, int column, int mode, bool ensureVisible);
    void BeginSelectRegion(const TableSelectionView& view, int row, int column, int mode);
    void SelectRegion(const TableSelectionView& view, int row, int column, int mode);
    void EndSelectRegion(bool discard);
    void SelectAll(const TableSelectionView& view);
    void SelectRow(const TableSelectionView& view, int row, int mode);
    void SelectRowFromLast(const TableSelectionView& view, int row);
    void ExtendSelection(const TableSelectionView& view, int rows, int columns);

    // Queries in content-model coordinates.
    bool IsCellSelected(int row, int column) const { return m_state.IsCellSelected(row, column); }
    bool IsCellInDraggedRegion(int row, int column) const;
    bool IsWholeRowSelected(int row) const;
    bool IsRowExtraHighlighted(int row) const { return m_extraRows.count(row) > 0; }
    // The content model's selection roles of a cell; invalid for any other role.
    QVariant RoleData(int row, int column, int role) const;
    int FindRegion(int row, int column) const { return m_state.FindRegion(row, column); }
    bool IsCurrent(int row, int column) const
    {
        return m_state.current == TableSelectionState::Cell { row, column };
    }
    int GetCurrentRow() const { return m_state.current.row; }
    int GetCurrentColumn() const { return m_state.current.column; }
    const std::vector<TableSelectionRegion>& GetRegions() const { return m_state.regions; }
    // Bounding rows and columns of every selected cell: top, left, bottom, right; nullopt when none.
    using Envelope = TableSelectionState::Envelope;
    std::optional<Envelope> GetSourceEnvelope() const
    {
        return TableSelectionState::EnvelopeOf(m_state.regions);
    }
    // Visits every selected cell once, row by row, in ascending order.
    void ForEachSelectedCell(const std::function<void(int row, int column)>& visit) const
    {
        m_state.ForEachSelectedCell(visit);
    }
    void Clear();

signals:
    void regionCountChanged();
    void currentSelectedIndexChanged(QModelIndex prevSelectedIndex);
    void currentRegionChanged(QItemSelectionRange previousRegion);
    void activeRectangleSelectingChanged();
    void selectedAllChanged();
    void ensureVisibleCurrentSelected();
    void selectionChanged(QItemSelection selected, QItemSelection deselected);
    void rowSelectionAboutToChange(std::unordered_set<int> selected, std::unordered_set<int> deselected);
    void rowSelectionChanged(std::unordered_set<int> selected, std::unordered_set<int> deselected);
    void rowExtraHighlightChanged(std::unordered_set<int> highlighted,
                                  std::unordered_set<int> highlightToRemove);

private:
    struct Snapshot;
    class ChangeScope;
    class DirectView;

    void AttachModel();
    void OnAboutToClearContent();
    void OnRowsRemoved(const QModelIndex& parent, int first, int last);
    void OnRowsInserted(const QModelIndex& parent, int first, int last);
    void OnColumnsRemoved(const QModelIndex& parent, int first, int last);
    void OnColumnsInserted(const QModelIndex& parent, int first, int last);
    void OnColumnsMoved(const QModelIndex& parent, int start, int end, const QModelIndex& destination,
                        int column);

    std::optional<TableSelectionRegion> RegionFromView(const TableSelectionView& view, int top, int left,
                                                       int bottom, int right) const;
    void AddRegion(TableSelectionRegion region);
    void SubtractRegion(const TableSelectionRegion& region);
    void ClearCells();
    void SetCurrent(int row, int column);
    void SetAnchor(int row, int column);
    void UpdateExtraRows();
    void EmitChanges(const Snapshot& before);
    QItemSelection ToEnvelopeSelection(const std::vector<TableSelectionRegion>& regions) const;
    QItemSelectionRange ToRange(const TableSelectionRegion& region) const;
    int MapAnchorRow(const TableSelectionView& view, int sourceRow) const;

    QPointer<TableContentModel> m_model;
    std::unique_ptr<DirectView> m_directView;
    TableSelectionState m_state;
    int m_dragMode = CleanSelect;
    std::set<int> m_extraRows;
    int m_changeDepth = 0;
    std::unique_ptr<Snapshot> m_changeStart;
    // The selection of a table whose content the feeder is refilling, to be put back on the new rows.
    std::unique_ptr<TableSelectionState> m_beforeRefill;
};

} // namespace Orvo::UI::UIComponents
