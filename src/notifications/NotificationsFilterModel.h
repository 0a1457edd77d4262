#pragma once

#include "NotificationsButtonsSelectionModel.h"

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The notification centre's list as the user narrowed it: the severities picked on the toggle
// buttons, or only the messages that are toasts right now (the toast view).
class NotificationsFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Orvo::UI::UIComponents::NotificationsButtonsSelectionModel* selectionModel READ selectionModel
                   WRITE setSelectionModel NOTIFY selectionModelChanged)
    Q_PROPERTY(bool toastsOnly READ toastsOnly WRITE setToastsOnly NOTIFY toastsOnlyChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit NotificationsFilterModel(QObject* parent = nullptr);

    NotificationsButtonsSelectionModel* selectionModel() const { return m_selectionModel; }
    void setSelectionModel(NotificationsButtonsSelectionModel* selectionModel);
    bool toastsOnly() const { return m_toastsOnly; }
    void setToastsOnly(bool toastsOnly);
    int count() const { return rowCount(); }

    // The row of the source model behind row, -1 when there is none.
    Q_INVOKABLE int sourceRow(int row) const;

signals:
    void selectionModelChanged();
    void toastsOnlyChanged();
    void countChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    QPointer<NotificationsButtonsSelectionModel> m_selectionModel;
    QMetaObject::Connection m_selectionConnection;
    bool m_toastsOnly = false;
};

} // namespace Orvo::UI::UIComponents
