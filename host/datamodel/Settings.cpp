#include "Settings.h"

#include "SettingChangedEvent.h"
#include "framework/EventBus.h"
#include "kernel/PathText.h"

#include <QLoggingCategory>
#include <QSettings>
#include <cmath>
#include <optional>

Q_LOGGING_CATEGORY(lcSettings, "orvo.settings", QtInfoMsg)

namespace Orvo::UI::DataModel {

namespace {

enum class Kind
{
    Real,
    Integer,
    Boolean,
    Text,
};

// Longer texts are no names, codes or symbols: a hand-edited file at most.
constexpr qsizetype c_maximumTextLength = 256;

// What values a setting takes: its kind and, for numbers, a range. A lower bound that is
// excluded keeps factors and distances away from zero, which would freeze the camera.
struct Definition
{
    Kind kind;
    double minimum = 0.0;
    double maximum = 0.0;
    bool minimumExcluded = false;
};

const QHash<QString, Definition>& Definitions()
{
    static const QHash<QString, Definition> definitions {
        { Settings::c_rotationSensitivity, { Kind::Real, 0.0, 10.0, true } },
        { Settings::c_zoomSensitivity, { Kind::Real, 0.0, 0.9, true } },
        { Settings::c_zoomFollowCameraDirection, { Kind::Boolean } },
        { Settings::c_zoomNearestLimit, { Kind::Real, 0.0, 1e6, true } },
        { Settings::c_zoomFarthestLimit, { Kind::Real, 0.0, 1e7, true } },
        { Settings::c_objectPickingRadius, { Kind::Real, 0.0, 100.0, false } },
        { Settings::c_rendererType, { Kind::Integer, 0.0, 4.0, false } },
        { Settings::c_lengthUnit, { Kind::Text } },
        { Settings::c_forceUnit, { Kind::Text } },
        { Settings::c_momentUnit, { Kind::Text } },
        { Settings::c_stressUnit, { Kind::Text } },
        { Settings::c_snapToNodes, { Kind::Boolean } },
        { Settings::c_snapToMidpoints, { Kind::Boolean } },
        { Settings::c_snapToGrid, { Kind::Boolean } },
        { Settings::c_snapToMembers, { Kind::Boolean } },
        { Settings::c_accountName, { Kind::Text } },
        { Settings::c_accountOrganisation, { Kind::Text } },
        { Settings::c_accountInitials, { Kind::Text } },
        { Settings::c_accountCountry, { Kind::Text } },
        { Settings::c_tutorialSeen, { Kind::Text } },
        { Settings::c_tutorialDone, { Kind::Boolean } },
    };
    return definitions;
}

std::optional<bool> ToBoolean(const QVariant& value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    const QString text = value.toString().trimmed().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return std::nullopt;
}

// The value in the setting's own kind, or nothing when it is not one of its values. Stored
// values come back from the file as text, values from callers in any QVariant type.
QVariant Accepted(const Definition& definition, const QVariant& value)
{
    if (definition.kind == Kind::Boolean) {
        const auto boolean = ToBoolean(value);
        return boolean ? QVariant(*boolean) : QVariant();
    }
    if (definition.kind == Kind::Text) {
        if (value.typeId() != QMetaType::QString && value.typeId() != QMetaType::QByteArray)
            return {};
        const QString text = value.toString();
        return text.size() <= c_maximumTextLength ? QVariant(text) : QVariant();
    }
    if (value.typeId() == QMetaType::Bool)
        return {};
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return {};
    if (number > definition.maximum || number < definition.minimum
        || (definition.minimumExcluded && number == definition.minimum))
        return {};
    if (definition.kind == Kind::Integer) {
        if (number != std::floor(number))
            return {};
        return QVariant(int(number));
    }
    return QVariant(number);
}

} // namespace

Settings::Settings(std::filesystem::path file, std::shared_ptr<Kernel::Framework::EventBus> eventBus)
    : m_file(std::move(file))
    , m_eventBus(std::move(eventBus))
{
    QSettings stored(Kernel::Directories::ToQString(m_file), QSettings::IniFormat);
    for (const QString& key : stored.allKeys())
        m_values.insert(key, stored.value(key));
}

Settings::~Settings() = default;

double Settings::GetRotationSensitivity(double defaultValue) const
{
    return Number(c_rotationSensitivity, defaultValue);
}

double Settings::GetZoomSensitivity(double defaultValue) const
{
    return Number(c_zoomSensitivity, defaultValue);
}

bool Settings::GetZoomFollowCameraDirection(bool defaultValue) const
{
    const QVariant value = Value(c_zoomFollowCameraDirection);
    return value.isValid() ? value.toBool() : defaultValue;
}

double Settings::GetZoomNearestLimit(double defaultValue) const
{
    return Number(c_zoomNearestLimit, defaultValue);
}

double Settings::GetZoomFarthestLimit(double defaultValue) const
{
    return Number(c_zoomFarthestLimit, defaultValue);
}

double Settings::GetObjectPickingRadius(double defaultValue) const
{
    return Number(c_objectPickingRadius, defaultValue);
}

int Settings::GetRendererType(int defaultValue) const
{
    const QVariant value = Value(c_rendererType);
    return value.isValid() ? value.toInt() : defaultValue;
}

QVariant Settings::Value(const QString& key) const
{
    const auto definition = Definitions().constFind(key);
    if (definition == Definitions().cend())
        return {};
    QVariant stored;
    {
        std::lock_guard lock(m_mutex);
        stored = m_values.value(key);
    }
    if (!stored.isValid())
        return {};
    const QVariant accepted = Accepted(*definition, stored);
    if (!accepted.isValid())
        qCWarning(lcSettings).noquote() << "The stored value" << stored.toString() << "of" << key
                                        << "is not acceptable; the default applies";
    return accepted;
}

bool Settings::SetValue(const QString& key, const QVariant& value)
{
    const auto definition = Definitions().constFind(key);
    if (definition == Definitions().cend()) {
        qCWarning(lcSettings).noquote() << "There is no setting" << key;
        return false;
    }
    const QVariant accepted = Accepted(*definition, value);
    if (!accepted.isValid()) {
        qCWarning(lcSettings).noquote()
            << value.toString() << "is not a value of" << key << "; it keeps its value";
        return false;
    }
    {
        std::lock_guard lock(m_mutex);
        if (m_values.value(key) == accepted)
            return true;
        m_values.insert(key, accepted);
        Write();
    }
    Announce(key);
    return true;
}

void Settings::Reset(const QString& key)
{
    {
        std::lock_guard lock(m_mutex);
        if (m_values.remove(key) == 0)
            return;
        Write();
    }
    Announce(key);
}

double Settings::Number(const QString& key, double defaultValue) const
{
    const QVariant value = Value(key);
    return value.isValid() ? value.toDouble() : defaultValue;
}

void Settings::Write() const
{
    // The whole file each time: settings change rarely, and a file that is always complete
    // survives the application being killed.
    QSettings stored(Kernel::Directories::ToQString(m_file), QSettings::IniFormat);
    stored.clear();
    for (auto it = m_values.cbegin(); it != m_values.cend(); ++it)
        stored.setValue(it.key(), it.value());
    stored.sync();
    if (stored.status() != QSettings::NoError)
        qCWarning(lcSettings).noquote()
            << "The settings could not be written to" << Kernel::Directories::ToQString(m_file);
}

void Settings::Announce(const QString& key) const
{
    if (m_eventBus)
        m_eventBus->Post(SettingChangedEvent { key });
}

} // namespace Orvo::UI::DataModel
