#include "SnappingSubDataModel.h"

#include "StatusLogging.h"

namespace Orvo::UI::UIComponents {

SnappingSubDataModel::SnappingSubDataModel(QObject* parent)
    : QObject(parent)
    , m_snaps(new SnapListModel(this))
{
    connect(m_snaps, &QAbstractItemModel::dataChanged, this, &SnappingSubDataModel::enabledCountChanged);
}

int SnappingSubDataModel::enabledCount() const
{
    int count = 0;
    for (int row = 0; row < m_snaps->rowCount(); ++row)
        count += m_snaps->IsEnabled(row) ? 1 : 0;
    return count;
}

bool SnappingSubDataModel::toggle(const QString& snapId)
{
    const int row = m_snaps->FindRow(snapId);
    if (row < 0) {
        qCWarning(lcStatus).noquote() << "toggle: there is no snap" << snapId;
        return false;
    }
    return m_snaps->SetEnabled(row, !m_snaps->IsEnabled(row));
}

bool SnappingSubDataModel::isEnabled(const QString& snapId) const
{
    return m_snaps->IsEnabled(m_snaps->FindRow(snapId));
}

} // namespace Orvo::UI::UIComponents
