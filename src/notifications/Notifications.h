#pragma once

#include "NotificationsButtonsSelectionModel.h"
#include "NotificationsFilterModel.h"
#include "NotificationsModel.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"
#include "qtextensions/UIComponent.h"

#include <QtQml/qqmlregistration.h>

namespace Orvo::Kernel::Framework {
class StructuralModel;
}

namespace Orvo::UI::UIComponents {

// The native half of the notification centre. It turns what the host posts on its event bus
// into messages: an analysis that finished or failed, the outcome of a design check, an edit the
// model refused (with the object it is about, which the user can select from the message), a
// model file written, opened or refused. The centre's list and the toasts are two views of one
// model, narrowed by the severity buttons and by the toast state.
class Notifications : public Orvo::UI::QtExtensions::UIComponent, public Kernel::Framework::INeedEventbus
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Notifications_Cpp)
    Q_PROPERTY(
        Orvo::UI::UIComponents::NotificationsModel* notificationsModel READ notificationsModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::NotificationsFilterModel* filteredNotifications READ
                   filteredNotifications CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::NotificationsFilterModel* toasts READ toasts CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::NotificationsButtonsSelectionModel* severityButtons READ
                   severityButtons CONSTANT)

public:
    // The keys of the actions a message can offer.
    static inline const QString c_selectObjectAction = QStringLiteral("selectObject");
    static inline const QString c_showResultsAction = QStringLiteral("showResults");

    explicit Notifications(QQuickItem* parent = nullptr);
    ~Notifications() override;

    NotificationsModel* notificationsModel() const { return m_model; }
    NotificationsFilterModel* filteredNotifications() const { return m_filtered; }
    NotificationsFilterModel* toasts() const { return m_toasts; }
    NotificationsButtonsSelectionModel* severityButtons() const { return m_buttons; }

    // Does what the message's action stands for and marks the message read; false when the
    // message or its object is gone or the action is not one it offers.
    Q_INVOKABLE bool activate(int notificationId, const QString& actionKey);

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;

signals:
    // The user asked to see the analysis results.
    void resultsRequested();
    // The user selected the object a message is about.
    void objectSelected(int objectId);

private:
    bool Activate(int notificationId, const QString& actionKey);

    NotificationsModel* m_model = nullptr;
    NotificationsButtonsSelectionModel* m_buttons = nullptr;
    NotificationsFilterModel* m_filtered = nullptr;
    NotificationsFilterModel* m_toasts = nullptr;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    std::shared_ptr<Kernel::Framework::StructuralModel> m_structuralModel;
    Kernel::Framework::EventConnection m_analysisConnection;
    Kernel::Framework::EventConnection m_designConnection;
    Kernel::Framework::EventConnection m_rejectionConnection;
    Kernel::Framework::EventConnection m_fileSavedConnection;
    Kernel::Framework::EventConnection m_fileOpenedConnection;
    Kernel::Framework::EventConnection m_fileFailedConnection;
};

} // namespace Orvo::UI::UIComponents
