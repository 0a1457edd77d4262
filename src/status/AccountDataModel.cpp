#include "AccountDataModel.h"

#include "StatusLogging.h"
#include "datamodel/SettingChangedEvent.h"
#include "datamodel/Settings.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"

namespace Orvo::UI::UIComponents {

using DataModel::Settings;

namespace {

// An avatar holds two letters; more would not fit its circle.
constexpr qsizetype c_maximumInitials = 2;

// The first letter of a word, whole even outside the basic plane.
QString FirstLetter(QStringView word)
{
    for (qsizetype i = 0; i < word.size(); ++i) {
        const bool pair = word.at(i).isHighSurrogate() && i + 1 < word.size();
        const char32_t codePoint
            = pair ? QChar::surrogateToUcs4(word.at(i), word.at(i + 1)) : word.at(i).unicode();
        if (QChar::isLetter(codePoint))
            return word.mid(i, pair ? 2 : 1).toString().toUpper();
        if (pair)
            ++i;
    }
    return {};
}

} // namespace

AccountDataModel::AccountDataModel(QObject* parent)
    : QObject(parent)
{
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    if (!catalog)
        return;
    m_settings = catalog->Get<Settings>();
    if (const auto eventbus = catalog->Get<Kernel::Framework::EventBus>())
        m_settingConnection = eventbus->Subscribe<DataModel::SettingChangedEvent>(
            [this](const DataModel::SettingChangedEvent& event) { OnSettingChanged(event.key); });
}

AccountDataModel::~AccountDataModel() = default;

QString AccountDataModel::name() const
{
    return Stored(Settings::c_accountName);
}

void AccountDataModel::setName(const QString& name)
{
    Store(Settings::c_accountName, name.simplified());
}

QString AccountDataModel::organisation() const
{
    return Stored(Settings::c_accountOrganisation);
}

void AccountDataModel::setOrganisation(const QString& organisation)
{
    Store(Settings::c_accountOrganisation, organisation.simplified());
}

QString AccountDataModel::initials() const
{
    const QString own = Stored(Settings::c_accountInitials);
    return own.isEmpty() ? DeriveInitials(name()) : own;
}

void AccountDataModel::setInitials(const QString& initials)
{
    QString letters = initials;
    letters.remove(QLatin1Char(' '));
    if (letters.size() > c_maximumInitials) {
        qCWarning(lcStatus).noquote() << "setInitials:" << initials << "has more than" << c_maximumInitials
                                      << "letters; the initials stay as they are";
        return;
    }
    Store(Settings::c_accountInitials, letters.toUpper());
}

bool AccountDataModel::customInitials() const
{
    return !Stored(Settings::c_accountInitials).isEmpty();
}

QString AccountDataModel::DeriveInitials(const QString& name)
{
    const QStringList words = name.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    QString initials = FirstLetter(words.constFirst());
    if (words.size() > 1)
        initials += FirstLetter(words.constLast());
    return initials;
}

QString AccountDataModel::Stored(const QString& key) const
{
    if (m_settings)
        return m_settings->Value(key).toString();
    return m_values.value(key);
}

void AccountDataModel::Store(const QString& key, const QString& value)
{
    if (Stored(key) == value)
        return;
    if (m_settings) {
        // The setting's announcement reports the change, to every account view at once.
        // An empty field forgets the value rather than storing an empty text.
        if (value.isEmpty())
            m_settings->Reset(key);
        else if (!m_settings->SetValue(key, value))
            qCWarning(lcStatus).noquote() << "The account's" << key << "keeps its value";
        return;
    }
    m_values.insert(key, value);
    OnSettingChanged(key);
}

void AccountDataModel::OnSettingChanged(const QString& key)
{
    if (key == Settings::c_accountName) {
        emit nameChanged();
        if (!customInitials())
            emit initialsChanged();
    } else if (key == Settings::c_accountOrganisation) {
        emit organisationChanged();
    } else if (key == Settings::c_accountInitials) {
        emit initialsChanged();
    }
}

} // namespace Orvo::UI::UIComponents
