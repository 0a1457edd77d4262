#pragma once

#include <QAbstractListModel>
#include <QDateTime>
#include <QTimer>
#include <QtQml/qqmlregistration.h>
#include <functional>
#include <vector>

namespace Orvo::UI::UIComponents {

// The messages of the notification centre, newest first: what happened (an analysis ended, an
// edit was refused, a file was written), how serious it is, when, whether the user has read it,
// and what can be done about it (select the object it is about, show the results).
//
// A new message is also a toast for toastDuration milliseconds: the toast view shows the rows
// whose ToastRole is true and they leave it when their time is up, while the message stays in
// the centre. The clock can be replaced so that expiry is testable without waiting.
class NotificationsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int unreadCount READ unreadCount NOTIFY unreadCountChanged)
    Q_PROPERTY(int toastDuration READ toastDuration WRITE setToastDuration NOTIFY toastDurationChanged)

public:
    enum Severity
    {
        Information,
        Success,
        Warning,
        Error
    };
    Q_ENUM(Severity)

    enum Roles
    {
        IdRole = Qt::UserRole + 1,
        SeverityRole,
        TitleRole,
        MessageRole,
        TimeRole,
        TimeTextRole,
        ReadRole,
        ObjectIdRole,
        ActionsRole,
        ToastRole
    };
    Q_ENUM(Roles)

    struct Action
    {
        QString key;
        QString text;
    };

    struct Notification
    {
        int id = 0;
        Severity severity = Information;
        QString title;
        QString message;
        QDateTime time;
        bool read = false;
        int objectId = 0; // the model object it is about, 0 when none
        std::vector<Action> actions;
        QDateTime toastUntil; // invalid once the toast has gone
    };

    // Long enough to read two lines; short enough not to pile up during a session of edits.
    static constexpr int c_defaultToastDuration = 6000;
    // The oldest messages go beyond this: a centre is a recent history, not a log file.
    static constexpr int c_maximumCount = 200;

    explicit NotificationsModel(QObject* parent = nullptr);
    ~NotificationsModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return int(m_notifications.size()); }
    int unreadCount() const;
    int toastDuration() const { return m_toastDuration; }
    void setToastDuration(int milliseconds);

    // Adds a message at the top and shows it as a toast; returns its id.
    int Add(Severity severity, const QString& title, const QString& message, std::vector<Action> actions = {},
            int objectId = 0);
    const Notification* Find(int id) const;
    int RowOf(int id) const;

    Q_INVOKABLE void markRead(int row);
    Q_INVOKABLE void markAllRead();
    Q_INVOKABLE void remove(int row);
    Q_INVOKABLE void clearAll();
    // Takes the message off the toasts at once (the user closed it); it stays in the centre.
    Q_INVOKABLE void dismissToast(int row);

    // The clock that stamps messages and decides when toasts expire; the system clock by default.
    void SetClock(std::function<QDateTime()> clock);
    // Ends the toasts whose time is up by the clock; the timer calls it.
    void ExpireToasts();

signals:
    void countChanged();
    void unreadCountChanged();
    void toastDurationChanged();

private:
    QDateTime Now() const;
    void ScheduleExpiry();
    void SetRead(int row, bool read);

    std::vector<Notification> m_notifications;
    std::function<QDateTime()> m_clock;
    QTimer m_toastTimer;
    int m_toastDuration = c_defaultToastDuration;
    int m_nextId = 1;
};

} // namespace Orvo::UI::UIComponents
