#include "MoreOptionsMenuModel.h"

namespace Orvo::UI::UIComponents {

MoreOptionsMenuModel::MoreOptionsMenuModel(QObject* parent)
    : QObject(parent)
{ }

void MoreOptionsMenuModel::SetItems(const QVariantList& items)
{
    if (items == m_items)
        return;
    m_items = items;
    emit itemsChanged();
}

void MoreOptionsMenuModel::trigger(const QString& buttonId)
{
    emit triggered(buttonId);
}

} // namespace Orvo::UI::UIComponents
