#include "TableSelectionFilterModel.h"

#include "TableContentFilterModel.h"
#include "TableContentModel.h"
#include "TableSelectionModel.h"
#include "TableSelectionView.h"

namespace Orvo::UI::UIComponents {

class TableSelectionFilterModel::FilterView : public TableSelectionView
{
public:
    explicit FilterView(const TableSelectionFilterModel& owner)
        : m_owner(owner)
    { }
    int GetRowCount() const override { return Filter() ? Filter()->rowCount() : 0; }
    int GetSelectableRowCount() const override { return Filter() ? Filter()->rowCountSubmitted() : 0; }
    int GetColumnCount() const override { return Filter() ? Filter()->columnCount() : 0; }
    int MapRowToSource(int row) const override
    {
        return Filter() ? Filter()->mapToSource(Filter()->index(row, 0)).row() : -1;
    }
    int MapRowFromSource(int sourceRow) const override
    {
        const TableContentModel* source = Filter() ? Filter()->GetSourceModel() : nullptr;
        return source ? Filter()->mapFromSource(source->index(sourceRow, 0)).row() : -1;
    }
    bool IsIdentity() const override
    {
        // Without sorting, a filter that hides nothing keeps every row where it was.
        const TableContentModel* source = Filter() ? Filter()->GetSourceModel() : nullptr;
        return source && source->rowCount() == Filter()->rowCount();
    }

private:
    const TableContentFilterModel* Filter() const { return m_owner.m_filterModel; }
    const TableSelectionFilterModel& m_owner;
};

TableSelectionFilterModel::TableSelectionFilterModel(QObject* parent)
    : TableSelectionFilterModel(nullptr, parent)
{ }

TableSelectionFilterModel::TableSelectionFilterModel(TableContentFilterModel* filterModel, QObject* parent)
    : QObject(parent)
    , m_filterModel(filterModel)
    , m_view(std::make_unique<FilterView>(*this))
{ }

TableSelectionFilterModel::~TableSelectionFilterModel() = default;

void TableSelectionFilterModel::SetSourceSelectionModel(TableSelectionModel* selectionModel)
{
    if (m_source == selectionModel)
        return;
    if (m_source)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = selectionModel;
    if (!m_source)
        return;
    connect(m_source, &TableSelectionModel::regionCountChanged, this,
            &TableSelectionFilterModel::regionCountChanged);
    connect(
        m_source, &TableSelectionModel::currentSelectedIndexChanged, this,
        [this](const QModelIndex& previous) { emit currentSelectedIndexChanged(MapFromSource(previous)); });
    connect(m_source, &TableSelectionModel::currentRegionChanged, this,
            &TableSelectionFilterModel::currentRegionChanged);
    connect(m_source, &TableSelectionModel::activeRectangleSelectingChanged, this,
            &TableSelectionFilterModel::activeRectangleSelectingChanged);
    connect(m_source, &TableSelectionModel::selectedAllChanged, this,
            &TableSelectionFilterModel::selectedAllChanged);
    connect(m_source, &TableSelectionModel::ensureVisibleCurrentSelected, this,
            &TableSelectionFilterModel::ensureVisibleCurrentSelected);
}

QModelIndex TableSelectionFilterModel::MapToSource(const QModelIndex& index) const
{
    if (!m_filterModel || !index.isValid() || index.model() != m_filterModel)
        return {};
    return m_filterModel->mapToSource(index);
}

QModelIndex TableSelectionFilterModel::MapFromSource(const QModelIndex& sourceIndex) const
{
    if (!m_filterModel || !sourceIndex.isValid())
        return {};
    return m_filterModel->mapFromSource(sourceIndex);
}

bool TableSelectionFilterModel::IsUsable(const QModelIndex& index) const
{
    return m_source && m_filterModel && index.isValid() && index.model() == m_filterModel;
}

int TableSelectionFilterModel::getRegionCount() const
{
    return m_source ? m_source->getRegionCount() : 0;
}

QModelIndex TableSelectionFilterModel::getCurrentSelectedIndex() const
{
    return m_source ? MapFromSource(m_source->getCurrentSelectedIndex()) : QModelIndex();
}

QItemSelectionRange TableSelectionFilterModel::getCurrentRegion() const
{
    if (!m_source || !m_filterModel)
        return {};
    const QItemSelectionRange region = m_source->getCurrentRegion();
    if (!region.isValid())
        return {};
    const QModelIndex topLeft = MapFromSource(region.topLeft());
    const QModelIndex bottomRight = MapFromSource(region.bottomRight());
    return topLeft.isValid() && bottomRight.isValid() ? QItemSelectionRange(topLeft, bottomRight)
                                                      : QItemSelectionRange();
}

bool TableSelectionFilterModel::isActiveRectangleSelecting() const
{
    return m_source && m_source->isActiveRectangleSelecting();
}

bool TableSelectionFilterModel::isSelectedAll() const
{
    return m_source && m_source->isSelectedAll();
}

void TableSelectionFilterModel::select(const QModelIndex& index, int mode, bool ensureVisible)
{
    if (!m_source)
        return;
    const bool usable = IsUsable(index);
    m_source->Select(*m_view, usable ? index.row() : -1, usable ? index.column() : -1, mode, ensureVisible);
}

void TableSelectionFilterModel::beginSelectRegion(const QModelIndex& index, int mode)
{
    if (IsUsable(index))
        m_source->BeginSelectRegion(*m_view, index.row(), index.column(), mode);
}

void TableSelectionFilterModel::selectRegion(const QModelIndex& index, int mode)
{
    if (IsUsable(index))
        m_source->SelectRegion(*m_view, index.row(), index.column(), mode);
}

void TableSelectionFilterModel::endSelectRegion(bool discard)
{
    if (m_source)
        m_source->EndSelectRegion(discard);
}

void TableSelectionFilterModel::selectAll()
{
    if (m_source)
        m_source->SelectAll(*m_view);
}

bool TableSelectionFilterModel::isSelected(const QModelIndex& index) const
{
    const QModelIndex source = MapToSource(index);
    return m_source && source.isValid() && m_source->IsCellSelected(source.row(), source.column());
}

int TableSelectionFilterModel::findRegion(const QModelIndex& index) const
{
    const QModelIndex source = MapToSource(index);
    return m_source && source.isValid() ? m_source->FindRegion(source.row(), source.column()) : -1;
}

void TableSelectionFilterModel::selectRow(int row, int mode)
{
    if (m_source)
        m_source->SelectRow(*m_view, row, mode);
}

void TableSelectionFilterModel::selectRowFromLast(int row)
{
    if (m_source)
        m_source->SelectRowFromLast(*m_view, row);
}

void TableSelectionFilterModel::extendSelection(int rows, int columns)
{
    if (m_source)
        m_source->ExtendSelection(*m_view, rows, columns);
}

bool TableSelectionFilterModel::isRowSelected(int row) const
{
    if (!m_source || !m_filterModel || row < 0 || row >= m_filterModel->rowCount())
        return false;
    return m_source->IsWholeRowSelected(m_view->MapRowToSource(row));
}

QItemSelectionRange TableSelectionFilterModel::getEnvelope() const
{
    if (!m_source || !m_filterModel)
        return {};
    const auto envelope = m_source->GetSourceEnvelope();
    const TableContentModel* source = m_filterModel->GetSourceModel();
    if (!envelope || !source)
        return {};
    // Hidden rows are never selected (a filter change clears the selection), so the envelope's
    // first and last rows are shown.
    const QModelIndex topLeft = MapFromSource(source->index(envelope->top, envelope->left));
    const QModelIndex bottomRight = MapFromSource(source->index(envelope->bottom, envelope->right));
    if (!topLeft.isValid() || !bottomRight.isValid())
        return {};
    return QItemSelectionRange(topLeft, bottomRight);
}

} // namespace Orvo::UI::UIComponents
