#pragma once

#include <QList>
#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The severity toggle buttons above the notification centre's list: which severities the user
// has picked. None picked shows everything, so that the list is never empty by accident of a
// forgotten button; picking a button narrows the list to the picked severities.
class NotificationsButtonsSelectionModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    // One entry per button, in the order they show: severity, text, checked.
    Q_PROPERTY(QVariantList buttons READ buttons NOTIFY selectionChanged)
    Q_PROPERTY(QList<int> selected READ selected NOTIFY selectionChanged)

public:
    explicit NotificationsButtonsSelectionModel(QObject* parent = nullptr);

    QVariantList buttons() const;
    QList<int> selected() const { return m_selected; }

    Q_INVOKABLE bool isSelected(int severity) const;
    Q_INVOKABLE void toggle(int severity);
    // Back to everything.
    Q_INVOKABLE void clear();

    // Whether a message of this severity passes the buttons.
    bool Accepts(int severity) const;

signals:
    void selectionChanged();

private:
    QList<int> m_selected;
};

} // namespace Orvo::UI::UIComponents
