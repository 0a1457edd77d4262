#pragma once

#include "ComboBoxProxyModel.h"

#include <QStringListModel>

namespace Orvo::UI::UIComponents {

// A searchable combo box's list when the choices are plain texts: items holds them (the role
// "display"), and the search and order are those of ComboBoxProxyModel. indexOf and
// sourceRow give positions in items, which is what the caller stores.
class SimpleComboBoxProxyModel : public ComboBoxProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(SimpleComboBoxProxyModel)
    Q_PROPERTY(QStringList items READ items WRITE setItems NOTIFY itemsChanged)

public:
    explicit SimpleComboBoxProxyModel(QObject* parent = nullptr);

    QStringList items() const { return m_items.stringList(); }
    void setItems(const QStringList& items);

    // The position of text in items, accents and case aside; -1 when it is not one of them.
    Q_INVOKABLE int indexOf(const QString& text) const;

signals:
    void itemsChanged();

private:
    QStringListModel m_items;
};

} // namespace Orvo::UI::UIComponents
