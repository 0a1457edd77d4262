#pragma once

#include "CountryListModel.h"
#include "CountrySearchModel.h"
#include "framework/EventConnection.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::UI::DataModel {
class Settings;
}

namespace Orvo::UI::UIComponents {

// The country whose design standards and units apply, chosen from Qt's list of countries by
// name or ISO code. Kept in the user's settings; until the user chooses, the country of the
// system's locale applies.
class CountryCodeDataModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(CountryCodeDataModel)
    Q_PROPERTY(Orvo::UI::UIComponents::CountryListModel* countries READ countries CONSTANT)
    // The countries that match searchResults.searchText, for the search field's list.
    Q_PROPERTY(Orvo::UI::UIComponents::CountrySearchModel* searchResults READ searchResults CONSTANT)
    // The two-letter code of the chosen country; empty when none applies. An empty text forgets
    // the user's choice; a code that is no country is refused.
    Q_PROPERTY(QString countryCode READ countryCode WRITE setCountryCode NOTIFY countryChanged)
    Q_PROPERTY(QString countryName READ countryName NOTIFY countryChanged)

public:
    explicit CountryCodeDataModel(QObject* parent = nullptr);
    ~CountryCodeDataModel() override;

    CountryListModel* countries() const { return m_countries; }
    CountrySearchModel* searchResults() const { return m_searchResults; }
    QString countryCode() const;
    void setCountryCode(const QString& code);
    QString countryName() const;

    // Chooses the country of a row of searchResults; false for a row that is not there.
    Q_INVOKABLE bool chooseResult(int row);

signals:
    void countryChanged();

private:
    // The code of the system locale's country, when it is one of the list.
    QString DefaultCode() const;
    void OnSettingChanged(const QString& key);
    void Refresh();

    CountryListModel* m_countries;
    CountrySearchModel* m_searchResults;
    std::shared_ptr<DataModel::Settings> m_settings;
    // Without the host's settings the choice lives here, for this object only.
    QString m_code;
    bool m_chosen = false;
    QString m_shownCode;
    Kernel::Framework::EventConnection m_settingConnection;
};

} // namespace Orvo::UI::UIComponents
