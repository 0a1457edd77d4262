#include "TableSelectionModel.h"

#include "TableContentModel.h"
#include "TablesLogging.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace Orvo::UI::UIComponents {

namespace {

std::unordered_set<int> Minus(const std::set<int>& a, const std::set<int>& b)
{
    std::unordered_set<int> result;
    std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::inserter(result, result.end()));
    return result;
}

} // namespace

struct TableSelectionModel::Snapshot
{
    TableSelectionState state;
    std::set<int> extraRows;
};

// Collects the changes of one operation so that every listener hears of them once, at the end.
class TableSelectionModel::ChangeScope
{
public:
    explicit ChangeScope(TableSelectionModel& owner)
        : m_owner(owner)
    {
        if (m_owner.m_changeDepth++ == 0) {
            m_owner.m_changeStart.reset(new Snapshot { m_owner.m_state, m_owner.m_extraRows });
        }
    }
    ~ChangeScope()
    {
        if (--m_owner.m_changeDepth == 0) {
            std::unique_ptr<Snapshot> before = std::move(m_owner.m_changeStart);
            m_owner.UpdateExtraRows();
            m_owner.EmitChanges(*before);
        }
    }
    ChangeScope(const ChangeScope&) = delete;
    ChangeScope& operator=(const ChangeScope&) = delete;

private:
    TableSelectionModel& m_owner;
};

class TableSelectionModel::DirectView : public TableSelectionView
{
public:
    explicit DirectView(const TableSelectionModel& owner)
        : m_owner(owner)
    { }
    int GetRowCount() const override { return m_owner.m_model ? m_owner.m_model->rowCount() : 0; }
    int GetSelectableRowCount() const override
    {
        return m_owner.m_model ? m_owner.m_model->rowCountSubmitted() : 0;
    }
    int GetColumnCount() const override { return m_owner.m_model ? m_owner.m_model->columnCount() : 0; }
    int MapRowToSource(int row) const override { return row; }
    int MapRowFromSource(int sourceRow) const override { return sourceRow; }
    bool IsIdentity() const override { return true; }

private:
    const TableSelectionModel& m_owner;
};

TableSelectionModel::TableSelectionModel(QObject* parent)
    : TableSelectionModel(nullptr, parent)
{ }

TableSelectionModel::TableSelectionModel(TableContentModel* model, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_directView(std::make_unique<DirectView>(*this))
{
    AttachModel();
}

TableSelectionModel::~TableSelectionModel() = default;

void TableSelectionModel::AttachModel()
{
    if (!m_model)
        return;
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &TableSelectionModel::OnRowsRemoved);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &TableSelectionModel::OnRowsInserted);
    connect(m_model, &QAbstractItemModel::columnsRemoved, this, &TableSelectionModel::OnColumnsRemoved);
    connect(m_model, &QAbstractItemModel::columnsInserted, this, &TableSelectionModel::OnColumnsInserted);
    connect(m_model, &QAbstractItemModel::columnsMoved, this, &TableSelectionModel::OnColumnsMoved);
    connect(m_model, &QAbstractItemModel::modelReset, this, &TableSelectionModel::Clear);
    connect(m_model, &TableContentModel::aboutToClearContent, this,
            &TableSelectionModel::OnAboutToClearContent);
}

void TableSelectionModel::OnAboutToClearContent()
{
    // A feeder refills the whole table after every confirmed edit; the user keeps working where
    // they were, so the selection comes back when the rows do.
    m_beforeRefill = std::make_unique<TableSelectionState>(m_state);
}

QModelIndex TableSelectionModel::getCurrentSelectedIndex() const
{
    return m_model ? m_model->index(m_state.current.row, m_state.current.column) : QModelIndex();
}

QItemSelectionRange TableSelectionModel::getCurrentRegion() const
{
    return m_state.dragged ? ToRange(*m_state.dragged) : QItemSelectionRange();
}

// ---- QML operations on the content model itself --------------------------------------------------

void TableSelectionModel::select(const QModelIndex& index, int mode, bool ensureVisible)
{
    Select(*m_directView, index.isValid() ? index.row() : -1, index.isValid() ? index.column() : -1, mode,
           ensureVisible);
}

void TableSelectionModel::beginSelectRegion(const QModelIndex& index, int mode)
{
    if (index.isValid())
        BeginSelectRegion(*m_directView, index.row(), index.column(), mode);
}

void TableSelectionModel::selectRegion(const QModelIndex& index, int mode)
{
    if (index.isValid())
        SelectRegion(*m_directView, index.row(), index.column(), mode);
}

void TableSelectionModel::endSelectRegion(bool discard)
{
    EndSelectRegion(discard);
}

void TableSelectionModel::selectAll()
{
    SelectAll(*m_directView);
}

bool TableSelectionModel::isSelected(const QModelIndex& index) const
{
    return index.isValid() && IsCellSelected(index.row(), index.column());
}

int TableSelectionModel::findRegion(const QModelIndex& index) const
{
    return index.isValid() ? FindRegion(index.row(), index.column()) : -1;
}

void TableSelectionModel::selectRow(int row, int mode)
{
    SelectRow(*m_directView, row, mode);
}

void TableSelectionModel::selectRowFromLast(int row)
{
    SelectRowFromLast(*m_directView, row);
}

void TableSelectionModel::extendSelection(int rows, int columns)
{
    ExtendSelection(*m_directView, rows, columns);
}

bool TableSelectionModel::isRowSelected(int row) const
{
    return IsWholeRowSelected(row);
}

QItemSelectionRange TableSelectionModel::getEnvelope() const
{
    const auto envelope = GetSourceEnvelope();
    if (!m_model || !envelope)
        return {};
    return QItemSelectionRange(m_model->index(envelope->top, envelope->left),
                               m_model->index(envelope->bottom, envelope->right));
}

// ---- Operations in view coordinates ---------------------------------------------------------------

std::optional<TableSelectionRegion> TableSelectionModel::RegionFromView(const TableSelectionView& view,
                                                                        int top, int left, int bottom,
                                                                        int right) const
{
    const int rowCount = view.GetRowCount();
    const int columnCount = view.GetColumnCount();
    if (rowCount <= 0 || columnCount <= 0)
        return std::nullopt;
    std::tie(top, bottom)
        = std::minmax({ std::clamp(top, 0, rowCount - 1), std::clamp(bottom, 0, rowCount - 1) });
    std::tie(left, right)
        = std::minmax({ std::clamp(left, 0, columnCount - 1), std::clamp(right, 0, columnCount - 1) });
    if (view.IsIdentity())
        return TableSelectionRegion::Rectangle(top, left, bottom, right);
    RowRunBuilder runs;
    for (int row = top; row <= bottom; ++row) {
        const int sourceRow = view.MapRowToSource(row);
        if (sourceRow >= 0)
            runs.Add(sourceRow);
    }
    TableSelectionRegion region(left, right, runs.Take());
    if (region.IsEmpty())
        return std::nullopt;
    return region;
}

int TableSelectionModel::MapAnchorRow(const TableSelectionView& view, int sourceRow) const
{
    return sourceRow < 0 ? -1 : view.MapRowFromSource(sourceRow);
}

void TableSelectionModel::Select(const TableSelectionView& view, int row, int column, int mode,
                                 bool ensureVisible)
{
    ChangeScope scope(*this);
    const bool valid = row >= 0 && row < view.GetRowCount() && column >= 0 && column < view.GetColumnCount();
    if (!valid) {
        if (mode == CleanSelect) {
            ClearCells();
            SetCurrent(-1, -1);
            SetAnchor(-1, -1);
        }
        return;
    }
    const auto cell = RegionFromView(view, row, column, row, column);
    if (!cell)
        return;
    const int sourceRow = cell->GetTop();
    switch (mode) {
    case CleanSelect:
        ClearCells();
        AddRegion(*cell);
        break;
    case Append:
        AddRegion(*cell);
        break;
    case Deselect:
        SubtractRegion(*cell);
        break;
    case Toggle:
        if (IsCellSelected(sourceRow, column))
            SubtractRegion(*cell);
        else
            AddRegion(*cell);
        break;
    case None:
        break;
    default:
        qCWarning(lcTables) << "select: unknown selection mode" << mode;
        return;
    }
    SetCurrent(sourceRow, column);
    SetAnchor(sourceRow, column);
    if (ensureVisible)
        emit ensureVisibleCurrentSelected();
}

void TableSelectionModel::BeginSelectRegion(const TableSelectionView& view, int row, int column, int mode)
{
    const auto cell = RegionFromView(view, row, column, row, column);
    if (!cell)
        return;
    ChangeScope scope(*this);
    if (mode == CleanSelect)
        ClearCells();
    m_dragMode = mode;
    m_state.dragged = *cell;
    SetCurrent(cell->GetTop(), column);
    SetAnchor(cell->GetTop(), column);
}

void TableSelectionModel::SelectRegion(const TableSelectionView& view, int row, int column, int mode)
{
    const int anchorRow = MapAnchorRow(view, m_state.anchor.row);
    if (anchorRow < 0 || m_state.anchor.column < 0) {
        // Nothing to extend from: behave like a click.
        Select(view, row, column, mode == None ? CleanSelect : mode, false);
        return;
    }
    const auto region = RegionFromView(view, anchorRow, m_state.anchor.column, row, column);
    if (!region)
        return;
    ChangeScope scope(*this);
    m_state.extent.row = view.MapRowToSource(std::clamp(row, 0, view.GetRowCount() - 1));
    m_state.extent.column = std::clamp(column, 0, view.GetColumnCount() - 1);
    if (m_state.dragged) {
        m_state.dragged = *region;
        return;
    }
    // Shift-click: the rectangle from the anchor replaces the selection (Ctrl+Shift adds it).
    if (mode != Append)
        ClearCells();
    AddRegion(*region);
}

void TableSelectionModel::EndSelectRegion(bool discard)
{
    if (!m_state.dragged)
        return;
    ChangeScope scope(*this);
    TableSelectionRegion dragged = std::move(*m_state.dragged);
    m_state.dragged.reset();
    if (discard)
        return;
    if (m_dragMode == Deselect)
        SubtractRegion(dragged);
    else
        AddRegion(std::move(dragged));
}

void TableSelectionModel::SelectAll(const TableSelectionView& view)
{
    const int records = view.GetSelectableRowCount();
    if (records <= 0 || view.GetColumnCount() <= 0)
        return;
    const auto all = RegionFromView(view, 0, 0, records - 1, view.GetColumnCount() - 1);
    if (!all)
        return;
    ChangeScope scope(*this);
    ClearCells();
    AddRegion(*all);
    m_state.selectedAll = true;
    if (m_state.current.row < 0)
        SetCurrent(all->GetTop(), 0);
}

void TableSelectionModel::SelectRow(const TableSelectionView& view, int row, int mode)
{
    if (row < 0 || row >= view.GetRowCount() || view.GetColumnCount() <= 0)
        return;
    const auto wholeRow = RegionFromView(view, row, 0, row, view.GetColumnCount() - 1);
    if (!wholeRow)
        return;
    const int sourceRow = wholeRow->GetTop();
    ChangeScope scope(*this);
    std::set<int> rows = m_state.wholeRows;
    const bool deselect = mode == Deselect || (mode == Toggle && IsWholeRowSelected(sourceRow));
    if (mode == CleanSelect) {
        ClearCells();
        rows.clear();
    }
    if (deselect) {
        SubtractRegion(*wholeRow);
        rows.erase(sourceRow);
    } else if (mode != None) {
        AddRegion(*wholeRow);
        rows.insert(sourceRow);
    }
    emit rowSelectionAboutToChange(Minus(rows, m_state.wholeRows), Minus(m_state.wholeRows, rows));
    m_state.wholeRows = std::move(rows);
    SetCurrent(sourceRow, m_state.current.column >= 0 ? m_state.current.column : 0);
    SetAnchor(sourceRow, 0);
}

void TableSelectionModel::SelectRowFromLast(const TableSelectionView& view, int row)
{
    const int lastRow = MapAnchorRow(view, m_state.anchor.row);
    if (lastRow < 0) {
        SelectRow(view, row, CleanSelect);
        return;
    }
    if (row < 0 || row >= view.GetRowCount() || view.GetColumnCount() <= 0)
        return;
    const auto rows = RegionFromView(view, lastRow, 0, row, view.GetColumnCount() - 1);
    if (!rows)
        return;
    ChangeScope scope(*this);
    const int anchorRow = m_state.anchor.row;
    ClearCells();
    AddRegion(*rows);
    std::set<int> wholeRows;
    rows->ForEachRow([&](int sourceRow) { wholeRows.insert(sourceRow); });
    emit rowSelectionAboutToChange(Minus(wholeRows, m_state.wholeRows), Minus(m_state.wholeRows, wholeRows));
    m_state.wholeRows = std::move(wholeRows);
    m_state.anchor.row = anchorRow;
    m_state.extent.row = view.MapRowToSource(row);
}

void TableSelectionModel::ExtendSelection(const TableSelectionView& view, int rows, int columns)
{
    const int anchorRow = MapAnchorRow(view, m_state.anchor.row);
    const int extentRow = MapAnchorRow(view, m_state.extent.row);
    if (anchorRow < 0 || extentRow < 0 || m_state.anchor.column < 0)
        return;
    const int row = std::clamp(extentRow + rows, 0, std::max(0, view.GetRowCount() - 1));
    const int column = std::clamp(m_state.extent.column + columns, 0, std::max(0, view.GetColumnCount() - 1));
    const auto region = RegionFromView(view, anchorRow, m_state.anchor.column, row, column);
    if (!region)
        return;
    ChangeScope scope(*this);
    ClearCells();
    AddRegion(*region);
    m_state.extent.row = view.MapRowToSource(row);
    m_state.extent.column = column;
}

// ---- Queries ---------------------------------------------------------------------------------------

bool TableSelectionModel::IsCellInDraggedRegion(int row, int column) const
{
    return m_state.dragged && m_state.dragged->Contains(row, column);
}

QVariant TableSelectionModel::RoleData(int row, int column, int role) const
{
    switch (role) {
    case TableContentModel::SelectedRole:
        return IsCellSelected(row, column) || IsCellInDraggedRegion(row, column);
    case TableContentModel::SelectedActiveRole:
        return IsCurrent(row, column);
    case TableContentModel::SelectedInRowRole:
        return IsWholeRowSelected(row);
    case TableContentModel::SelectedInRowExtraRole:
        return IsRowExtraHighlighted(row);
    default:
        return {};
    }
}

bool TableSelectionModel::IsWholeRowSelected(int row) const
{
    if (m_state.wholeRows.count(row) > 0)
        return true;
    return m_state.selectedAll && m_model && row >= 0 && row < m_model->rowCountSubmitted()
        && IsCellSelected(row, 0);
}

// ---- State changes ----------------------------------------------------------------------------------

void TableSelectionModel::AddRegion(TableSelectionRegion region)
{
    m_state.AddRegion(std::move(region));
}

void TableSelectionModel::SubtractRegion(const TableSelectionRegion& region)
{
    if (!m_state.wholeRows.empty()) {
        std::set<int> rows = m_state.wholeRows;
        region.ForEachRow([&](int row) { rows.erase(row); });
        if (rows != m_state.wholeRows)
            emit rowSelectionAboutToChange({}, Minus(m_state.wholeRows, rows));
    }
    m_state.SubtractRegion(region);
}

void TableSelectionModel::ClearCells()
{
    m_state.regions.clear();
    m_state.dragged.reset();
    m_state.selectedAll = false;
    if (!m_state.wholeRows.empty()) {
        emit rowSelectionAboutToChange({}, Minus(m_state.wholeRows, {}));
        m_state.wholeRows.clear();
    }
}

void TableSelectionModel::Clear()
{
    ChangeScope scope(*this);
    ClearCells();
    SetCurrent(-1, -1);
    SetAnchor(-1, -1);
}

void TableSelectionModel::SetCurrent(int row, int column)
{
    m_state.current = { row, column };
}

void TableSelectionModel::SetAnchor(int row, int column)
{
    m_state.anchor = m_state.extent = { row, column };
}

void TableSelectionModel::UpdateExtraRows()
{
    m_extraRows.clear();
    if (m_state.current.row >= 0)
        m_extraRows.insert(m_state.current.row);
}

QItemSelectionRange TableSelectionModel::ToRange(const TableSelectionRegion& region) const
{
    if (!m_model || region.IsEmpty())
        return {};
    const int lastRow = m_model->rowCount() - 1;
    const int lastColumn = m_model->columnCount() - 1;
    const int top = std::min(region.GetTop(), lastRow);
    const int bottom = std::min(region.GetBottom(), lastRow);
    const int left = std::min(region.GetLeft(), lastColumn);
    const int right = std::min(region.GetRight(), lastColumn);
    if (top < 0 || left < 0)
        return {};
    return QItemSelectionRange(m_model->index(top, left), m_model->index(bottom, right));
}

QItemSelection
TableSelectionModel::ToEnvelopeSelection(const std::vector<TableSelectionRegion>& regions) const
{
    // Listeners repaint what they are told; the bounding block of the change is one cheap message
    // even for a selection of a million rows made through a filter.
    const auto envelope = TableSelectionState::EnvelopeOf(regions);
    if (!envelope)
        return {};
    QItemSelection selection;
    const QItemSelectionRange range = ToRange(
        TableSelectionRegion::Rectangle(envelope->top, envelope->left, envelope->bottom, envelope->right));
    if (range.isValid())
        selection.append(range);
    return selection;
}

void TableSelectionModel::EmitChanges(const Snapshot& snapshot)
{
    const TableSelectionState& before = snapshot.state;
    const bool regionsChanged = before.regions != m_state.regions;
    const bool draggedChanged = before.dragged != m_state.dragged;
    if (regionsChanged || draggedChanged) {
        std::vector<TableSelectionRegion> now = m_state.regions;
        std::vector<TableSelectionRegion> then = before.regions;
        if (m_state.dragged)
            now.push_back(*m_state.dragged);
        if (before.dragged)
            then.push_back(*before.dragged);
        emit selectionChanged(ToEnvelopeSelection(now), ToEnvelopeSelection(then));
    }
    if (before.regions.size() != m_state.regions.size())
        emit regionCountChanged();
    if (draggedChanged) {
        emit currentRegionChanged(before.dragged ? ToRange(*before.dragged) : QItemSelectionRange());
        if (before.dragged.has_value() != m_state.dragged.has_value())
            emit activeRectangleSelectingChanged();
    }
    if (before.selectedAll != m_state.selectedAll)
        emit selectedAllChanged();
    if (before.wholeRows != m_state.wholeRows)
        emit rowSelectionChanged(Minus(m_state.wholeRows, before.wholeRows),
                                 Minus(before.wholeRows, m_state.wholeRows));
    if (snapshot.extraRows != m_extraRows)
        emit rowExtraHighlightChanged(Minus(m_extraRows, snapshot.extraRows),
                                      Minus(snapshot.extraRows, m_extraRows));
    if (before.current != m_state.current) {
        const QModelIndex previous
            = m_model ? m_model->index(before.current.row, before.current.column) : QModelIndex();
        emit currentSelectedIndexChanged(previous);
    }
}

// ---- Following the content model -------------------------------------------------------------------

void TableSelectionModel::OnRowsRemoved(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    ChangeScope scope(*this);
    m_state.RemoveRows(first, last);
}

void TableSelectionModel::OnRowsInserted(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    ChangeScope scope(*this);
    std::unique_ptr<TableSelectionState> refilled = std::move(m_beforeRefill);
    if (refilled && first == 0 && m_state.regions.empty())
        m_state.InsertRefilledRows(std::move(*refilled), last + 1);
    else
        m_state.InsertRows(first, last - first + 1);
}

void TableSelectionModel::OnColumnsRemoved(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    m_beforeRefill.reset(); // a new table is coming, not a refill of this one
    ChangeScope scope(*this);
    m_state.RemoveColumns(first, last);
}

void TableSelectionModel::OnColumnsInserted(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    ChangeScope scope(*this);
    m_state.InsertColumns(first, last - first + 1);
}

void TableSelectionModel::OnColumnsMoved(const QModelIndex& parent, int start, int end, const QModelIndex&,
                                         int column)
{
    if (parent.isValid() || !m_model)
        return;
    ChangeScope scope(*this);
    m_state.MoveColumns(start, end, column, m_model->columnCount());
}

} // namespace Orvo::UI::UIComponents
