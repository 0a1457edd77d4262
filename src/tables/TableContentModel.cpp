#include "TableContentModel.h"

#include "FilterBarModel.h"
#include "MultiEditActionSolver.h"
#include "MultiEditOperation.h"
#include "MultiEditSearchResult.h"
#include "TableColorPalette.h"
#include "TableContentFilterModel.h"
#include "TableNumberText.h"
#include "TableSelectionFilterModel.h"
#include "TableSelectionModel.h"
#include "TablesLogging.h"
#include "framework/Debug.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <algorithm>
#include <set>
#include <stdexcept>

namespace Orvo::UI::UIComponents {

namespace {

const QList<int> c_selectionRoles { TableContentModel::SelectedRole, TableContentModel::SelectedActiveRole,
                                    TableContentModel::SelectedInRowRole,
                                    TableContentModel::SelectedInRowExtraRole };

// Digits with an optional sign, decimal mark ("." or ",") and exponent: text the host reads as it
// stands. Checked by hand because a paste of 100,000 cells cannot afford a locale round trip each.
bool IsPlainNumber(const QString& text, bool allowFraction)
{
    const QStringView trimmed = QStringView(text).trimmed();
    qsizetype i = 0;
    const qsizetype size = trimmed.size();
    auto digits = [&]() {
        const qsizetype start = i;
        while (i < size && trimmed[i] >= QLatin1Char('0') && trimmed[i] <= QLatin1Char('9'))
            ++i;
        return i - start;
    };
    if (i < size && (trimmed[i] == QLatin1Char('-') || trimmed[i] == QLatin1Char('+')))
        ++i;
    qsizetype count = digits();
    if (allowFraction && i < size && (trimmed[i] == QLatin1Char('.') || trimmed[i] == QLatin1Char(','))) {
        ++i;
        count += digits();
    }
    if (count == 0)
        return false;
    if (allowFraction && i < size && (trimmed[i] == QLatin1Char('e') || trimmed[i] == QLatin1Char('E'))) {
        ++i;
        if (i < size && (trimmed[i] == QLatin1Char('-') || trimmed[i] == QLatin1Char('+')))
            ++i;
        if (digits() == 0)
            return false;
    }
    return i == size;
}

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
{
    m_contentFilterModel->SetSourceModel(this);
    m_multiEditSearchResult = new MultiEditSearchResult(m_contentFilterModel, this);

    connect(m_columnsModel, &TableColumnsModel::columnCountChanged, this,
            &TableContentModel::onColumnsModelColumnsCountChanged);
    connect(m_columnsModel, &TableColumnsModel::columnsVisibilityChanged, this,
            &TableContentModel::onColumnsVisibilityChanged);
    connect(m_selectionModel, &TableSelectionModel::currentSelectedIndexChanged, this,
            &TableContentModel::onCurrentSelectedIndexChanged);
    connect(m_selectionModel, &TableSelectionModel::currentRegionChanged, this,
            &TableContentModel::onSelectionModelCurrentRegionChanged);
    connect(m_selectionModel, &TableSelectionModel::selectionChanged, this,
            &TableContentModel::onSelectionChanged);
    connect(m_selectionModel, &TableSelectionModel::rowSelectionChanged, this,
            &TableContentModel::onRowSelectionChanged);
    connect(m_selectionModel, &TableSelectionModel::rowExtraHighlightChanged, this,
            &TableContentModel::onRowExtraHighlightChanged);
    connect(m_contentFilterModel, &TableContentFilterModel::filterBarModelChanged, this,
            &TableContentModel::filterBarModelChanged);
}

TableContentModel::~TableContentModel()
{
    // The companions look at this model while they go; take them down while it is still whole.
    delete m_multiEditSearchResult;
    delete m_multiEditActionSolver;
    delete m_contentFilterModel;
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

int TableContentModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

int TableContentModel::newRowIndex() const
{
    return m_allowAddNew ? rowCount() - 1 : -1;
}

bool TableContentModel::IsInTable(const QModelIndex& index) const
{
    return index.isValid() && index.model() == this && index.row() >= 0 && index.row() < rowCount()
        && index.column() >= 0 && index.column() < columnCount();
}

QHash<int, QByteArray> TableContentModel::roleNames() const
{
    return {
        { ContentRole, "content" },
        { AllValuesRole, "allValues" },
        { ParameterIndexRole, "parameterIndex" },
        { ParametersNamesRole, "parametersNames" },
        { ParametersValuesRole, "parametersValues" },
        { ContentTypeRole, "contentType" },
        { DecimalsRole, "decimals" },
        { ColumnIdRole, "columnId" },
        { ColumnLabelRole, "columnLabel" },
        { ColumnMinWidthRole, "columnMinWidth" },
        { EditableRole, "editable" },
        { RequiredRole, "required" },
        { SortableRole, "sortable" },
        { SortOrderRole, "sortOrder" },
        { HasActionRole, "hasAction" },
        { SelectableRole, "selectable" },
        { SelectedRole, "selected" },
        { SelectedActiveRole, "selectedActive" },
        { SelectedInRowRole, "selectedInRow" },
        { SelectedInRowExtraRole, "selectedInRowExtra" },
        { BoldRole, "isBold" },
        { HighlightStateRole, "highlightState" },
    };
}

Qt::ItemFlags TableContentModel::flags(const QModelIndex& index) const
{
    if (!IsInTable(index))
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (m_allowEdit && m_columns[static_cast<std::size_t>(index.column())].editable)
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

FilterBarModel* TableContentModel::getFilterBarModel() const
{
    return m_contentFilterModel->getFilterBarModel();
}

void TableContentModel::setFilterBarModel(FilterBarModel* model)
{
    m_contentFilterModel->setFilterBarModel(model);
}

// ---- Fetching cells ---------------------------------------------------------------------------------

TableCellContent TableContentModel::GetCell(int row, int column) const
{
    const GridContentIndex gridIndex = GridContentIndex::FromRow(row);
    if (row < 0 || !m_grid.IsFilled(gridIndex, column))
        return {};
    return m_grid.GetCell(gridIndex, column);
}

const TableCellContent& TableContentModel::GetFilledCell(int row, int column, ContentRequest request) const
{
    return EnsureData(row, column, request);
}

const TableCellContent& TableContentModel::EnsureData(int row, int column, ContentRequest request) const
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
    std::vector<QString> ids;
    if (request == ContentRequest::VisibleColumns) {
        for (const TableColumn& visible : m_columns)
            ids.push_back(visible.id);
    } else {
        ids.push_back(m_columns[static_cast<std::size_t>(column)].id);
    }
    auto* self = const_cast<TableContentModel*>(this);
    emit self->setRowsRequest(start, count, ids);

    // The feeder may have delivered nothing (or something else): default cells make sure the
    // lookup cannot fail twice and the feeder is not asked again for the same rows.
    if (!m_grid.IsFilled(gridIndex, column) && row < m_rowCountSubmitted
        && column < static_cast<int>(m_columns.size())) {
        qCWarning(lcTables) << "The feeder delivered no content for rows" << start << "to"
                            << start + count - 1 << "of column"
                            << m_columns[static_cast<std::size_t>(column)].id;
        std::vector<TableColumnContent> defaults { TableColumnContent {
            m_columns[static_cast<std::size_t>(column)].id,
            std::vector<TableCellContent>(static_cast<std::size_t>(count)) } };
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
    for (const TableColumnContent& content : contents) {
        if (static_cast<int>(content.cells.size()) != count)
            throw std::runtime_error("Expected same size of all column contents");
        if (FindColumnIndex(content.columnId) < 0)
            throw std::runtime_error("Expected existing column id");
    }
    m_pendingUpdate.Clear();
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
    if (contents.empty())
        return;
    const std::size_t count = contents.front().cells.size();
    std::vector<int> columns;
    for (const TableColumnContent& content : contents) {
        if (content.cells.size() != count)
            throw std::runtime_error("Expected same size of all column contents");
        const int column = FindColumnIndex(content.columnId);
        if (column < 0)
            throw std::runtime_error("Expected existing column id");
        columns.push_back(column);
    }
    const int firstRow = std::min(index, m_rowCountSubmitted);
    const int lastRow = firstRow + static_cast<int>(count) - 1;
    const int neededBulks = lastRow / c_rowsCountBulk + 1;
    if (count > 0 && neededBulks > m_grid.GetBulkCount())
        m_grid.AppendBulks(neededBulks - m_grid.GetBulkCount());

    for (std::size_t c = 0; c < contents.size(); ++c) {
        std::vector<TableCellContent>& cells = contents[c].cells;
        PrepareDeliveredCells(columns[c], cells);
        int row = firstRow;
        auto source = std::make_move_iterator(cells.begin());
        int left = static_cast<int>(count);
        while (left > 0) {
            const GridContentIndex gridIndex = GridContentIndex::FromRow(row);
            const int chunk = std::min(left, c_rowsCountBulk - gridIndex.offset);
            m_grid.Store(gridIndex, columns[c], source, chunk);
            source += chunk;
            row += chunk;
            left -= chunk;
        }
    }
}

void TableContentModel::PrepareDeliveredCells(int column, std::vector<TableCellContent>& cells) const
{
    // Colour cells are found and shown by their colour's name: give each its localised name.
    const TableValueType columnType = m_columns[static_cast<std::size_t>(column)].type;
    if (columnType != TableValueType::Color && columnType != TableValueType::Unknown)
        return;
    for (TableCellContent& cell : cells) {
        const TableValueType type = columnType == TableValueType::Unknown ? cell.valueType : columnType;
        if (type != TableValueType::Color || !cell.text.isEmpty())
            continue;
        const QString key = TableColorPalette::GetKey(TableColorPalette::FindHex(cell.content.toString()));
        cell.text = m_colorNames.value(key);
    }
}

void TableContentModel::UpdateMinimumWidths(int firstRow, int count)
{
    // A check box with named states (Yes/No, ...) needs room for the names: decided once per column
    // by its first cell with a value.
    for (int column = 0; column < columnCount(); ++column) {
        if (m_columns[static_cast<std::size_t>(column)].type != TableValueType::Bool
            || m_minimumWidthDecided[static_cast<std::size_t>(column)])
            continue;
        for (int row = firstRow; row < firstRow + count; ++row) {
            const GridContentIndex gridIndex = GridContentIndex::FromRow(row);
            if (!m_grid.IsFilled(gridIndex, column))
                continue;
            const TableCellContent& cell = m_grid.GetCell(gridIndex, column);
            if (!cell.content.isValid())
                continue;
            m_minimumWidthDecided[static_cast<std::size_t>(column)] = true;
            if (!cell.parametersNames.isEmpty())
                setHeaderData(column, Qt::Horizontal, c_boolWithNamesMinWidth, ColumnMinWidthRole);
            break;
        }
    }
}

void TableContentModel::ClearContent()
{
    if (m_rowCountSubmitted > 0) {
        emit aboutToClearContent();
        beginRemoveRows(QModelIndex(), 0, m_rowCountSubmitted - 1);
        m_grid.Reset(columnCount(), 0);
        m_rowCountSubmitted = 0;
        endRemoveRows();
        m_pendingUpdate.Clear();
        emit rowCountChanged();
        emit clearContent();
        return;
    }
    m_grid.Reset(columnCount(), 0);
    m_pendingUpdate.Clear();
}

void TableContentModel::Clear()
{
    ClearContent();
    RemoveAllColumns();
}

void TableContentModel::SetColorNames(QHash<QString, QString> names)
{
    m_colorNames = std::move(names);
}

// ---- Item data ----------------------------------------------------------------------------------------

QVariant TableContentModel::data(const QModelIndex& index, int role) const
{
    if (!IsInTable(index))
        return {};
    if (IsNewRow(index.row()))
        return DataForNewRow(index.column(), role);
    try {
        return CellData(index, role);
    } catch (const std::exception& error) {
        // A feeder breaking its contract must not take the view down with it.
        Kernel::Framework::DebugOutput(QStringLiteral("TableContentModel::data: %1").arg(error.what()));
        return {};
    }
}

QVariant TableContentModel::SelectionData(int row, int column, int role) const
{
    switch (role) {
    case SelectedRole:
        return m_selectionModel->IsCellSelected(row, column)
            || m_selectionModel->IsCellInDraggedRegion(row, column);
    case SelectedActiveRole:
        return m_selectionModel->IsCurrent(row, column);
    case SelectedInRowRole:
        return m_selectionModel->IsWholeRowSelected(row);
    case SelectedInRowExtraRole:
        return m_selectionModel->IsRowExtraHighlighted(row);
    default:
        return {};
    }
}

QVariant TableContentModel::CurrentValue(const TableCellContent& cell, int row, int column) const
{
    if (m_pendingUpdate.Contains(row, column))
        return m_pendingUpdate.GetValue(row, column);
    return cell.content;
}

QVariant TableContentModel::CellData(const QModelIndex& index, int role) const
{
    const int row = index.row();
    const int column = index.column();
    switch (role) {
    case SelectedRole:
    case SelectedActiveRole:
    case SelectedInRowRole:
    case SelectedInRowExtraRole:
        return SelectionData(row, column, role);
    case SelectableRole:
        return true;
    case ContentRole:
    case AllValuesRole:
    case ParameterIndexRole:
    case ParametersNamesRole:
    case ParametersValuesRole:
    case ContentTypeRole:
    case DecimalsRole:
    case EditableRole:
    case HasActionRole:
    case BoldRole:
    case HighlightStateRole:
        break;
    default:
        return {};
    }

    const TableCellContent& cell = EnsureData(row, column, ContentRequest::VisibleColumns);
    switch (role) {
    case ContentRole:
        return CurrentValue(cell, row, column);
    case AllValuesRole:
        if (GetValueType(index) == TableValueType::Color)
            return TableColorPalette::GetHexValues();
        return QVariant(QVariantList(cell.allValues.begin(), cell.allValues.end()));
    case ParameterIndexRole:
        if (m_pendingUpdate.Contains(row, column) && !cell.parametersNames.isEmpty()) {
            const int pending = static_cast<int>(
                cell.parametersNames.indexOf(m_pendingUpdate.GetValue(row, column).toString()));
            if (pending >= 0)
                return pending;
        }
        return cell.parameterIndex;
    case ParametersNamesRole:
        return cell.parametersNames;
    case ParametersValuesRole:
        return cell.parametersValues;
    case ContentTypeRole:
        return static_cast<int>(GetValueType(index));
    case DecimalsRole:
        return cell.decimals ? QVariant(static_cast<int>(*cell.decimals)) : QVariant();
    case EditableRole:
        return m_columns[static_cast<std::size_t>(column)].editable && cell.editable;
    case HasActionRole:
        return cell.hasAction;
    case BoldRole:
        return cell.bold;
    case HighlightStateRole:
        return cell.highlightState;
    default:
        return {};
    }
}

QVariant TableContentModel::DataForNewRow(int column, int role) const
{
    if (column < 0 || column >= columnCount())
        return {};
    const TableColumn& tableColumn = m_columns[static_cast<std::size_t>(column)];
    switch (role) {
    case ContentRole:
        return m_newRowValues[static_cast<std::size_t>(column)];
    case AllValuesRole:
        return tableColumn.type == TableValueType::Color ? QVariant(TableColorPalette::GetHexValues())
                                                         : QVariant();
    case ContentTypeRole:
        return static_cast<int>(TableValueType::String);
    case EditableRole:
        return tableColumn.editable;
    case RequiredRole:
        return tableColumn.required;
    case SelectableRole:
        return true;
    case SelectedRole:
    case SelectedActiveRole:
    case SelectedInRowRole:
    case SelectedInRowExtraRole:
        return SelectionData(m_rowCountSubmitted, column, role);
    default:
        return {};
    }
}

TableValueType TableContentModel::GetValueType(const QModelIndex& index) const
{
    const int column = index.column();
    if (column < 0 || column >= columnCount())
        return TableValueType::Unknown;
    const TableValueType columnType = m_columns[static_cast<std::size_t>(column)].type;
    if (columnType != TableValueType::Unknown)
        return columnType;
    if (index.row() < 0 || index.row() >= m_rowCountSubmitted)
        return TableValueType::Unknown;
    return EnsureData(index.row(), column, ContentRequest::VisibleColumns).valueType;
}

int TableContentModel::FindColumnIndex(const QString& columnId) const
{
    const auto it = std::find_if(m_columns.begin(), m_columns.end(),
                                 [&](const TableColumn& column) { return column.id == columnId; });
    return it == m_columns.end() ? -1 : static_cast<int>(it - m_columns.begin());
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
    return HorizontalHeaderData(section, role);
}

QVariant TableContentModel::HorizontalHeaderData(int section, int role) const
{
    if (section < 0 || section >= columnCount())
        return {};
    const TableColumn& column = m_columns[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
    case ColumnLabelRole:
        return column.label;
    case ColumnIdRole:
        return column.id;
    case ColumnMinWidthRole:
        return column.minWidth;
    case RequiredRole:
        return column.required;
    case SortableRole:
        return column.sortable;
    case SortOrderRole:
        return column.sortOrder;
    case SelectableRole:
        return true;
    default:
        return {};
    }
}

bool TableContentModel::setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                                      int role)
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return false;
    TableColumn& column = m_columns[static_cast<std::size_t>(section)];
    if (role == SortOrderRole) {
        const int order = value.toInt();
        if (column.sortOrder == order)
            return false;
        // The host sorts by one column at a time.
        for (int other = 0; other < columnCount(); ++other) {
            TableColumn& otherColumn = m_columns[static_cast<std::size_t>(other)];
            if (other != section && otherColumn.sortOrder != Unsorted) {
                otherColumn.sortOrder = Unsorted;
                emit headerDataChanged(Qt::Horizontal, other, other);
            }
        }
        column.sortOrder = order;
        emit headerDataChanged(Qt::Horizontal, section, section);
        emit columnsLayoutChanged();
        emit refillContentRequest();
        return true;
    }
    if (role == ColumnMinWidthRole) {
        const int minWidth = value.toInt();
        if (column.minWidth == minWidth)
            return false;
        column.minWidth = minWidth;
        if (column.width < minWidth) {
            column.width = minWidth;
            setColumnWidth(section, minWidth);
        }
        emit headerDataChanged(Qt::Horizontal, section, section);
        emit columnsLayoutChanged();
        return true;
    }
    return false;
}

// ---- Editing --------------------------------------------------------------------------------------------

bool TableContentModel::IsCellEditable(int row, int column) const
{
    if (!m_columns[static_cast<std::size_t>(column)].editable || row >= m_rowCountSubmitted)
        return false;
    return EnsureData(row, column, ContentRequest::VisibleColumns).editable;
}

bool TableContentModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if ((role != Qt::EditRole && role != ContentRole && role != ParameterIndexRole) || !IsInTable(index))
        return false;
    const int row = index.row();
    const int column = index.column();
    if (IsNewRow(row))
        return SetDataForNewRow(column, value, role);
    try {
        if (!m_allowEdit || !IsCellEditable(row, column))
            return false;
        const TableCellContent& cell = EnsureData(row, column, ContentRequest::VisibleColumns);
        QVariant newValue = value;
        if (role == ParameterIndexRole) {
            const int parameter = value.toInt();
            if (parameter < 0 || parameter >= cell.parametersNames.size()) {
                qCWarning(lcTables) << "setData: no parameter" << parameter << "in cell" << row << column;
                return false;
            }
            newValue = cell.parametersNames[parameter];
        } else if (value.typeId() == QMetaType::QString) {
            // Typed text: numbers may be expressions, named values are matched case-insensitively.
            const QString converted
                = CreateContentUpdateValue(value.toString(), GetValueType(index), cell.parametersNames);
            if (converted.isNull())
                return false;
            newValue = converted;
        }
        const QVariant cachedValue = cell.parameterIndex == -1
            ? cell.content
            : QVariant(cell.parametersNames.value(cell.parameterIndex));
        const bool same = newValue == cachedValue
            || (newValue.typeId() == QMetaType::QString
                && ToString(cachedValue, GetValueType(index)) == newValue.toString());
        if (same) {
            if (!m_pendingUpdate.Contains(row, column))
                return false;
            // Back to the value the host has: the pending edit is withdrawn.
            m_pendingUpdate.Remove(row, column);
        } else {
            m_pendingUpdate.SetValue(row, column, newValue);
        }
        emit dataChanged(index, index, { role });
        return true;
    } catch (const std::exception& error) {
        Kernel::Framework::DebugOutput(QStringLiteral("TableContentModel::setData: %1").arg(error.what()));
        return false;
    }
}

bool TableContentModel::SetDataForNewRow(int column, const QVariant& value, int role)
{
    if (column < 0 || column >= columnCount())
        return false;
    m_newRowValues[static_cast<std::size_t>(column)] = value.toString();
    m_newRowHasData = true;
    const QModelIndex index = this->index(newRowIndex(), column);
    emit dataChanged(index, index, { role });
    return true;
}

bool TableContentModel::isAllRequiredFilledForNewRow() const
{
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        if (m_columns[column].required && m_newRowValues[column].isEmpty())
            return false;
    }
    return true;
}

void TableContentModel::confirmUpdate()
{
    if (m_newRowHasData && m_allowAddNew && isAllRequiredFilledForNewRow()) {
        for (std::size_t column = 0; column < m_newRowValues.size(); ++column) {
            if (!m_newRowValues[column].isEmpty())
                m_pendingUpdate.SetValue(newRowIndex(), static_cast<int>(column), m_newRowValues[column]);
        }
    }
    if (m_pendingUpdate.IsEmpty())
        return;
    const TableContentUpdate update = m_pendingUpdate;
    for (QString& value : m_newRowValues)
        value.clear();
    m_newRowHasData = false;
    emit updateDataRequest(update);
}

TableCellContent TableContentModel::CreateCellContent(const Kernel::Tables::TableResultsValue& value)
{
    TableCellContent cell;
    cell.content = QString::fromStdWString(value.text);
    cell.bold = value.bold;
    return cell;
}

QString TableContentModel::ToString(const QVariant& value, TableValueType type)
{
    return ToString(value, type, TableNumberText());
}

QString TableContentModel::ToString(const QVariant& value, TableValueType type,
                                    const TableNumberText& numbers)
{
    switch (type) {
    case TableValueType::Real: {
        bool ok = false;
        const double number = value.toDouble(&ok);
        return ok ? numbers.ToEditText(number) : value.toString();
    }
    case TableValueType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    default:
        return value.toString();
    }
}

QString TableContentModel::CreateContentUpdateValue(const QString& text, TableValueType type,
                                                    const QStringList& parametersNames)
{
    const bool numeric
        = type == TableValueType::Bool || type == TableValueType::Integer || type == TableValueType::Real;
    return numeric ? CreateContentUpdateValue(text, type, parametersNames, TableNumberText()) : text;
}

QString TableContentModel::CreateContentUpdateValue(const QString& text, TableValueType type,
                                                    const QStringList& parametersNames,
                                                    const TableNumberText& numbers)
{
    const bool numeric
        = type == TableValueType::Bool || type == TableValueType::Integer || type == TableValueType::Real;
    if (!numeric)
        return text;
    for (const QString& name : parametersNames) {
        if (name.compare(text.trimmed(), Qt::CaseInsensitive) == 0)
            return name;
    }
    const auto number = TableNumberText::Parse(text);
    if (!number)
        return QString();
    switch (type) {
    case TableValueType::Bool:
        if (!parametersNames.isEmpty())
            return *number != 0.0 ? parametersNames.value(0)
                                  : parametersNames.value(1, parametersNames.value(0));
        return *number != 0.0 ? QStringLiteral("1") : QStringLiteral("0");
    case TableValueType::Integer:
        // A plain number goes to the host as typed; an expression as the number it stands for.
        return IsPlainNumber(text, false) ? text.trimmed() : QString::number(std::llround(*number));
    default:
        return IsPlainNumber(text, true) ? text.trimmed() : numbers.ToEditText(*number);
    }
}

// ---- Column layout ---------------------------------------------------------------------------------

int TableContentModel::rowHeight(int) const
{
    return c_rowHeight;
}

int TableContentModel::columnWidth(int column) const
{
    if (column < 0 || column >= columnCount())
        return 0;
    return m_columnWidths[static_cast<std::size_t>(column)];
}

void TableContentModel::setColumnWidth(int column, int width)
{
    if (column < 0 || column >= columnCount()) {
        qCWarning(lcTables) << "setColumnWidth: no column" << column;
        return;
    }
    width = std::max(width, m_columns[static_cast<std::size_t>(column)].minWidth);
    int& liveWidth = m_columnWidths[static_cast<std::size_t>(column)];
    if (liveWidth == width)
        return;
    liveWidth = width;
    emit columnWidthChanged(column);
}

bool TableContentModel::submitLayout()
{
    bool changed = false;
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        if (m_columns[column].width != m_columnWidths[column]) {
            m_columns[column].width = m_columnWidths[column];
            changed = true;
        }
    }
    if (changed)
        emit columnsLayoutChanged();
    return changed;
}

void TableContentModel::extendAllColumns()
{
    if (m_columns.empty())
        return;
    // Widths snap to the next multiple of the step; integer division is deliberate.
    for (int column = 0; column < columnCount(); ++column) {
        const int width = m_columnWidths[static_cast<std::size_t>(column)];
        const qint64 snapped = (static_cast<qint64>(width) / c_columnWidthStep + 1) * c_columnWidthStep;
        setColumnWidth(
            column, std::max<int>(width, static_cast<int>(std::min<qint64>(snapped, getColumnMaxWidth()))));
    }
    submitLayout();
}

void TableContentModel::narrowAllColumns()
{
    if (m_columns.empty())
        return;
    for (int column = 0; column < columnCount(); ++column) {
        const int width = m_columnWidths[static_cast<std::size_t>(column)];
        const int snapped = (width / c_columnWidthStep - 1) * c_columnWidthStep;
        setColumnWidth(
            column, std::min(width, std::max(snapped, m_columns[static_cast<std::size_t>(column)].minWidth)));
    }
    submitLayout();
}

// ---- Columns ---------------------------------------------------------------------------------------------

void TableContentModel::AddColumns(std::vector<TableColumn>&& columns)
{
    if (columns.empty())
        return;
    const int first = columnCount();
    beginInsertColumns(QModelIndex(), first, first + static_cast<int>(columns.size()) - 1);
    for (TableColumn& column : columns) {
        if (column.width <= 0)
            column.width = c_columnWidthStep;
        m_columnWidths.push_back(column.width);
        m_minimumWidthDecided.push_back(false);
        m_newRowValues.emplace_back();
        m_columns.push_back(std::move(column));
    }
    m_grid.AppendColumns(static_cast<int>(columns.size()));
    endInsertColumns();
    emit columnCountChanged();
    emit columnsLayoutChanged();
    emit refillContentRequest();
}

void TableContentModel::RemoveColumn(int index, bool notify)
{
    if (index < 0 || index >= columnCount())
        throw std::overflow_error(QStringLiteral("There is no column at %1").arg(index).toStdString());
    beginRemoveColumns(QModelIndex(), index, index);
    m_columns.erase(m_columns.begin() + index);
    m_columnWidths.erase(m_columnWidths.begin() + index);
    m_minimumWidthDecided.erase(m_minimumWidthDecided.begin() + index);
    m_newRowValues.erase(m_newRowValues.begin() + index);
    m_grid.RemoveColumn(index);
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
    if (index < 0 || index >= columnCount())
        return;
    m_columns[static_cast<std::size_t>(index)].label = label;
    emit headerDataChanged(Qt::Horizontal, index, index);
}

void TableContentModel::SetAllColumns(std::vector<TableColumnModelItem>&& columns)
{
    m_columnsModel->SetAll(std::move(columns));
}

int TableContentModel::FindParentColumnIndex(int column) const
{
    if (column < 0 || column >= columnCount())
        return -1;
    return m_columnsModel->FindIndexById(m_columns[static_cast<std::size_t>(column)].parentId);
}

void TableContentModel::moveColumn(int srcIndex, int dstIndex)
{
    const int count = columnCount();
    if (srcIndex < 0 || srcIndex >= count || dstIndex < 0 || dstIndex > count || srcIndex == dstIndex)
        return;
    // Dropping a column just after itself moves nothing; Qt rejects such a move as well.
    if (!beginMoveColumns(QModelIndex(), srcIndex, srcIndex, QModelIndex(), dstIndex))
        return;
    const QString movedId = m_columns[static_cast<std::size_t>(srcIndex)].id;
    const QString beforeId = dstIndex < count ? m_columns[static_cast<std::size_t>(dstIndex)].id : QString();
    const int target = dstIndex > srcIndex ? dstIndex - 1 : dstIndex;
    auto move = [&](auto& vector) {
        auto moved = std::move(vector[static_cast<std::size_t>(srcIndex)]);
        vector.erase(vector.begin() + srcIndex);
        vector.insert(vector.begin() + target, std::move(moved));
    };
    move(m_columns);
    move(m_columnWidths);
    move(m_newRowValues);
    const bool decided = m_minimumWidthDecided[static_cast<std::size_t>(srcIndex)];
    m_minimumWidthDecided.erase(m_minimumWidthDecided.begin() + srcIndex);
    m_minimumWidthDecided.insert(m_minimumWidthDecided.begin() + target, decided);
    m_grid.MoveColumn(srcIndex, dstIndex);
    m_columnsModel->MoveVisibleColumn(movedId, beforeId);
    endMoveColumns();
    emit columnsLayoutChanged();
}

void TableContentModel::onColumnsModelColumnsCountChanged()
{
    RequestAllVisibleColumns();
}

void TableContentModel::onColumnsVisibilityChanged(std::vector<int> indexes, bool visible)
{
    if (visible) {
        RequestAllVisibleColumns();
        return;
    }
    for (int index : indexes) {
        const auto& items = m_columnsModel->GetItems();
        if (index < 0 || index >= static_cast<int>(items.size()))
            continue;
        const int column = FindColumnIndex(items[static_cast<std::size_t>(index)].id);
        if (column >= 0)
            RemoveColumn(column);
    }
}

void TableContentModel::RequestAllVisibleColumns()
{
    // The feeder knows how to build columns; it answers with AddColumns in the columns model's order.
    if (columnCount() > 0)
        RemoveAllColumns();
    emit addColumnsRequest(m_columnsModel->GetVisibleIds());
}

// ---- Actions ------------------------------------------------------------------------------------------

void TableContentModel::executeAction(const QModelIndex& index)
{
    if (!IsInTable(index) || index.row() >= m_rowCountSubmitted)
        return;
    try {
        if (EnsureData(index.row(), index.column(), ContentRequest::VisibleColumns).hasAction)
            emit executeActionRequest(index.row(), index.column());
    } catch (const std::exception& error) {
        Kernel::Framework::DebugOutput(
            QStringLiteral("TableContentModel::executeAction: %1").arg(error.what()));
    }
}

QString TableContentModel::getColorLcid(int index) const
{
    return TableColorPalette::GetKey(index);
}

// ---- Clipboard -----------------------------------------------------------------------------------------

void TableContentModel::copyToClipboard()
{
    const auto envelope = m_selectionModel->GetSourceEnvelope();
    if (!envelope)
        return;
    try {
        // The clipboard carries every digit, so that a copy pasted back changes nothing.
        const TableNumberText numbers(TableNumberText::Precision::Exact);
        QStringList labels;
        for (int column = envelope->left; column <= envelope->right; ++column)
            labels.append(m_columns[static_cast<std::size_t>(column)].label);
        QStringList lines { labels.join(QLatin1Char('\t')) };
        QStringList fields;
        for (int row = envelope->top; row <= std::min(envelope->bottom, m_rowCountSubmitted - 1); ++row) {
            fields.clear();
            bool anySelected = false;
            for (int column = envelope->left; column <= envelope->right; ++column) {
                if (!m_selectionModel->IsCellSelected(row, column)) {
                    fields.append(QString());
                    continue;
                }
                anySelected = true;
                const TableCellContent& cell = EnsureData(row, column, ContentRequest::VisibleColumns);
                if (cell.parameterIndex != -1)
                    fields.append(cell.parametersNames.value(cell.parameterIndex));
                else
                    fields.append(ToString(cell.content, GetValueType(index(row, column)), numbers));
            }
            if (anySelected)
                lines.append(fields.join(QLatin1Char('\t')));
        }
        if (QClipboard* clipboard = QGuiApplication::clipboard())
            clipboard->setText(lines.join(QLatin1Char('\n')));
    } catch (const std::exception& error) {
        Kernel::Framework::DebugOutput(
            QStringLiteral("TableContentModel::copyToClipboard: %1").arg(error.what()));
    }
}

bool TableContentModel::clipboardContainsData() const
{
    const QClipboard* clipboard = QGuiApplication::clipboard();
    const QMimeData* mimeData = clipboard ? clipboard->mimeData() : nullptr;
    return mimeData && mimeData->hasText();
}

void TableContentModel::pasteFromClipboard()
{
    const QClipboard* clipboard = QGuiApplication::clipboard();
    const QString text = clipboard ? clipboard->text() : QString();
    if (text.isEmpty())
        return;
    QStringList lines = text.split(QLatin1Char('\n'));
    if (!lines.isEmpty() && lines.back().isEmpty())
        lines.removeLast();
    if (lines.isEmpty())
        return;

    const QModelIndex current = m_contentFilterModel->selectionModel()->getCurrentSelectedIndex();
    const int startRow = current.isValid() ? current.row() : 0;
    const int startColumn = current.isValid() ? current.column() : 0;

    // Spreadsheets put the column labels first; two labels are enough to recognise such a line.
    int firstLine = 0;
    {
        const QStringList header = lines.front().split(QLatin1Char('\t'));
        bool isHeader = true;
        for (int k = 0; k < std::min<int>(static_cast<int>(header.size()), 2); ++k) {
            const bool known
                = std::any_of(m_columns.begin(), m_columns.end(),
                              [&](const TableColumn& column) { return column.label == header[k]; });
            isHeader = isHeader && known;
        }
        if (isHeader)
            firstLine = 1;
    }

    const int records = m_contentFilterModel->rowCountSubmitted();
    const TableNumberText numbers;
    int top = m_rowCountSubmitted, bottom = -1, right = -1;
    int newRow = m_rowCountSubmitted;
    try {
        for (int line = firstLine; line < lines.size(); ++line) {
            const QStringList fields = lines[line].split(QLatin1Char('\t'));
            const int viewRow = startRow + (line - firstLine);
            const bool existing = viewRow < records;
            if (existing && !m_allowEdit)
                continue;
            if (!existing && !m_allowAddNew)
                break;
            const int row = existing
                ? m_contentFilterModel->mapToSource(m_contentFilterModel->index(viewRow, 0)).row()
                : newRow++;
            for (int k = 0; k < fields.size(); ++k) {
                const int column = startColumn + k;
                if (column >= columnCount())
                    break;
                const TableColumn& tableColumn = m_columns[static_cast<std::size_t>(column)];
                if (!tableColumn.editable)
                    continue;
                QString value;
                if (existing) {
                    const TableCellContent& cell = EnsureData(row, column, ContentRequest::VisibleColumns);
                    if (!cell.editable)
                        continue;
                    const TableValueType type
                        = tableColumn.type != TableValueType::Unknown ? tableColumn.type : cell.valueType;
                    value = CreateContentUpdateValue(fields[k], type, cell.parametersNames, numbers);
                } else {
                    value = CreateContentUpdateValue(fields[k], tableColumn.type, {}, numbers);
                }
                if (value.isNull())
                    continue;
                m_pendingUpdate.SetValue(row, column, value);
                if (existing) {
                    top = std::min(top, row);
                    bottom = std::max(bottom, row);
                    right = std::max(right, column);
                }
            }
        }
    } catch (const std::exception& error) {
        Kernel::Framework::DebugOutput(
            QStringLiteral("TableContentModel::pasteFromClipboard: %1").arg(error.what()));
    }
    // One repaint for the whole paste, not one per cell.
    if (bottom >= top)
        emit dataChanged(index(top, startColumn), index(bottom, right), { ContentRole });
}

// ---- Multi-edit ------------------------------------------------------------------------------------------

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
    const auto envelope = m_selectionModel->GetSourceEnvelope();
    if (!envelope)
        return;
    bool changed = false;
    try {
        m_selectionModel->ForEachSelectedCell([&](int row, int column) {
            if (row >= m_rowCountSubmitted || !IsCellEditable(row, column))
                return;
            const TableCellContent& cell = EnsureData(row, column, ContentRequest::VisibleColumns);
            MultiEditOperation::Cell operand { CurrentValue(cell, row, column),
                                               GetValueType(index(row, column)), cell.parametersNames,
                                               cell.allValues, cell.parameterIndex != -1 };
            const auto result = MultiEditOperation::Apply(action, operand, value);
            if (!result || *result == operand.value)
                return;
            m_pendingUpdate.SetValue(row, column, *result);
            changed = true;
        });
    } catch (const std::exception& error) {
        Kernel::Framework::DebugOutput(
            QStringLiteral("TableContentModel::setDataForSelection: %1").arg(error.what()));
    }
    if (changed) {
        const int bottom = std::min(envelope->bottom, m_rowCountSubmitted - 1);
        emit dataChanged(index(envelope->top, envelope->left), index(bottom, envelope->right),
                         { ContentRole, ParameterIndexRole });
    }
}

// ---- Selection ------------------------------------------------------------------------------------------

void TableContentModel::EmitSelectionRolesChanged(int top, int left, int bottom, int right)
{
    top = std::max(top, 0);
    left = std::max(left, 0);
    bottom = std::min(bottom, rowCount() - 1);
    right = std::min(right, columnCount() - 1);
    if (top > bottom || left > right)
        return;
    emit dataChanged(index(top, left), index(bottom, right), c_selectionRoles);
}

void TableContentModel::onCurrentSelectedIndexChanged(QModelIndex prevSelectedIndex)
{
    if (prevSelectedIndex.isValid())
        EmitSelectionRolesChanged(prevSelectedIndex.row(), prevSelectedIndex.column(),
                                  prevSelectedIndex.row(), prevSelectedIndex.column());
    const QModelIndex current = m_selectionModel->getCurrentSelectedIndex();
    if (current.isValid())
        EmitSelectionRolesChanged(current.row(), current.column(), current.row(), current.column());
}

void TableContentModel::onSelectionModelCurrentRegionChanged(QItemSelectionRange previousRegion)
{
    if (previousRegion.isValid())
        EmitSelectionRolesChanged(previousRegion.top(), previousRegion.left(), previousRegion.bottom(),
                                  previousRegion.right());
    const QItemSelectionRange region = m_selectionModel->getCurrentRegion();
    if (region.isValid())
        EmitSelectionRolesChanged(region.top(), region.left(), region.bottom(), region.right());
}

void TableContentModel::onSelectionChanged(QItemSelection selected, QItemSelection deselected)
{
    for (const QItemSelection& selection : { selected, deselected }) {
        for (const QItemSelectionRange& range : selection)
            EmitSelectionRolesChanged(range.top(), range.left(), range.bottom(), range.right());
    }
    MarkSelectionParametersDirty();
}

void TableContentModel::onRowSelectionChanged(std::unordered_set<int> selected,
                                              std::unordered_set<int> deselected)
{
    int top = rowCount(), bottom = -1;
    for (const auto* rows : { &selected, &deselected }) {
        for (int row : *rows) {
            top = std::min(top, row);
            bottom = std::max(bottom, row);
        }
    }
    EmitSelectionRolesChanged(top, 0, bottom, columnCount() - 1);
}

void TableContentModel::onRowExtraHighlightChanged(std::unordered_set<int> highlighted,
                                                   std::unordered_set<int> highlightToRemove)
{
    onRowSelectionChanged(std::move(highlighted), std::move(highlightToRemove));
}

bool TableContentModel::IsOneRowSelected() const
{
    const auto envelope = m_selectionModel->GetSourceEnvelope();
    return envelope && envelope->top == envelope->bottom;
}

void TableContentModel::MarkSelectionParametersDirty()
{
    m_selectionParametersDirty = true;
    emit selectionParametersNamesChanged();
    emit selectionParametersValuesChanged();
    emit selectionParametersSelectedIndicesChanged();
}

QStringList TableContentModel::getSelectionParametersNames() const
{
    UpdateSelectionParameters();
    return m_selectionParametersNames;
}

QVariantList TableContentModel::getSelectionParametersValues() const
{
    UpdateSelectionParameters();
    return m_selectionParametersValues;
}

QList<int> TableContentModel::getSelectionParametersSelectedIndices() const
{
    UpdateSelectionParameters();
    return m_selectionParametersSelectedIndices;
}

void TableContentModel::UpdateSelectionParameters() const
{
    if (!m_selectionParametersDirty)
        return;
    m_selectionParametersDirty = false;
    m_selectionParametersNames.clear();
    m_selectionParametersValues.clear();
    m_selectionParametersSelectedIndices.clear();

    // The names every selected editable cell can take (the intersection), in the first cell's order.
    QStringList candidates;
    QVariantList candidateValues;
    QSet<QString> usedNames;
    bool started = false;
    bool exhausted = false;
    try {
        m_selectionModel->ForEachSelectedCell([&](int row, int column) {
            if (exhausted || row >= m_rowCountSubmitted
                || !m_columns[static_cast<std::size_t>(column)].editable)
                return;
            const TableCellContent& cell = EnsureData(row, column, ContentRequest::VisibleColumns);
            if (!cell.editable)
                return;
            if (!started) {
                if (!cell.content.isValid())
                    return;
                started = true;
                candidates = cell.parametersNames;
                candidateValues = cell.parametersValues;
            } else {
                for (int i = static_cast<int>(candidates.size()) - 1; i >= 0; --i) {
                    if (!cell.parametersNames.contains(candidates[i])) {
                        candidates.removeAt(i);
                        if (i < candidateValues.size())
                            candidateValues.removeAt(i);
                    }
                }
            }
            if (cell.parameterIndex != -1)
                usedNames.insert(cell.parametersNames.value(cell.parameterIndex));
            // Nothing can be added back to an empty intersection: a big selection stops here.
            exhausted = candidates.isEmpty();
        });
    } catch (const std::exception& error) {
        Kernel::Framework::DebugOutput(
            QStringLiteral("TableContentModel selection parameters: %1").arg(error.what()));
        return;
    }
    m_selectionParametersNames = candidates;
    m_selectionParametersValues = candidateValues;
    for (int i = 0; i < candidates.size(); ++i) {
        if (usedNames.contains(candidates[i]))
            m_selectionParametersSelectedIndices.append(i);
    }
}

} // namespace Orvo::UI::UIComponents
