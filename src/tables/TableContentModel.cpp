#include "TableContentModel.h"

#include "FilterBarModel.h"
#include "MultiEditActionSolver.h"
#include "MultiEditSearchResult.h"
#include "MultiEditSelection.h"
#include "TableCellText.h"
#include "TableClipboard.h"
#include "TableColorPalette.h"
#include "TableColumnVisibility.h"
#include "TableContentDelivery.h"
#include "TableContentFilterModel.h"
#include "TableNamedStateWidths.h"
#include "TableNumberText.h"
#include "TableRoleData.h"
#include "TableSelectionFilterModel.h"
#include "TableSelectionModel.h"
#include "TablesLogging.h"
#include "events/NumberFormatChanged.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Orvo::UI::UIComponents {

namespace {

const QList<int> c_selectionRoles { TableContentModel::SelectedRole, TableContentModel::SelectedActiveRole,
                                    TableContentModel::SelectedInRowRole,
                                    TableContentModel::SelectedInRowExtraRole };

QString FormatAllocationError(int bulk, int column)
{
    return QStringLiteral("No allocation for required row %1 and column %2").arg(bulk).arg(column);
}

} // namespace

TableContentModel::TableContentModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_columnsModel(new TableColumnsModel(this))
    , m_selectionModel(new TableSelectionModel(this, this))
    , m_contentFilterModel(new TableContentFilterModel(this))
    , m_multiEditActionSolver(new MultiEditActionSolver(this))
    , m_namedStateWidths(new TableNamedStateWidths(*this))
{
    m_contentFilterModel->SetSourceModel(this);
    m_multiEditSearchResult = new MultiEditSearchResult(m_contentFilterModel, this);

    m_columnVisibility = new TableColumnVisibility(*this, *m_columnsModel, this);
    m_selectionFollower = new TableSelectionFollower(*this, *m_selectionModel, this);
    connect(m_selectionFollower, &TableSelectionFollower::selectionRolesChanged, this,
            [this](const QModelIndex& topLeft, const QModelIndex& bottomRight) {
                emit dataChanged(topLeft, bottomRight, c_selectionRoles);
            });
    connect(m_selectionFollower, &TableSelectionFollower::parametersChanged, this, [this]() {
        emit selectionParametersNamesChanged();
        emit selectionParametersValuesChanged();
        emit selectionParametersSelectedIndicesChanged();
    });
    connect(m_contentFilterModel, &TableContentFilterModel::filterBarModelChanged, this,
            &TableContentModel::filterBarModelChanged);
    FollowNumberFormat();
}

void TableContentModel::FollowNumberFormat()
{
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    const auto eventbus = catalog ? catalog->Get<Kernel::Framework::EventBus>() : nullptr;
    if (!eventbus)
        return;
    m_numberFormatConnection
        = eventbus->Subscribe<Events::NumberFormatChanged>([this](const Events::NumberFormatChanged&) {
              if (rowCount() > 0 && columnCount() > 0) {
                  emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                                   { Qt::DisplayRole, TableContentFilterModel::DisplayTextRole });
              }
          });
}

TableContentModel::~TableContentModel()
{
    // The companions look at this model while they go; take them down while it is still whole.
    delete m_multiEditSearchResult;
    delete m_multiEditActionSolver;
    delete m_contentFilterModel;
    delete m_selectionFollower;
    delete m_selectionModel;
    delete m_columnsModel;
}

// ---- Shape --------------------------------------------------------------------------------------------

int TableContentModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return m_rowCountSubmitted + (m_allowAddNew ? 1 : 0);
}

bool TableContentModel::IsInTable(const QModelIndex& index) const
{
    return index.isValid() && index.model() == this && index.row() >= 0 && index.row() < rowCount()
        && index.column() >= 0 && index.column() < columnCount();
}

Qt::ItemFlags TableContentModel::flags(const QModelIndex& index) const
{
    if (!IsInTable(index))
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (m_allowEdit && m_layout.At(index.column()).editable)
        flags |= Qt::ItemIsEditable;
    return flags;
}

// ---- Properties ---------------------------------------------------------------------------------------

void TableContentModel::setHorizontalHeaderHeight(double height)
{
    if (m_horizontalHeaderHeight == height)
        return;
    m_horizontalHeaderHeight = height;
    emit horizontalHeaderHeightChanged();
}

void TableContentModel::setAllowAddNew(bool allow)
{
    if (m_allowAddNew == allow)
        return;
    if (allow) {
        beginInsertRows(QModelIndex(), m_rowCountSubmitted, m_rowCountSubmitted);
        m_allowAddNew = true;
        endInsertRows();
    } else {
        beginRemoveRows(QModelIndex(), m_rowCountSubmitted, m_rowCountSubmitted);
        m_allowAddNew = false;
        endRemoveRows();
    }
    emit rowCountChanged();
    emit allowAddNewChanged();
}

void TableContentModel::setAllowDelete(bool allow)
{
    if (m_allowDelete == allow)
        return;
    m_allowDelete = allow;
    emit allowDeleteChanged();
}

void TableContentModel::setAllowEdit(bool allow)
{
    if (m_allowEdit == allow)
        return;
    m_allowEdit = allow;
    emit allowEditChanged();
}

// ---- Fetching cells ---------------------------------------------------------------------------------

TableCellContent TableContentModel::GetCell(int row, int column) const
{
    const GridContentIndex gridIndex = GridContentIndex::FromRow(row);
    if (row < 0 || !m_grid.IsFilled(gridIndex, column))
        return {};
    return m_grid.GetCell(gridIndex, column);
}

TableCellContent TableContentModel::EnsureData(int row, int column, ContentRequest request) const
{
    const GridContentIndex gridIndex = GridContentIndex::FromRow(row);
    if (row < 0 || row >= m_rowCountSubmitted || column < 0 || column >= columnCount())
        throw std::overflow_error(FormatAllocationError(gridIndex.bulk, column).toStdString());
    if (m_grid.IsFilled(gridIndex, column))
        return m_grid.GetCell(gridIndex, column);

    int start = gridIndex.bulk * c_rowsCountBulk;
    int count = std::min(c_rowsCountBulk, m_rowCountSubmitted - start);
    if (request == ContentRequest::WholeColumn) {
        start = 0;
        count = m_rowCountSubmitted;
    }
    const std::vector<QString> ids = request == ContentRequest::VisibleColumns
        ? m_layout.Ids()
        : std::vector<QString> { m_layout.At(column).id };
    auto* self = const_cast<TableContentModel*>(this);
    emit self->setRowsRequest(start, count, ids);

    // The feeder may have delivered nothing (or something else): default cells make sure the
    // lookup cannot fail twice and the feeder is not asked again for the same rows.
    if (!m_grid.IsFilled(gridIndex, column) && row < m_rowCountSubmitted && m_layout.Contains(column)) {
        qCWarning(lcTables) << "The feeder delivered no content for rows" << start << "to"
                            << start + count - 1 << "of column" << m_layout.At(column).id;
        std::vector<TableColumnContent> defaults { TableColumnContent {
            m_layout.At(column).id, std::vector<TableCellContent>(static_cast<std::size_t>(count)) } };
        self->SetRowsToGrid(start, defaults);
    }
    return m_grid.GetCell(gridIndex, column);
}

// ---- Delivering content -----------------------------------------------------------------------------

void TableContentModel::SetRowCount(int count)
{
    if (count < 0)
        throw std::range_error("Index and count of rows is larger than allocated capacity");
    ClearContent();
    // An empty range cannot be announced: views and model testers reject first > last.
    if (count > 0)
        beginInsertRows(QModelIndex(), 0, count - 1);
    m_grid.Reset(columnCount(), (count + c_rowsCountBulk - 1) / c_rowsCountBulk);
    m_rowCountSubmitted = count;
    if (count > 0)
        endInsertRows();
    emit rowCountChanged();
}

void TableContentModel::SetColumnsContent(int index, std::vector<TableColumnContent>&& contents)
{
    if (contents.empty())
        return;
    const int count = static_cast<int>(contents.front().cells.size());
    if (index < 0 || index + count - 1 >= m_rowCountSubmitted)
        throw std::range_error("Index and count of rows is larger than allocated capacity");
    SetRowsToGrid(index, contents);
    UpdateMinimumWidths(index, count);
}

void TableContentModel::AddColumnsContent(std::vector<TableColumnContent>&& contents)
{
    if (contents.empty())
        return;
    const int count = static_cast<int>(contents.front().cells.size());
    TableContentDelivery::ResolveColumns(contents, m_layout);
    m_pendingEdits.ClearRecordEdits();
    if (count == 0)
        return;
    const int first = m_rowCountSubmitted;
    beginInsertRows(QModelIndex(), first, first + count - 1);
    SetRowsToGrid(first, contents);
    m_rowCountSubmitted += count;
    endInsertRows();
    emit rowCountChanged();
    UpdateMinimumWidths(first, count);
}

void TableContentModel::SetRowsToGrid(int index, std::vector<TableColumnContent>& contents)
{
    const std::vector<int> columns = TableContentDelivery::ResolveColumns(contents, m_layout);
    if (contents.empty() || contents.front().cells.empty())
        return;
    const int firstRow = std::min(index, m_rowCountSubmitted);
    const int lastRow = firstRow + static_cast<int>(contents.front().cells.size()) - 1;
    if (lastRow / c_rowsCountBulk + 1 > m_grid.GetBulkCount())
        m_grid.AppendBulks(lastRow / c_rowsCountBulk + 1 - m_grid.GetBulkCount());
    for (std::size_t c = 0; c < contents.size(); ++c) {
        TableContentDelivery::NameColours(m_layout.At(columns[c]).type, contents[c].cells, m_colorNames);
        m_grid.StoreRows(firstRow, columns[c], std::move(contents[c].cells));
    }
}

void TableContentModel::UpdateMinimumWidths(int firstRow, int count)
{
    m_namedStateWidths->Widen(
        TableContentDelivery::ColumnsNeedingNamedStates(m_grid, m_layout, firstRow, count));
}

void TableContentModel::ClearContent()
{
    if (m_rowCountSubmitted > 0) {
        emit aboutToClearContent();
        beginRemoveRows(QModelIndex(), 0, m_rowCountSubmitted - 1);
        m_grid.Reset(columnCount(), 0);
        m_rowCountSubmitted = 0;
        endRemoveRows();
        m_pendingEdits.ClearRecordEdits();
        emit rowCountChanged();
        emit clearContent();
        return;
    }
    m_grid.Reset(columnCount(), 0);
    m_pendingEdits.ClearRecordEdits();
}

void TableContentModel::Clear()
{
    ClearContent();
    RemoveAllColumns();
}

// ---- Item data ----------------------------------------------------------------------------------------

QVariant TableContentModel::data(const QModelIndex& index, int role) const
{
    if (!IsInTable(index))
        return {};
    if (IsNewRow(index.row()))
        return DataForNewRow(index.column(), role);
    // A feeder breaking its contract must not take the view down with it.
    return CatchAtBoundary("TableContentModel::data", QVariant(), [&]() { return CellData(index, role); });
}

QVariant TableContentModel::CellData(const QModelIndex& index, int role) const
{
    const int row = index.row();
    const int column = index.column();
    if (role == SelectableRole)
        return true;
    if (!TableRoleData::IsRecordRole(role))
        return m_selectionModel->RoleData(row, column, role);
    const TableCellContent cell = EnsureData(row, column, ContentRequest::VisibleColumns);
    const TableValueType columnType = m_layout.At(column).type;
    return TableRoleData::RecordData(cell, m_layout.At(column),
                                     columnType != TableValueType::Unknown ? columnType : cell.valueType,
                                     PendingValue(row, column), role);
}

QVariant TableContentModel::DataForNewRow(int column, int role) const
{
    if (!m_layout.Contains(column))
        return {};
    const QVariant selection = m_selectionModel->RoleData(m_rowCountSubmitted, column, role);
    return selection.isValid()
        ? selection
        : TableRoleData::NewRowData(m_layout.At(column), m_pendingEdits.NewRow().Value(column), role);
}

TableValueType TableContentModel::GetValueType(int row, int column) const
{
    if (!m_layout.Contains(column))
        return TableValueType::Unknown;
    const TableValueType columnType = m_layout.At(column).type;
    if (columnType != TableValueType::Unknown)
        return columnType;
    if (row < 0 || row >= m_rowCountSubmitted)
        return TableValueType::Unknown;
    return EnsureData(row, column, ContentRequest::VisibleColumns).valueType;
}

// ---- Header ---------------------------------------------------------------------------------------------

QVariant TableContentModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        if (section < 0 || section >= rowCount())
            return {};
        if (role == Qt::DisplayRole)
            return IsNewRow(section) ? QStringLiteral("*") : QString::number(section + 1);
        if (role == SelectableRole)
            return section < m_rowCountSubmitted;
        return {};
    }
    return m_layout.Contains(section) ? TableRoleData::HeaderData(m_layout.At(section), role) : QVariant();
}

bool TableContentModel::setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                                      int role)
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return false;
    if (role == SortOrderRole) {
        const std::vector<int> changed = m_layout.SetSortOrder(section, value.toInt());
        if (changed.empty())
            return false;
        for (int column : changed)
            emit headerDataChanged(Qt::Horizontal, column, column);
        emit columnsLayoutChanged();
        emit refillContentRequest();
        return true;
    }
    if (role == ColumnMinWidthRole) {
        const int liveWidth = m_layout.LiveWidth(section);
        if (!m_layout.SetMinWidth(section, value.toInt()))
            return false;
        if (m_layout.LiveWidth(section) != liveWidth)
            emit columnWidthChanged(section);
        emit headerDataChanged(Qt::Horizontal, section, section);
        emit columnsLayoutChanged();
        return true;
    }
    return false;
}

// ---- Editing --------------------------------------------------------------------------------------------

bool TableContentModel::IsCellEditable(int row, int column) const
{
    if (!m_layout.At(column).editable || row >= m_rowCountSubmitted)
        return false;
    return EnsureData(row, column, ContentRequest::VisibleColumns).editable;
}

bool TableContentModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if ((role != Qt::EditRole && role != ContentRole && role != ParameterIndexRole) || !IsInTable(index))
        return false;
    if (IsNewRow(index.row()))
        return SetDataForNewRow(index.column(), value, role);
    // An edit is taken by role and place; allowEdit is the view's business (and governs paste).
    return CatchAtBoundary("TableContentModel::setData", false,
                           [&]() { return SetCellValue(index.row(), index.column(), value, role); });
}

bool TableContentModel::SetCellValue(int row, int column, const QVariant& value, int role)
{
    if (!IsCellEditable(row, column))
        return false;
    const TablePendingEdits::EditResult result = m_pendingEdits.EditCell(
        row, column, EnsureData(row, column, ContentRequest::VisibleColumns), GetValueType(row, column),
        value, role == ParameterIndexRole, m_layout.At(column).unit);
    if (result == TablePendingEdits::EditResult::Rejected)
        return false;
    const QModelIndex changed = index(row, column);
    emit dataChanged(changed, changed, { role, ContentRole, TableContentFilterModel::DisplayTextRole });
    return true;
}

QString TableContentModel::TypedTextRefusal(int row, int column, const QString& text) const
{
    if (!m_layout.Contains(column) || row < 0 || row > m_rowCountSubmitted)
        return {};
    return CatchAtBoundary("TableContentModel::TypedTextRefusal", QString(), [&]() {
        const QStringList names = IsNewRow(row)
            ? QStringList()
            : EnsureData(row, column, ContentRequest::VisibleColumns).parametersNames;
        const TableValueType type = IsNewRow(row) ? m_layout.At(column).type : GetValueType(row, column);
        return TableCellText::ReadTyped(text, type, names, TableNumberText(), m_layout.At(column).unit)
            .reason;
    });
}

bool TableContentModel::SetDataForNewRow(int column, const QVariant& value, int role)
{
    if (!m_pendingEdits.SetNewRowValue(column, value.toString()))
        return false;
    const QModelIndex changed = index(newRowIndex(), column);
    emit dataChanged(changed, changed, { role, TableContentFilterModel::DisplayTextRole });
    return true;
}

void TableContentModel::confirmUpdate()
{
    const auto update
        = m_pendingEdits.Confirm(m_layout, m_allowAddNew ? std::optional(newRowIndex()) : std::nullopt);
    if (update)
        emit updateDataRequest(*update);
}

void TableContentModel::QueueEdits(const TableContentUpdate& edits, const QList<int>& roles)
{
    // One repaint for a paste of many cells, not one per cell.
    if (const auto touched = m_pendingEdits.Queue(edits, m_rowCountSubmitted))
        emit dataChanged(index(touched->top(), touched->left()), index(touched->bottom(), touched->right()),
                         roles);
}

// ---- Column layout ---------------------------------------------------------------------------------

void TableContentModel::setColumnWidth(int column, int width)
{
    if (!m_layout.Contains(column)) {
        qCWarning(lcTables) << "setColumnWidth: no column" << column;
        return;
    }
    if (m_layout.SetLiveWidth(column, width))
        emit columnWidthChanged(column);
}

bool TableContentModel::submitLayout()
{
    const bool changed = m_layout.Submit();
    if (changed)
        emit columnsLayoutChanged();
    return changed;
}

void TableContentModel::extendAllColumns()
{
    for (int column : m_layout.Extend())
        emit columnWidthChanged(column);
    submitLayout();
}

void TableContentModel::narrowAllColumns()
{
    for (int column : m_layout.Narrow())
        emit columnWidthChanged(column);
    submitLayout();
}

// ---- Columns ---------------------------------------------------------------------------------------------

void TableContentModel::AddColumns(std::vector<TableColumn>&& columns)
{
    if (columns.empty())
        return;
    const int first = columnCount();
    const int count = static_cast<int>(columns.size());
    beginInsertColumns(QModelIndex(), first, first + count - 1);
    m_layout.Append(std::move(columns));
    m_pendingEdits.AppendColumns(count);
    m_grid.AppendColumns(count);
    endInsertColumns();
    emit columnCountChanged();
    emit columnsLayoutChanged();
    emit refillContentRequest();
}

void TableContentModel::RemoveColumn(int index, bool notify)
{
    if (!m_layout.Contains(index))
        throw std::overflow_error(QStringLiteral("There is no column at %1").arg(index).toStdString());
    beginRemoveColumns(QModelIndex(), index, index);
    m_layout.Remove(index);
    m_grid.RemoveColumn(index);
    m_pendingEdits.RemoveColumn(index);
    endRemoveColumns();
    if (notify) {
        emit columnCountChanged();
        emit columnsLayoutChanged();
    }
}

void TableContentModel::RemoveAllColumns()
{
    while (columnCount() > 0)
        RemoveColumn(columnCount() - 1, false);
    emit columnCountChanged();
    emit columnsLayoutChanged();
}

void TableContentModel::UpdateColumnLabel(int index, const QString& label)
{
    if (!m_layout.Contains(index))
        return;
    m_layout.SetLabel(index, label);
    emit headerDataChanged(Qt::Horizontal, index, index);
}

bool TableContentModel::IsRebuildingColumns() const
{
    return m_columnVisibility->IsRebuilding();
}

int TableContentModel::FindParentColumnIndex(int column) const
{
    if (!m_layout.Contains(column))
        return -1;
    return m_columnsModel->FindIndexById(m_layout.At(column).parentId);
}

void TableContentModel::moveColumn(int srcIndex, int dstIndex)
{
    const int count = columnCount();
    if (srcIndex < 0 || srcIndex >= count || dstIndex < 0 || dstIndex > count || srcIndex == dstIndex)
        return;
    // Dropping a column just after itself moves nothing; Qt rejects such a move as well.
    if (!beginMoveColumns(QModelIndex(), srcIndex, srcIndex, QModelIndex(), dstIndex))
        return;
    const QString movedId = m_layout.At(srcIndex).id;
    const QString beforeId = dstIndex < count ? m_layout.At(dstIndex).id : QString();
    m_layout.Move(srcIndex, dstIndex);
    m_grid.MoveColumn(srcIndex, dstIndex);
    // Edits not confirmed yet go with their column.
    m_pendingEdits.MoveColumn(srcIndex, dstIndex);
    m_columnsModel->MoveVisibleColumn(movedId, beforeId);
    endMoveColumns();
    emit columnsLayoutChanged();
}

// ---- Actions, clipboard, multi-edit -------------------------------------------------------------------

void TableContentModel::executeAction(const QModelIndex& index)
{
    if (!IsInTable(index) || index.row() >= m_rowCountSubmitted)
        return;
    CatchAtBoundary("TableContentModel::executeAction", [&]() {
        if (EnsureData(index.row(), index.column(), ContentRequest::VisibleColumns).hasAction)
            emit executeActionRequest(index.row(), index.column());
    });
}

void TableContentModel::copyToClipboard()
{
    TableClipboard(*this).CopyToSystemClipboard();
}

bool TableContentModel::clipboardContainsData() const
{
    return TableClipboard::SystemClipboardHasText();
}

void TableContentModel::pasteFromClipboard()
{
    QueueEdits(TableClipboard(*this).PasteFromSystemClipboard(),
               { ContentRole, TableContentFilterModel::DisplayTextRole });
}

void TableContentModel::setDataForSelection(int action, const QString& value)
{
    if (action == MultiEditAction::Search) {
        m_multiEditSearchResult->SearchNext(value);
        return;
    }
    if (action < MultiEditAction::Add || action > MultiEditAction::Replace) {
        qCWarning(lcTables) << "setDataForSelection: unknown action" << action;
        return;
    }
    if (!m_allowEdit)
        return;
    const TableContentUpdate edits
        = CatchAtBoundary("TableContentModel::setDataForSelection", TableContentUpdate(),
                          [&]() { return MultiEditSelection(*this).Edits(action, value); });
    QueueEdits(edits, { ContentRole, ParameterIndexRole, TableContentFilterModel::DisplayTextRole });
}

} // namespace Orvo::UI::UIComponents
