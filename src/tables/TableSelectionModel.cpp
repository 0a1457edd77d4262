#include "TableSelectionModel.h"

#include "TableContentModel.h"
#include "TablesLogging.h"

#include <algorithm>
#include <iterator>
#include <map>

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
    std::vector<TableSelectionRegion> regions;
    std::optional<TableSelectionRegion> dragged;
    bool selectedAll;
    std::set<int> wholeRows;
    std::set<int> extraRows;
    int currentRow;
    int currentColumn;
};

// Collects the changes of one operation so that every listener hears of them once, at the end.
class TableSelectionModel::ChangeScope
{
public:
    explicit ChangeScope(TableSelectionModel& owner)
        : m_owner(owner)
    {
        if (m_owner.m_changeDepth++ == 0) {
            m_owner.m_changeStart.reset(new Snapshot {
                m_owner.m_regions, m_owner.m_dragged, m_owner.m_selectedAll, m_owner.m_wholeRows,
                m_owner.m_extraRows, m_owner.m_currentRow, m_owner.m_currentColumn });
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
    m_beforeRefill.reset(new Snapshot {
        m_regions, std::nullopt, m_selectedAll, m_wholeRows, {}, m_currentRow, m_currentColumn });
}

QModelIndex TableSelectionModel::getCurrentSelectedIndex() const
{
    return m_model ? m_model->index(m_currentRow, m_currentColumn) : QModelIndex();
}

QItemSelectionRange TableSelectionModel::getCurrentRegion() const
{
    return m_dragged ? ToRange(*m_dragged) : QItemSelectionRange();
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
    const int firstRow = std::clamp(std::min(top, bottom), 0, rowCount - 1);
    const int lastRow = std::clamp(std::max(top, bottom), 0, rowCount - 1);
    const int firstColumn = std::clamp(std::min(left, right), 0, columnCount - 1);
    const int lastColumn = std::clamp(std::max(left, right), 0, columnCount - 1);
    top = firstRow;
    bottom = lastRow;
    left = firstColumn;
    right = lastColumn;
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
    m_dragged = *cell;
    SetCurrent(cell->GetTop(), column);
    SetAnchor(cell->GetTop(), column);
}

void TableSelectionModel::SelectRegion(const TableSelectionView& view, int row, int column, int mode)
{
    const int anchorRow = MapAnchorRow(view, m_anchorRow);
    if (anchorRow < 0 || m_anchorColumn < 0) {
        // Nothing to extend from: behave like a click.
        Select(view, row, column, mode == None ? CleanSelect : mode, false);
        return;
    }
    const auto region = RegionFromView(view, anchorRow, m_anchorColumn, row, column);
    if (!region)
        return;
    ChangeScope scope(*this);
    m_extentRow = view.MapRowToSource(std::clamp(row, 0, view.GetRowCount() - 1));
    m_extentColumn = std::clamp(column, 0, view.GetColumnCount() - 1);
    if (m_dragged) {
        m_dragged = *region;
        return;
    }
    // Shift-click: the rectangle from the anchor replaces the selection (Ctrl+Shift adds it).
    if (mode != Append)
        ClearCells();
    AddRegion(*region);
}

void TableSelectionModel::EndSelectRegion(bool discard)
{
    if (!m_dragged)
        return;
    ChangeScope scope(*this);
    TableSelectionRegion dragged = std::move(*m_dragged);
    m_dragged.reset();
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
    m_selectedAll = true;
    if (m_currentRow < 0)
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
    std::set<int> rows = m_wholeRows;
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
    emit rowSelectionAboutToChange(Minus(rows, m_wholeRows), Minus(m_wholeRows, rows));
    m_wholeRows = std::move(rows);
    SetCurrent(sourceRow, m_currentColumn >= 0 ? m_currentColumn : 0);
    SetAnchor(sourceRow, 0);
}

void TableSelectionModel::SelectRowFromLast(const TableSelectionView& view, int row)
{
    const int lastRow = MapAnchorRow(view, m_anchorRow);
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
    const int anchorRow = m_anchorRow;
    ClearCells();
    AddRegion(*rows);
    std::set<int> wholeRows;
    rows->ForEachRow([&](int sourceRow) { wholeRows.insert(sourceRow); });
    emit rowSelectionAboutToChange(Minus(wholeRows, m_wholeRows), Minus(m_wholeRows, wholeRows));
    m_wholeRows = std::move(wholeRows);
    m_anchorRow = anchorRow;
    m_extentRow = view.MapRowToSource(row);
}

void TableSelectionModel::ExtendSelection(const TableSelectionView& view, int rows, int columns)
{
    const int anchorRow = MapAnchorRow(view, m_anchorRow);
    const int extentRow = MapAnchorRow(view, m_extentRow);
    if (anchorRow < 0 || extentRow < 0 || m_anchorColumn < 0)
        return;
    const int row = std::clamp(extentRow + rows, 0, std::max(0, view.GetRowCount() - 1));
    const int column = std::clamp(m_extentColumn + columns, 0, std::max(0, view.GetColumnCount() - 1));
    const auto region = RegionFromView(view, anchorRow, m_anchorColumn, row, column);
    if (!region)
        return;
    ChangeScope scope(*this);
    ClearCells();
    AddRegion(*region);
    m_extentRow = view.MapRowToSource(row);
    m_extentColumn = column;
}

// ---- Queries ---------------------------------------------------------------------------------------

bool TableSelectionModel::IsCellSelected(int row, int column) const
{
    return FindRegion(row, column) >= 0;
}

bool TableSelectionModel::IsCellInDraggedRegion(int row, int column) const
{
    return m_dragged && m_dragged->Contains(row, column);
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
    if (m_wholeRows.count(row) > 0)
        return true;
    return m_selectedAll && m_model && row >= 0 && row < m_model->rowCountSubmitted()
        && IsCellSelected(row, 0);
}

int TableSelectionModel::FindRegion(int row, int column) const
{
    for (std::size_t i = 0; i < m_regions.size(); ++i) {
        if (m_regions[i].Contains(row, column))
            return static_cast<int>(i);
    }
    return -1;
}

std::optional<TableSelectionModel::Envelope> TableSelectionModel::GetSourceEnvelope() const
{
    if (m_regions.empty())
        return std::nullopt;
    Envelope envelope { m_regions.front().GetTop(), m_regions.front().GetLeft(),
                        m_regions.front().GetBottom(), m_regions.front().GetRight() };
    for (const TableSelectionRegion& region : m_regions) {
        envelope.top = std::min(envelope.top, region.GetTop());
        envelope.bottom = std::max(envelope.bottom, region.GetBottom());
        envelope.left = std::min(envelope.left, region.GetLeft());
        envelope.right = std::max(envelope.right, region.GetRight());
    }
    return envelope;
}

void TableSelectionModel::ForEachSelectedCell(const std::function<void(int, int)>& visit) const
{
    if (m_regions.size() == 1) {
        // The common case, select all included: no bookkeeping needed.
        const TableSelectionRegion& region = m_regions.front();
        region.ForEachRow([&](int row) {
            for (int column = region.GetLeft(); column <= region.GetRight(); ++column)
                visit(row, column);
        });
        return;
    }
    // Regions may overlap: gather the columns of each row first so that no cell is visited twice.
    std::map<int, std::set<int>> cells;
    for (const TableSelectionRegion& region : m_regions) {
        region.ForEachRow([&](int row) {
            auto& columns = cells[row];
            for (int column = region.GetLeft(); column <= region.GetRight(); ++column)
                columns.insert(column);
        });
    }
    for (const auto& [row, columns] : cells) {
        for (int column : columns)
            visit(row, column);
    }
}

// ---- State changes ----------------------------------------------------------------------------------

void TableSelectionModel::AddRegion(TableSelectionRegion region)
{
    if (region.IsEmpty())
        return;
    // A region already covered adds nothing; identical repeated clicks must not pile up regions.
    for (const TableSelectionRegion& existing : m_regions) {
        if (region.Subtract(existing).empty())
            return;
    }
    m_regions.push_back(std::move(region));
}

void TableSelectionModel::SubtractRegion(const TableSelectionRegion& region)
{
    std::vector<TableSelectionRegion> remaining;
    for (const TableSelectionRegion& existing : m_regions) {
        for (TableSelectionRegion& piece : existing.Subtract(region))
            remaining.push_back(std::move(piece));
    }
    m_regions = std::move(remaining);
    m_selectedAll = false;
    if (!m_wholeRows.empty()) {
        std::set<int> rows = m_wholeRows;
        region.ForEachRow([&](int row) { rows.erase(row); });
        if (rows != m_wholeRows) {
            emit rowSelectionAboutToChange({}, Minus(m_wholeRows, rows));
            m_wholeRows = std::move(rows);
        }
    }
}

void TableSelectionModel::ClearCells()
{
    m_regions.clear();
    m_dragged.reset();
    m_selectedAll = false;
    if (!m_wholeRows.empty()) {
        emit rowSelectionAboutToChange({}, Minus(m_wholeRows, {}));
        m_wholeRows.clear();
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
    m_currentRow = row;
    m_currentColumn = column;
}

void TableSelectionModel::SetAnchor(int row, int column)
{
    m_anchorRow = m_extentRow = row;
    m_anchorColumn = m_extentColumn = column;
}

void TableSelectionModel::UpdateExtraRows()
{
    m_extraRows.clear();
    if (m_currentRow >= 0)
        m_extraRows.insert(m_currentRow);
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
    if (regions.empty())
        return {};
    TableSelectionRegion envelope = regions.front();
    int top = envelope.GetTop(), bottom = envelope.GetBottom();
    int left = envelope.GetLeft(), right = envelope.GetRight();
    for (const TableSelectionRegion& region : regions) {
        top = std::min(top, region.GetTop());
        bottom = std::max(bottom, region.GetBottom());
        left = std::min(left, region.GetLeft());
        right = std::max(right, region.GetRight());
    }
    QItemSelection selection;
    const QItemSelectionRange range = ToRange(TableSelectionRegion::Rectangle(top, left, bottom, right));
    if (range.isValid())
        selection.append(range);
    return selection;
}

void TableSelectionModel::EmitChanges(const Snapshot& before)
{
    const bool regionsChanged = before.regions != m_regions;
    const bool draggedChanged = before.dragged != m_dragged;
    if (regionsChanged || draggedChanged) {
        std::vector<TableSelectionRegion> now = m_regions;
        std::vector<TableSelectionRegion> then = before.regions;
        if (m_dragged)
            now.push_back(*m_dragged);
        if (before.dragged)
            then.push_back(*before.dragged);
        emit selectionChanged(ToEnvelopeSelection(now), ToEnvelopeSelection(then));
    }
    if (before.regions.size() != m_regions.size())
        emit regionCountChanged();
    if (draggedChanged) {
        emit currentRegionChanged(before.dragged ? ToRange(*before.dragged) : QItemSelectionRange());
        if (before.dragged.has_value() != m_dragged.has_value())
            emit activeRectangleSelectingChanged();
    }
    if (before.selectedAll != m_selectedAll)
        emit selectedAllChanged();
    if (before.wholeRows != m_wholeRows)
        emit rowSelectionChanged(Minus(m_wholeRows, before.wholeRows), Minus(before.wholeRows, m_wholeRows));
    if (before.extraRows != m_extraRows)
        emit rowExtraHighlightChanged(Minus(m_extraRows, before.extraRows),
                                      Minus(before.extraRows, m_extraRows));
    if (before.currentRow != m_currentRow || before.currentColumn != m_currentColumn) {
        const QModelIndex previous
            = m_model ? m_model->index(before.currentRow, before.currentColumn) : QModelIndex();
        emit currentSelectedIndexChanged(previous);
    }
}

// ---- Following the content model -------------------------------------------------------------------

void TableSelectionModel::OnRowsRemoved(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    ChangeScope scope(*this);
    const int count = last - first + 1;
    std::vector<TableSelectionRegion> regions;
    for (TableSelectionRegion& region : m_regions) {
        if (region.RemoveRows(first, last))
            regions.push_back(std::move(region));
    }
    m_regions = std::move(regions);
    if (m_dragged && !m_dragged->RemoveRows(first, last))
        m_dragged.reset();
    std::set<int> rows;
    for (int row : m_wholeRows) {
        if (row < first)
            rows.insert(row);
        else if (row > last)
            rows.insert(row - count);
    }
    m_wholeRows = std::move(rows);
    if (m_regions.empty())
        m_selectedAll = false;
    FollowRemovedLines(Qt::Vertical, first, last);
}

void TableSelectionModel::OnRowsInserted(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    ChangeScope scope(*this);
    if (std::unique_ptr<Snapshot> refilled = std::move(m_beforeRefill);
        refilled && first == 0 && m_regions.empty()) {
        const int rows = last + 1;
        for (TableSelectionRegion& region : refilled->regions) {
            if (region.RemoveRows(rows, std::max(rows, region.GetBottom())))
                m_regions.push_back(std::move(region));
        }
        m_selectedAll = refilled->selectedAll && !m_regions.empty();
        for (int row : refilled->wholeRows) {
            if (row < rows)
                m_wholeRows.insert(row);
        }
        if (refilled->currentRow < rows) {
            SetCurrent(refilled->currentRow, refilled->currentColumn);
            SetAnchor(refilled->currentRow, refilled->currentColumn);
        }
        return;
    }
    const int count = last - first + 1;
    for (TableSelectionRegion& region : m_regions)
        region.InsertRows(first, count);
    if (m_dragged)
        m_dragged->InsertRows(first, count);
    std::set<int> rows;
    for (int row : m_wholeRows)
        rows.insert(row >= first ? row + count : row);
    m_wholeRows = std::move(rows);
    for (int* row : { &m_currentRow, &m_anchorRow, &m_extentRow }) {
        if (*row >= first)
            *row += count;
    }
}

void TableSelectionModel::OnColumnsRemoved(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    m_beforeRefill.reset(); // a new table is coming, not a refill of this one
    ChangeScope scope(*this);
    std::vector<TableSelectionRegion> regions;
    for (TableSelectionRegion& region : m_regions) {
        if (region.RemoveColumns(first, last))
            regions.push_back(std::move(region));
    }
    m_regions = std::move(regions);
    if (m_dragged && !m_dragged->RemoveColumns(first, last))
        m_dragged.reset();
    if (m_regions.empty()) {
        m_selectedAll = false;
        m_wholeRows.clear();
    }
    FollowRemovedLines(Qt::Horizontal, first, last);
}

void TableSelectionModel::FollowRemovedLines(Qt::Orientation orientation, int first, int last)
{
    const int count = last - first + 1;
    for (const auto& [row, column] :
         { std::pair { &m_currentRow, &m_currentColumn }, std::pair { &m_anchorRow, &m_anchorColumn },
           std::pair { &m_extentRow, &m_extentColumn } }) {
        int& line = orientation == Qt::Vertical ? *row : *column;
        if (line > last) {
            line -= count;
        } else if (line >= first) {
            *row = -1;
            *column = -1;
        }
    }
}

void TableSelectionModel::OnColumnsInserted(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    ChangeScope scope(*this);
    const int count = last - first + 1;
    for (TableSelectionRegion& region : m_regions)
        region.InsertColumns(first, count);
    if (m_dragged)
        m_dragged->InsertColumns(first, count);
    for (int* column : { &m_currentColumn, &m_anchorColumn, &m_extentColumn }) {
        if (*column >= first)
            *column += count;
    }
}

void TableSelectionModel::OnColumnsMoved(const QModelIndex& parent, int start, int end, const QModelIndex&,
                                         int column)
{
    if (parent.isValid() || !m_model)
        return;
    ChangeScope scope(*this);
    // Build the permutation the move applied: old column -> new column.
    std::vector<int> order(static_cast<std::size_t>(m_model->columnCount()));
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<int>(i);
    const int count = end - start + 1;
    std::vector<int> before = order;
    std::vector<int> moved(before.begin() + start, before.begin() + end + 1);
    before.erase(before.begin() + start, before.begin() + end + 1);
    const int insertAt = column > start ? column - count : column;
    before.insert(before.begin() + insertAt, moved.begin(), moved.end());
    std::vector<int> newColumnOf(order.size());
    for (std::size_t i = 0; i < before.size(); ++i)
        newColumnOf[static_cast<std::size_t>(before[i])] = static_cast<int>(i);

    std::vector<TableSelectionRegion> regions;
    for (const TableSelectionRegion& region : m_regions) {
        for (TableSelectionRegion& piece : region.MapColumns(newColumnOf))
            regions.push_back(std::move(piece));
    }
    m_regions = std::move(regions);
    m_dragged.reset();
    auto map = [&](int& value) {
        if (value >= 0 && value < static_cast<int>(newColumnOf.size()))
            value = newColumnOf[static_cast<std::size_t>(value)];
    };
    map(m_currentColumn);
    map(m_anchorColumn);
    map(m_extentColumn);
}

} // namespace Orvo::UI::UIComponents
