#include "PropertiesPanelUserConfiguration.h"

#include "PropertiesLogging.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Orvo::UI::UIComponents {

namespace {

const QString c_collapsedCategoriesKey = QStringLiteral("collapsedCategories");
const QString c_inBasicModeKey = QStringLiteral("inBasicMode");
const QString c_illustrationVisibleKey = QStringLiteral("illustrationVisible");

QStringList WithoutRepetitions(const QStringList& names)
{
    QStringList unique;
    for (const QString& name : names) {
        if (!unique.contains(name))
            unique.push_back(name);
    }
    return unique;
}

bool ReadBool(const QJsonObject& object, const QString& key, bool fallback)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return fallback;
    if (!value.isBool()) {
        qCWarning(lcProperties).noquote()
            << "Properties panel configuration:" << key << "is not true or false";
        return fallback;
    }
    return value.toBool();
}

} // namespace

PropertiesPanelUserConfiguration::PropertiesPanelUserConfiguration(QObject* parent)
    : QObject(parent)
{ }

void PropertiesPanelUserConfiguration::setCollapsedCategories(const QStringList& categories)
{
    const QStringList unique = WithoutRepetitions(categories);
    if (m_collapsedCategories == unique)
        return;
    m_collapsedCategories = unique;
    emit collapsedCategoriesChanged();
}

void PropertiesPanelUserConfiguration::setInBasicMode(bool inBasicMode)
{
    if (m_inBasicMode == inBasicMode)
        return;
    m_inBasicMode = inBasicMode;
    emit inBasicModeChanged();
}

void PropertiesPanelUserConfiguration::setIllustrationVisible(bool visible)
{
    if (m_illustrationVisible == visible)
        return;
    m_illustrationVisible = visible;
    emit illustrationVisibleChanged();
}

bool PropertiesPanelUserConfiguration::FromString(const QString& text)
{
    if (text.trimmed().isEmpty()) {
        ResetToDefaults();
        return true;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        qCWarning(lcProperties).noquote()
            << "Properties panel configuration is unreadable, defaults apply:"
            << (document.isObject() ? QStringLiteral("not an object") : error.errorString());
        ResetToDefaults();
        return false;
    }
    const QJsonObject object = document.object();
    QStringList collapsed;
    const QJsonValue categories = object.value(c_collapsedCategoriesKey);
    if (categories.isArray()) {
        for (const QJsonValue& name : categories.toArray()) {
            if (name.isString())
                collapsed.push_back(name.toString());
            else
                qCWarning(lcProperties).noquote()
                    << "Properties panel configuration: a collapsed category is not a name";
        }
    } else if (!categories.isUndefined()) {
        qCWarning(lcProperties).noquote()
            << "Properties panel configuration: collapsed categories are not a list";
    }
    setCollapsedCategories(collapsed);
    setInBasicMode(ReadBool(object, c_inBasicModeKey, true));
    setIllustrationVisible(ReadBool(object, c_illustrationVisibleKey, true));
    return true;
}

QString PropertiesPanelUserConfiguration::ToString() const
{
    QJsonObject object;
    object.insert(c_collapsedCategoriesKey, QJsonArray::fromStringList(m_collapsedCategories));
    object.insert(c_inBasicModeKey, m_inBasicMode);
    object.insert(c_illustrationVisibleKey, m_illustrationVisible);
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void PropertiesPanelUserConfiguration::ResetToDefaults()
{
    setCollapsedCategories({});
    setInBasicMode(true);
    setIllustrationVisible(true);
}

} // namespace Orvo::UI::UIComponents
