#include "InputPanelUserConfiguration.h"

#include "InputPanelLogging.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace Orvo::UI::UIComponents {

namespace {

const QString c_folded = QStringLiteral("foldedContainers");
const QString c_hidden = QStringLiteral("hiddenCategories");
const QString c_position = QStringLiteral("position");

QStringList Normalised(QStringList names)
{
    names.removeAll(QString());
    names.sort();
    names.removeDuplicates();
    return names;
}

QStringList ReadNames(const QJsonObject& object, const QString& key)
{
    QStringList names;
    for (const QJsonValue& value : object.value(key).toArray()) {
        if (value.isString())
            names << value.toString();
    }
    return Normalised(names);
}

} // namespace

InputPanelUserConfiguration::InputPanelUserConfiguration(QObject* parent)
    : QObject(parent)
{ }

void InputPanelUserConfiguration::setFoldedContainers(const QStringList& containers)
{
    const QStringList normalised = Normalised(containers);
    if (normalised == m_foldedContainers)
        return;
    m_foldedContainers = normalised;
    emit foldedContainersChanged();
}

void InputPanelUserConfiguration::setHiddenCategories(const QStringList& categories)
{
    const QStringList normalised = Normalised(categories);
    if (normalised == m_hiddenCategories)
        return;
    m_hiddenCategories = normalised;
    emit hiddenCategoriesChanged();
}

void InputPanelUserConfiguration::setPosition(const QPointF& position)
{
    if (!std::isfinite(position.x()) || !std::isfinite(position.y())) {
        qCWarning(lcInputPanel) << "setPosition: refused" << position;
        return;
    }
    SetPlacedPosition(position, true);
}

void InputPanelUserConfiguration::SetPlacedPosition(const QPointF& position, bool placed)
{
    if (position == m_position && placed == m_placed)
        return;
    m_position = position;
    m_placed = placed;
    emit positionChanged();
}

bool InputPanelUserConfiguration::FromString(const QString& text)
{
    QJsonObject object;
    bool readable = true;
    if (!text.trimmed().isEmpty()) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
        if (error.error != QJsonParseError::NoError || !document.isObject()) {
            qCWarning(lcInputPanel) << "The input panel's configuration cannot be read, defaults used:"
                                    << (error.error != QJsonParseError::NoError
                                            ? error.errorString()
                                            : QStringLiteral("not an object"));
            readable = false;
        } else {
            object = document.object();
        }
    }
    setFoldedContainers(ReadNames(object, c_folded));
    setHiddenCategories(ReadNames(object, c_hidden));
    const QJsonArray position = object.value(c_position).toArray();
    if (position.size() == 2 && position[0].isDouble() && position[1].isDouble())
        SetPlacedPosition(QPointF(position[0].toDouble(), position[1].toDouble()), true);
    else
        SetPlacedPosition(QPointF(), false);
    return readable;
}

QString InputPanelUserConfiguration::ToString() const
{
    QJsonObject object { { c_folded, QJsonArray::fromStringList(m_foldedContainers) },
                         { c_hidden, QJsonArray::fromStringList(m_hiddenCategories) } };
    if (m_placed)
        object.insert(c_position, QJsonArray { m_position.x(), m_position.y() });
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace Orvo::UI::UIComponents
