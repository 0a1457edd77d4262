#include "TableContentFilterModel.h"

#include "FilterBarModel.h"
#include "FilterConditionFactory.h"
#include "TableContentModel.h"
#include "TableSelectionFilterModel.h"
#include "TableSelectionModel.h"
#include "TablesLogging.h"

#include <QHash>

namespace Orvo::UI::UIComponents {

namespace {

// Raises the filtering flag for one row test, whichever way the test ends.
class FilteringScope
{
public:
    explicit FilteringScope(bool& flag)
        : m_flag(flag)
        , m_previous(flag)
    {
        m_flag = true;
    }
    ~FilteringScope() { m_flag = m_previous; }
    FilteringScope(const FilteringScope&) = delete;
    FilteringScope& operator=(const FilteringScope&) = delete;

private:
    bool& m_flag;
    bool m_previous;
};

} // namespace

TableContentFilterModel::TableContentFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
    , m_selectionModel(new TableSelectionFilterModel(this, this))
{
    // Filtering is re-run explicitly when a filter text changes. A dynamic filter would re-test rows on
    // every dataChanged, and the selection roles change with every click.
    setDynamicSortFilter(false);
    connect(this, &QAbstractItemModel::columnsInserted, this, &TableContentFilterModel::onColumnsInserted);
    connect(this, &TableContentFilterModel::filterBarModelChanged, this,
            &TableContentFilterModel::onFilterBarModelChanged);
    connect(this, &QAbstractItemModel::rowsInserted, this, &TableContentFilterModel::rowCountChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &TableContentFilterModel::rowCountChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &TableContentFilterModel::rowCountChanged);
    connect(this, &QAbstractItemModel::layoutChanged, this, &TableContentFilterModel::rowCountChanged);
}

TableContentFilterModel::~TableContentFilterModel()
{
    delete m_selectionModel;
}

TableContentModel* TableContentFilterModel::GetSourceModel()
{
    return m_sourceModel;
}

const TableContentModel* TableContentFilterModel::GetSourceModel() const
{
    return m_sourceModel;
}

void TableContentFilterModel::SetSourceModel(TableContentModel* model)
{
    if (m_sourceModel == model)
        return;
    m_selectionModel->SetSourceSelectionModel(nullptr);
    if (m_sourceModel)
        disconnect(m_sourceModel, nullptr, this, nullptr);
    m_sourceModel = model;
    m_source = model;
    m_acceptedRows.Reset();
    MarkAnswersStale();
    // Connected before the proxy connects itself: when columns move, the conditions must follow
    // their columns before the proxy re-tests its rows for the new layout.
    // So must the filter texts of columns that the source is about to remove, which the proxy drops
    // as soon as it hears of the removal.
    if (model) {
        connect(model, &QObject::destroyed, this, [this]() { m_source = nullptr; });
        connect(model, &QAbstractItemModel::columnsMoved, this, &TableContentFilterModel::onColumnsMoved);
        connect(model, &QAbstractItemModel::columnsAboutToBeRemoved, this,
                &TableContentFilterModel::onColumnsAboutToBeRemoved);
    }
    setSourceModel(model);
    if (model) {
        connect(model, &QAbstractItemModel::columnsRemoved, this, &TableContentFilterModel::onColumnsRemoved);
        // After the proxy has announced the columns: re-filtering may not start inside that.
        connect(model, &QAbstractItemModel::columnsInserted, this,
                &TableContentFilterModel::RestoreReturningFilterTexts);
        connect(model, &TableContentModel::columnWidthChanged, this,
                &TableContentFilterModel::onColumnWidthChanged);
        connect(model, &TableContentModel::horizontalHeaderHeightChanged, this,
                &TableContentFilterModel::horizontalHeaderHeightChanged);
        connect(model, &TableContentModel::allowAddNewChanged, this,
                &TableContentFilterModel::allowAddNewChanged);
        connect(model, &TableContentModel::allowEditChanged, this,
                &TableContentFilterModel::allowEditChanged);
        connect(model, &TableContentModel::columnsLayoutChanged, this,
                &TableContentFilterModel::columnsLayoutChanged);
        m_selectionModel->SetSourceSelectionModel(model->selectionModel());
    }
    RebuildColumnsMapping();
}

void TableContentFilterModel::setFilterBarModel(FilterBarModel* model)
{
    if (m_filterBarModel == model)
        return;
    if (m_filterBarModel)
        disconnect(m_filterBarModel, nullptr, this, nullptr);
    m_filterBarModel = model;
    if (model) {
        model->SynchronizeColumns(GetColumnsIds(0, columnCount() - 1));
        connect(model, &QAbstractItemModel::dataChanged, this,
                &TableContentFilterModel::onFilterBarDataChanged);
        // The texts go with the bar: a bar that QML destroys takes its filters along.
        connect(model, &QObject::destroyed, this, [this]() { setFilterBarModel(nullptr); });
    }
    emit filterBarModelChanged();
}

// ---- Filtering -------------------------------------------------------------------------------------------

bool TableContentFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    // The proxy asks this for every row: while the answers are current, a look-up is all it costs.
    // Only what this object holds and one step into the source are read on that path; the new row
    // is never among the answered ones.
    const TableContentModel* source = m_source;
    // (Stale answers answer no row, and the rows change only with the grid's revision.)
    if (source && m_acceptedRows.IsAnswered(sourceRow)
        && m_acceptedRows.IsCurrentRevision(source->Grid().Revision()) && !sourceParent.isValid())
        return m_acceptedRows.Answer(sourceRow);
    if (m_conditions.empty() || sourceParent.isValid() || !source || sourceRow == source->newRowIndex())
        return true;
    FilteringScope filtering(m_filtering);
    // Without its cell a row cannot be judged; it stays visible rather than vanish silently.
    return CatchAtBoundary("TableContentFilterModel::filterAcceptsRow", true, [&]() {
        UpdateAcceptedRows();
        return m_acceptedRows.Accepts(sourceRow);
    });
}

TableFilterRows::Condition TableContentFilterModel::SourceCondition(int column,
                                                                    const ColumnCondition& entry) const
{
    return { MapColumnToSource(column),
             m_sourceModel
                 ->headerData(MapColumnToSource(column), Qt::Horizontal, TableContentModel::ColumnIdRole)
                 .toString(),
             entry.condition.get() };
}

void TableContentFilterModel::MarkAnswersStale()
{
    m_acceptedRowsStale = true;
    m_acceptedRows.Unanswer();
}

// The proxy asks row by row; the answers are worked out for all rows at the first question after a
// change and only looked up for the others.
void TableContentFilterModel::UpdateAcceptedRows() const
{
    if (!m_acceptedRowsStale && m_acceptedRows.IsCurrent(*m_sourceModel))
        return;
    m_acceptedRowsStale = false;
    const auto asking = m_remapping ? TableFilterRows::Asking::InOrder : TableFilterRows::Asking::AnyOrder;
    if (m_narrowedColumn && m_acceptedRows.IsCurrent(*m_sourceModel)) {
        const auto narrowed = m_conditions.find(*m_narrowedColumn);
        if (narrowed != m_conditions.end() && MapColumnToSource(narrowed->first) >= 0) {
            m_acceptedRows.Narrow(*m_sourceModel, SourceCondition(narrowed->first, narrowed->second), asking);
            return;
        }
    }
    std::vector<TableFilterRows::Condition> conditions;
    for (const auto& [column, entry] : m_conditions) {
        if (MapColumnToSource(column) >= 0)
            conditions.push_back(SourceCondition(column, entry));
    }
    m_acceptedRows.Compute(*m_sourceModel, conditions, asking);
}

void TableContentFilterModel::onFilterBarDataChanged(const QModelIndex& topLeft,
                                                     const QModelIndex& bottomRight, const QList<int>& roles)
{
    if (!roles.contains(FilterBarModel::ConditionTextRole) || !topLeft.isValid() || !bottomRight.isValid()
        || !m_filterBarModel)
        return;
    const std::vector<QString> ids = GetColumnsIds(0, columnCount() - 1);
    bool changed = false;
    // A text that only grew ("ka", then "kal") re-checks only the rows still shown.
    std::optional<int> narrowed;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        const bool hadCondition = m_conditions.count(row) > 0;
        const QString text = m_filterBarModel->index(row).data(FilterBarModel::ConditionTextRole).toString();
        std::unique_ptr<FilterConditionBase> condition = FilterConditionFactory::CreateFilterCondition(text);
        if (!condition) {
            m_conditions.erase(row);
            changed = changed || hadCondition;
            continue;
        }
        const QString id
            = row < static_cast<int>(ids.size()) ? ids[static_cast<std::size_t>(row)] : QString();
        const bool narrows = topLeft.row() == bottomRight.row() && hadCondition && !m_acceptedRowsStale
            && m_sourceModel && m_acceptedRows.IsCurrent(*m_sourceModel)
            && condition->IsNarrowerThan(*m_conditions[row].condition);
        if (narrows)
            narrowed = row;
        m_conditions[row] = ColumnCondition { id, std::move(condition) };
        changed = true;
    }
    if (changed)
        InvalidateFiltering(narrowed);
}

void TableContentFilterModel::onFilterBarModelChanged()
{
    if (!m_filterBarModel || m_filterBarModel->rowCount() == 0) {
        m_conditions.clear();
        InvalidateFiltering();
        return;
    }
    onFilterBarDataChanged(m_filterBarModel->index(0),
                           m_filterBarModel->index(m_filterBarModel->rowCount() - 1),
                           { FilterBarModel::ConditionTextRole });
}

void TableContentFilterModel::InvalidateFiltering(std::optional<int> narrowedColumn)
{
    MarkAnswersStale();
    m_narrowedColumn = narrowedColumn;
    // Hidden rows must not stay selected: every change of the filters starts a new selection.
    m_selectionModel->select(QModelIndex(), TableSelectionModel::CleanSelect, false);
    // The proxy's incremental re-filter announces every gap between kept rows as a removal or an
    // insertion of its own and moves its row vectors for each: quadratic in the row count, minutes
    // for a million rows. Dropping the mapping and rebuilding it in one pass is linear, and views
    // see one layout change. The mapping is rebuilt here, while the rows are judged on other threads;
    // nothing may change the cells before that judging has ended.
    m_remapping = true;
    invalidate();
    rowCount();
    m_remapping = false;
    m_acceptedRows.Join();
    emit filterChanged();
}

bool TableContentFilterModel::RekeyConditions()
{
    if (m_conditions.empty())
        return false;
    const std::vector<QString> ids = GetColumnsIds(0, columnCount() - 1);
    QHash<QString, int> columnOfId;
    for (std::size_t column = 0; column < ids.size(); ++column)
        columnOfId.insert(ids[column], static_cast<int>(column));
    bool lost = false;
    std::map<int, ColumnCondition> conditions;
    for (auto& [column, entry] : m_conditions) {
        const auto it = columnOfId.constFind(entry.columnId);
        if (it == columnOfId.constEnd()) {
            lost = true;
            continue;
        }
        conditions[it.value()] = std::move(entry);
    }
    m_conditions = std::move(conditions);
    return lost;
}

// ---- Columns
// -----------------------------------------------------------------------------------------------

void TableContentFilterModel::RebuildColumnsMapping()
{
    MarkAnswersStale();
    m_narrowedColumn.reset();
    const int sourceCount = m_sourceModel ? m_sourceModel->columnCount() : 0;
    QHash<QString, int> sourceColumnOfId;
    for (int column = 0; column < sourceCount; ++column)
        sourceColumnOfId.insert(
            m_sourceModel->headerData(column, Qt::Horizontal, TableContentModel::ColumnIdRole).toString(),
            column);
    m_proxyToSource.assign(static_cast<std::size_t>(std::max(0, columnCount())), -1);
    m_sourceToProxy.assign(static_cast<std::size_t>(sourceCount), -1);
    for (int column = 0; column < columnCount(); ++column) {
        const QString id = headerData(column, Qt::Horizontal, TableContentModel::ColumnIdRole).toString();
        const auto it = sourceColumnOfId.constFind(id);
        if (it == sourceColumnOfId.constEnd())
            continue;
        m_proxyToSource[static_cast<std::size_t>(column)] = it.value();
        m_sourceToProxy[static_cast<std::size_t>(it.value())] = column;
    }
}

int TableContentFilterModel::MapColumnToSource(int column) const
{
    return column >= 0 && column < static_cast<int>(m_proxyToSource.size())
        ? m_proxyToSource[static_cast<std::size_t>(column)]
        : -1;
}

int TableContentFilterModel::MapColumnFromSource(int column) const
{
    return column >= 0 && column < static_cast<int>(m_sourceToProxy.size())
        ? m_sourceToProxy[static_cast<std::size_t>(column)]
        : -1;
}

std::vector<QString> TableContentFilterModel::GetColumnsIds(int first, int last) const
{
    first = std::max(first, 0);
    last = std::min(last, columnCount() - 1);
    std::vector<QString> ids;
    for (int column = first; column <= last; ++column)
        ids.push_back(headerData(column, Qt::Horizontal, TableContentModel::ColumnIdRole).toString());
    return ids;
}

void TableContentFilterModel::onColumnsInserted(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    RebuildColumnsMapping();
    RekeyConditions();
    emit columnCountChanged();
    if (m_filterBarModel)
        m_filterBarModel->Insert(first, GetColumnsIds(first, last));
}

void TableContentFilterModel::RestoreReturningFilterTexts()
{
    if (!m_filterBarModel || m_textsOfReturningColumns.isEmpty())
        return;
    const std::vector<QString> ids = GetColumnsIds(0, columnCount() - 1);
    for (std::size_t column = 0; column < ids.size(); ++column) {
        const QString text = m_textsOfReturningColumns.take(ids[column]);
        if (!text.isEmpty())
            m_filterBarModel->setData(m_filterBarModel->index(static_cast<int>(column)), text,
                                      FilterBarModel::ConditionTextRole);
    }
}

void TableContentFilterModel::onColumnsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid() || !m_filterBarModel)
        return;
    if (!m_sourceModel->IsRebuildingColumns()) {
        m_textsOfReturningColumns.clear();
        return;
    }
    // Showing a column rebuilds all of them: what the user typed must survive the round trip.
    for (int column = first; column <= last; ++column) {
        const int row = MapColumnFromSource(column);
        const QString text = m_filterBarModel->index(row).data(FilterBarModel::ConditionTextRole).toString();
        const std::vector<QString> id = GetColumnsIds(row, row);
        if (!id.empty() && !text.isEmpty())
            m_textsOfReturningColumns.insert(id.front(), text);
    }
}

void TableContentFilterModel::onColumnsRemoved(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid())
        return;
    RebuildColumnsMapping();
    const bool lostCondition = RekeyConditions();
    emit columnCountChanged();
    if (m_filterBarModel)
        m_filterBarModel->Remove(first, last - first + 1);
    if (lostCondition)
        InvalidateFiltering();
}

void TableContentFilterModel::onColumnsMoved(const QModelIndex&, int, int, const QModelIndex&, int)
{
    RebuildColumnsMapping();
    RekeyConditions();
    if (m_filterBarModel)
        m_filterBarModel->SynchronizeColumns(GetColumnsIds(0, columnCount() - 1));
}

void TableContentFilterModel::onColumnWidthChanged(int sourceColumn)
{
    const int column = MapColumnFromSource(sourceColumn);
    if (column != -1)
        emit columnWidthChanged(column);
}

QHash<int, QByteArray> TableContentFilterModel::roleNames() const
{
    QHash<int, QByteArray> names = QSortFilterProxyModel::roleNames();
    names.insert(DisplayTextRole, "displayText");
    names.insert(SwatchColorRole, "swatchColor");
    names.insert(EditTextRole, "editText");
    // The row numbers of the vertical header, which header views read by this name.
    names.insert(Qt::DisplayRole, "display");
    return names;
}

// ---- Header and counts ---------------------------------------------------------------------------------

QVariant TableContentFilterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical && role == Qt::DisplayRole) {
        if (section < 0 || section >= rowCount())
            return {};
        // Visible rows are numbered without gaps; the new-row line is the "*" row.
        return section == newRowIndex() ? QStringLiteral("*") : QString::number(section + 1);
    }
    return QSortFilterProxyModel::headerData(section, orientation, role);
}

bool TableContentFilterModel::setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                                            int role)
{
    if (!m_sourceModel || orientation != Qt::Horizontal)
        return false;
    return m_sourceModel->setHeaderData(MapColumnToSource(section), orientation, value, role);
}

int TableContentFilterModel::newRowIndex() const
{
    if (!m_sourceModel || m_sourceModel->newRowIndex() < 0 || m_sourceModel->columnCount() == 0)
        return -1;
    return mapFromSource(m_sourceModel->index(m_sourceModel->newRowIndex(), 0)).row();
}

int TableContentFilterModel::rowCountSubmitted() const
{
    return getAllowAddNew() ? std::max(0, rowCount() - 1) : rowCount();
}

bool TableContentFilterModel::isEmpty() const
{
    return !m_sourceModel || m_sourceModel->isEmpty();
}

// ---- Forwarding to the content model -------------------------------------------------------------------

double TableContentFilterModel::getMinVerticalHeaderWidth() const
{
    return m_sourceModel ? m_sourceModel->getMinVerticalHeaderWidth() : 32.0;
}

double TableContentFilterModel::getHorizontalHeaderHeight() const
{
    return m_sourceModel ? m_sourceModel->getHorizontalHeaderHeight() : 24.0;
}

void TableContentFilterModel::setHorizontalHeaderHeight(double height)
{
    if (m_sourceModel)
        m_sourceModel->setHorizontalHeaderHeight(height);
}

bool TableContentFilterModel::getAllowAddNew() const
{
    return m_sourceModel && m_sourceModel->getAllowAddNew();
}

void TableContentFilterModel::setAllowAddNew(bool allow)
{
    if (m_sourceModel)
        m_sourceModel->setAllowAddNew(allow);
}

bool TableContentFilterModel::getAllowEdit() const
{
    return m_sourceModel && m_sourceModel->getAllowEdit();
}

void TableContentFilterModel::setAllowEdit(bool allow)
{
    if (m_sourceModel)
        m_sourceModel->setAllowEdit(allow);
}

int TableContentFilterModel::getColumnMaxWidth() const
{
    return m_sourceModel ? m_sourceModel->getColumnMaxWidth() : 0;
}

QString TableContentFilterModel::typedTextRefusal(const QModelIndex& index, const QString& text) const
{
    const QModelIndex source = mapToSource(index);
    return m_sourceModel && source.isValid()
        ? m_sourceModel->TypedTextRefusal(source.row(), source.column(), text)
        : QString();
}

void TableContentFilterModel::confirmUpdate()
{
    if (m_sourceModel)
        m_sourceModel->confirmUpdate();
}

int TableContentFilterModel::rowHeight(int row) const
{
    return m_sourceModel ? m_sourceModel->rowHeight(row) : TableContentModel::c_rowHeight;
}

int TableContentFilterModel::columnWidth(int column) const
{
    return m_sourceModel ? m_sourceModel->columnWidth(MapColumnToSource(column)) : 0;
}

void TableContentFilterModel::setColumnWidth(int column, int width)
{
    if (m_sourceModel)
        m_sourceModel->setColumnWidth(MapColumnToSource(column), width);
}

void TableContentFilterModel::moveColumn(int srcIndex, int dstIndex)
{
    if (!m_sourceModel)
        return;
    const int source = MapColumnToSource(srcIndex);
    const int destination
        = dstIndex == columnCount() ? m_sourceModel->columnCount() : MapColumnToSource(dstIndex);
    m_sourceModel->moveColumn(source, destination);
}

void TableContentFilterModel::extendAllColumns()
{
    if (m_sourceModel)
        m_sourceModel->extendAllColumns();
}

void TableContentFilterModel::narrowAllColumns()
{
    if (m_sourceModel)
        m_sourceModel->narrowAllColumns();
}

bool TableContentFilterModel::submitLayout()
{
    return m_sourceModel && m_sourceModel->submitLayout();
}

void TableContentFilterModel::executeAction(const QModelIndex& index)
{
    if (m_sourceModel)
        m_sourceModel->executeAction(mapToSource(index));
}

void TableContentFilterModel::copyToClipboard()
{
    if (m_sourceModel)
        m_sourceModel->copyToClipboard();
}

void TableContentFilterModel::pasteFromClipboard()
{
    if (m_sourceModel)
        m_sourceModel->pasteFromClipboard();
}

bool TableContentFilterModel::isFilterTextMalformed(const QString& text) const
{
    return FilterConditionFactory::IsMalformed(text);
}

bool TableContentFilterModel::isAllRequiredFilledForNewRow() const
{
    return m_sourceModel && m_sourceModel->isAllRequiredFilledForNewRow();
}

} // namespace Orvo::UI::UIComponents

static_assert(Orvo::UI::UIComponents::TableContentFilterModel::DisplayTextRole
                  == Orvo::UI::UIComponents::TableContentModel::HighlightStateRole + 1,
              "the view roles follow the content model's roles");
