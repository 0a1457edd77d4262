#pragma once

#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The view bar's "more options" menu: the buttons that do not fit in the bar, in the bar's
// order, each as { buttonId, title, checkable, checked, enabled, pinned }.
class MoreOptionsMenuModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MoreOptionsMenuModel)
    Q_PROPERTY(QVariantList items READ items NOTIFY itemsChanged)
    Q_PROPERTY(int count READ count NOTIFY itemsChanged)

public:
    explicit MoreOptionsMenuModel(QObject* parent = nullptr);

    QVariantList items() const { return m_items; }
    int count() const { return int(m_items.size()); }
    void SetItems(const QVariantList& items);

signals:
    void itemsChanged();
    // The user chose an entry: the bar acts as if its button had been clicked.
    void triggered(const QString& buttonId);

public slots:
    void trigger(const QString& buttonId);

private:
    QVariantList m_items;
};

} // namespace Orvo::UI::UIComponents
