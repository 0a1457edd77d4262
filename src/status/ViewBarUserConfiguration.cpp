#include "ViewBarUserConfiguration.h"

#include "StatusLogging.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Orvo::UI::UIComponents {

namespace {

const QString c_pinnedKey = QStringLiteral("pinned");

} // namespace

ViewBarUserConfiguration::ViewBarUserConfiguration(QObject* parent)
    : QObject(parent)
{ }

void ViewBarUserConfiguration::setPinnedButtons(const QStringList& buttonIds)
{
    QStringList unique;
    for (const QString& id : buttonIds) {
        if (!id.isEmpty() && !unique.contains(id))
            unique << id;
    }
    if (unique == m_pinned)
        return;
    m_pinned = unique;
    emit pinnedButtonsChanged();
}

bool ViewBarUserConfiguration::isPinned(const QString& buttonId) const
{
    return m_pinned.contains(buttonId);
}

void ViewBarUserConfiguration::setPinned(const QString& buttonId, bool pinned)
{
    QStringList buttons = m_pinned;
    if (pinned)
        buttons << buttonId;
    else
        buttons.removeAll(buttonId);
    setPinnedButtons(buttons);
}

bool ViewBarUserConfiguration::FromString(const QString& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()
        || !document.object().value(c_pinnedKey).isArray()) {
        qCWarning(lcStatus).noquote() << "The view bar's configuration is not one:" << text;
        return false;
    }
    QStringList buttons;
    for (const QJsonValue& value : document.object().value(c_pinnedKey).toArray())
        buttons << value.toString();
    setPinnedButtons(buttons);
    return true;
}

QString ViewBarUserConfiguration::ToString() const
{
    return QString::fromUtf8(
        QJsonDocument(QJsonObject { { c_pinnedKey, QJsonArray::fromStringList(m_pinned) } })
            .toJson(QJsonDocument::Compact));
}

} // namespace Orvo::UI::UIComponents
