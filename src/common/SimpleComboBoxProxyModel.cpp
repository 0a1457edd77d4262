#include "SimpleComboBoxProxyModel.h"

#include "SearchText.h"

namespace Orvo::UI::UIComponents {

SimpleComboBoxProxyModel::SimpleComboBoxProxyModel(QObject* parent)
    : ComboBoxProxyModel(parent)
{
    setSourceModel(&m_items);
}

void SimpleComboBoxProxyModel::setItems(const QStringList& items)
{
    if (m_items.stringList() == items)
        return;
    m_items.setStringList(items);
    emit itemsChanged();
}

int SimpleComboBoxProxyModel::indexOf(const QString& text) const
{
    const QString folded = SearchText::Folded(text);
    const QStringList list = m_items.stringList();
    for (int i = 0; i < list.size(); ++i) {
        if (SearchText::Folded(list.at(i)) == folded)
            return i;
    }
    return -1;
}

} // namespace Orvo::UI::UIComponents
