#include "TableColumnVisibility.h"

#include "TableColumnsModel.h"
#include "TableContentModel.h"

#include <QScopedValueRollback>

namespace Orvo::UI::UIComponents {

TableColumnVisibility::TableColumnVisibility(TableContentModel& model, TableColumnsModel& columns,
                                             QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_columns(columns)
{
    connect(&m_columns, &TableColumnsModel::columnCountChanged, this,
            &TableColumnVisibility::RequestAllVisibleColumns);
    connect(&m_columns, &TableColumnsModel::columnsVisibilityChanged, this,
            &TableColumnVisibility::OnVisibilityChanged);
}

void TableColumnVisibility::OnVisibilityChanged(const std::vector<int>& indexes, bool visible)
{
    if (visible) {
        RequestAllVisibleColumns();
        return;
    }
    for (int index : indexes) {
        const auto& items = m_columns.GetItems();
        if (index < 0 || index >= static_cast<int>(items.size()))
            continue;
        const int column = m_model.FindColumnIndex(items[static_cast<std::size_t>(index)].id);
        if (column >= 0)
            m_model.RemoveColumn(column);
    }
}

void TableColumnVisibility::RequestAllVisibleColumns()
{
    // The feeder knows how to build columns; it answers with AddColumns in the columns model's order.
    const QScopedValueRollback rebuilding(m_rebuilding, true);
    if (m_model.columnCount() > 0)
        m_model.RemoveAllColumns();
    emit m_model.addColumnsRequest(m_columns.GetVisibleIds());
}

} // namespace Orvo::UI::UIComponents
