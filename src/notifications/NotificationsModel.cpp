#include "NotificationsModel.h"

#include <QLocale>
#include <algorithm>
#include <limits>

namespace Orvo::UI::UIComponents {

NotificationsModel::NotificationsModel(QObject* parent)
    : QAbstractListModel(parent)
{
    m_toastTimer.setSingleShot(true);
    connect(&m_toastTimer, &QTimer::timeout, this, &NotificationsModel::ExpireToasts);
}

NotificationsModel::~NotificationsModel() = default;

int NotificationsModel::rowCount(const QModelIndex& parent) const
{
    Q_ASSERT(!parent.isValid() || parent.model() == this);
    return parent.isValid() ? 0 : count();
}

QVariant NotificationsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Notification& entry = m_notifications[std::size_t(index.row())];
    switch (role) {
    case IdRole:
        return entry.id;
    case SeverityRole:
        return int(entry.severity);
    case Qt::DisplayRole:
    case TitleRole:
        return entry.title;
    case MessageRole:
        return entry.message;
    case TimeRole:
        return entry.time;
    case TimeTextRole:
        return QLocale().toString(entry.time.time(), QLocale::ShortFormat);
    case ReadRole:
        return entry.read;
    case ObjectIdRole:
        return entry.objectId;
    case ActionsRole: {
        QVariantList actions;
        for (const Action& action : entry.actions)
            actions.append(QVariantMap { { QStringLiteral("key"), action.key },
                                         { QStringLiteral("text"), action.text } });
        return actions;
    }
    case ToastRole:
        return entry.toastUntil.isValid();
    default:
        return {};
    }
}

QHash<int, QByteArray> NotificationsModel::roleNames() const
{
    return {
        { IdRole, "notificationId" }, { SeverityRole, "severity" }, { TitleRole, "title" },
        { MessageRole, "message" },   { TimeRole, "time" },         { TimeTextRole, "timeText" },
        { ReadRole, "read" },         { ObjectIdRole, "objectId" }, { ActionsRole, "actions" },
        { ToastRole, "toast" },
    };
}

int NotificationsModel::unreadCount() const
{
    return int(std::count_if(m_notifications.begin(), m_notifications.end(),
                             [](const Notification& entry) { return !entry.read; }));
}

void NotificationsModel::setToastDuration(int milliseconds)
{
    milliseconds = std::max(0, milliseconds);
    if (m_toastDuration == milliseconds)
        return;
    m_toastDuration = milliseconds;
    emit toastDurationChanged();
}

int NotificationsModel::Add(Severity severity, const QString& title, const QString& message,
                            std::vector<Action> actions, int objectId)
{
    Notification entry;
    entry.id = m_nextId++;
    entry.severity = severity;
    entry.title = title;
    entry.message = message;
    entry.time = Now();
    entry.objectId = objectId;
    entry.actions = std::move(actions);
    if (m_toastDuration > 0)
        entry.toastUntil = entry.time.addMSecs(m_toastDuration);

    if (count() >= c_maximumCount) {
        beginRemoveRows({}, count() - 1, count() - 1);
        m_notifications.pop_back();
        endRemoveRows();
    }
    beginInsertRows({}, 0, 0);
    m_notifications.insert(m_notifications.begin(), std::move(entry));
    endInsertRows();
    emit countChanged();
    emit unreadCountChanged();
    ScheduleExpiry();
    return m_notifications.front().id;
}

const NotificationsModel::Notification* NotificationsModel::Find(int id) const
{
    const int row = RowOf(id);
    return row < 0 ? nullptr : &m_notifications[std::size_t(row)];
}

int NotificationsModel::RowOf(int id) const
{
    const auto found = std::find_if(m_notifications.begin(), m_notifications.end(),
                                    [id](const Notification& entry) { return entry.id == id; });
    return found == m_notifications.end() ? -1 : int(found - m_notifications.begin());
}

void NotificationsModel::SetRead(int row, bool read)
{
    Notification& entry = m_notifications[std::size_t(row)];
    if (entry.read == read)
        return;
    entry.read = read;
    emit dataChanged(index(row), index(row), { ReadRole });
}

void NotificationsModel::markRead(int row)
{
    if (row < 0 || row >= count())
        return;
    const int before = unreadCount();
    SetRead(row, true);
    if (unreadCount() != before)
        emit unreadCountChanged();
}

void NotificationsModel::markAllRead()
{
    const int before = unreadCount();
    for (int row = 0; row < count(); ++row)
        SetRead(row, true);
    if (before != 0)
        emit unreadCountChanged();
}

void NotificationsModel::remove(int row)
{
    if (row < 0 || row >= count())
        return;
    const bool wasUnread = !m_notifications[std::size_t(row)].read;
    beginRemoveRows({}, row, row);
    m_notifications.erase(m_notifications.begin() + row);
    endRemoveRows();
    emit countChanged();
    if (wasUnread)
        emit unreadCountChanged();
    ScheduleExpiry();
}

void NotificationsModel::clearAll()
{
    if (m_notifications.empty())
        return;
    const bool hadUnread = unreadCount() > 0;
    // Every row goes: one reset says so more simply than a removal of each.
    beginResetModel();
    m_notifications.clear();
    endResetModel();
    m_toastTimer.stop();
    emit countChanged();
    if (hadUnread)
        emit unreadCountChanged();
}

void NotificationsModel::dismissToast(int row)
{
    if (row < 0 || row >= count() || !m_notifications[std::size_t(row)].toastUntil.isValid())
        return;
    m_notifications[std::size_t(row)].toastUntil = QDateTime();
    emit dataChanged(index(row), index(row), { ToastRole });
    ScheduleExpiry();
}

void NotificationsModel::SetClock(std::function<QDateTime()> clock)
{
    m_clock = std::move(clock);
    ScheduleExpiry();
}

QDateTime NotificationsModel::Now() const
{
    return m_clock ? m_clock() : QDateTime::currentDateTime();
}

void NotificationsModel::ExpireToasts()
{
    const QDateTime now = Now();
    for (int row = 0; row < count(); ++row) {
        Notification& entry = m_notifications[std::size_t(row)];
        if (entry.toastUntil.isValid() && entry.toastUntil <= now) {
            entry.toastUntil = QDateTime();
            emit dataChanged(index(row), index(row), { ToastRole });
        }
    }
    ScheduleExpiry();
}

void NotificationsModel::ScheduleExpiry()
{
    QDateTime earliest;
    for (const Notification& entry : m_notifications) {
        if (entry.toastUntil.isValid() && (!earliest.isValid() || entry.toastUntil < earliest))
            earliest = entry.toastUntil;
    }
    if (!earliest.isValid()) {
        m_toastTimer.stop();
        return;
    }
    m_toastTimer.start(int(std::clamp<qint64>(Now().msecsTo(earliest), 0, std::numeric_limits<int>::max())));
}

} // namespace Orvo::UI::UIComponents
