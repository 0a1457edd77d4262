#include "NotificationsButtonsSelectionModel.h"

#include "NotificationsLogging.h"
#include "NotificationsModel.h"
#include "plugin/QtComponentsText.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

namespace {

struct Button
{
    NotificationsModel::Severity severity;
    const char* textId;
};

// Most serious first: the buttons read as a triage from left to right.
constexpr Button c_buttons[] = {
    { NotificationsModel::Error, "UI_NOTIFICATIONS_FILTER_ERRORS" },
    { NotificationsModel::Warning, "UI_NOTIFICATIONS_FILTER_WARNINGS" },
    { NotificationsModel::Success, "UI_NOTIFICATIONS_FILTER_SUCCESS" },
    { NotificationsModel::Information, "UI_NOTIFICATIONS_FILTER_INFORMATION" },
};

bool IsSeverity(int severity)
{
    return std::any_of(std::begin(c_buttons), std::end(c_buttons),
                       [severity](const Button& button) { return int(button.severity) == severity; });
}

} // namespace

NotificationsButtonsSelectionModel::NotificationsButtonsSelectionModel(QObject* parent)
    : QObject(parent)
{ }

QVariantList NotificationsButtonsSelectionModel::buttons() const
{
    QVariantList buttons;
    for (const Button& button : c_buttons) {
        buttons.append(QVariantMap { { QStringLiteral("severity"), int(button.severity) },
                                     { QStringLiteral("text"), GetText(QString::fromLatin1(button.textId)) },
                                     { QStringLiteral("checked"), isSelected(int(button.severity)) } });
    }
    return buttons;
}

bool NotificationsButtonsSelectionModel::isSelected(int severity) const
{
    return m_selected.contains(severity);
}

void NotificationsButtonsSelectionModel::toggle(int severity)
{
    if (!IsSeverity(severity)) {
        qCWarning(lcNotifications, "No severity %d to filter by", severity);
        return;
    }
    if (!m_selected.removeOne(severity))
        m_selected.append(severity);
    std::sort(m_selected.begin(), m_selected.end());
    emit selectionChanged();
}

void NotificationsButtonsSelectionModel::clear()
{
    if (m_selected.isEmpty())
        return;
    m_selected.clear();
    emit selectionChanged();
}

bool NotificationsButtonsSelectionModel::Accepts(int severity) const
{
    return m_selected.isEmpty() || m_selected.contains(severity);
}

} // namespace Orvo::UI::UIComponents
