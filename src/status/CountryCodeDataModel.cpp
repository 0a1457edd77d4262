#include "CountryCodeDataModel.h"

#include "StatusLogging.h"
#include "datamodel/SettingChangedEvent.h"
#include "datamodel/Settings.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"

namespace Orvo::UI::UIComponents {

using DataModel::Settings;

CountryCodeDataModel::CountryCodeDataModel(QObject* parent)
    : QObject(parent)
    , m_countries(new CountryListModel(this))
    , m_searchResults(new CountrySearchModel(this))
{
    m_searchResults->setSourceModel(m_countries);
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    if (catalog)
        m_settings = catalog->Get<Settings>();
    m_shownCode = countryCode();
    if (!catalog)
        return;
    if (const auto eventbus = catalog->Get<Kernel::Framework::EventBus>())
        m_settingConnection = eventbus->Subscribe<DataModel::SettingChangedEvent>(
            [this](const DataModel::SettingChangedEvent& event) { OnSettingChanged(event.key); });
}

CountryCodeDataModel::~CountryCodeDataModel() = default;

QString CountryCodeDataModel::countryCode() const
{
    if (m_settings) {
        // A code that is no longer a country (a hand-edited file) counts as no choice.
        const QString stored = m_settings->Value(Settings::c_accountCountry).toString();
        const int row = m_countries->FindRow(stored);
        return row >= 0 ? m_countries->At(row)->code : DefaultCode();
    }
    return m_chosen ? m_code : DefaultCode();
}

void CountryCodeDataModel::setCountryCode(const QString& code)
{
    const bool forget = code.trimmed().isEmpty();
    const int row = m_countries->FindRow(code);
    if (!forget && row < 0) {
        qCWarning(lcStatus).noquote()
            << "setCountryCode:" << code << "is no country; the country stays" << countryCode();
        return;
    }
    if (m_settings) {
        // The setting's announcement reports the change, to every view of the country at once.
        if (forget)
            m_settings->Reset(Settings::c_accountCountry);
        else
            m_settings->SetValue(Settings::c_accountCountry, m_countries->At(row)->code);
        return;
    }
    m_chosen = !forget;
    m_code = forget ? QString() : m_countries->At(row)->code;
    Refresh();
}

QString CountryCodeDataModel::countryName() const
{
    const auto* country = m_countries->At(m_countries->FindRow(countryCode()));
    return country ? country->name : QString();
}

bool CountryCodeDataModel::chooseResult(int row)
{
    const int sourceRow = m_searchResults->sourceRow(row);
    if (sourceRow < 0) {
        qCWarning(lcStatus) << "chooseResult: there is no result" << row;
        return false;
    }
    setCountryCode(m_countries->At(sourceRow)->code);
    return true;
}

QString CountryCodeDataModel::DefaultCode() const
{
    const auto* country
        = m_countries->At(m_countries->FindRow(QLocale::territoryToCode(QLocale::system().territory())));
    return country ? country->code : QString();
}

void CountryCodeDataModel::OnSettingChanged(const QString& key)
{
    if (key == Settings::c_accountCountry)
        Refresh();
}

void CountryCodeDataModel::Refresh()
{
    // Choosing the country that applied by default already changes nothing that is shown.
    const QString code = countryCode();
    if (code == m_shownCode)
        return;
    m_shownCode = code;
    emit countryChanged();
}

} // namespace Orvo::UI::UIComponents
