#include "TableNamedStateWidths.h"

#include "TableContentFilterModel.h"
#include "TableContentModel.h"

#include <utility>

namespace Orvo::UI::UIComponents {

TableNamedStateWidths::TableNamedStateWidths(TableContentModel& model)
    : QObject(&model)
    , m_model(model)
{ }

void TableNamedStateWidths::Widen(const std::vector<int>& columns)
{
    if (!m_model.contentFilterModel()->Invalidating()) {
        for (int column : columns)
            m_model.setHeaderData(column, Qt::Horizontal, c_minWidth, TableContentModel::ColumnMinWidthRole);
        return;
    }
    const bool queued = !m_postponed.isEmpty();
    for (int column : columns)
        m_postponed.append(m_model.GetColumns()[static_cast<std::size_t>(column)].id);
    if (!queued && !m_postponed.isEmpty())
        QMetaObject::invokeMethod(this, &TableNamedStateWidths::WidenPostponed, Qt::QueuedConnection);
}

void TableNamedStateWidths::WidenPostponed()
{
    const QStringList ids = std::exchange(m_postponed, {});
    for (const QString& id : ids) {
        m_model.setHeaderData(m_model.FindColumnIndex(id), Qt::Horizontal, c_minWidth,
                              TableContentModel::ColumnMinWidthRole);
    }
}

} // namespace Orvo::UI::UIComponents
