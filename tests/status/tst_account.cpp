#include "TestHost.h"
#include "datamodel/Settings.h"
#include "status/AccountDataModel.h"
#include "status/CountryCodeDataModel.h"

#include <QAbstractItemModelTester>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo;
using namespace Orvo::UI::UIComponents;
using UI::DataModel::Settings;

namespace {

QStringList Codes(const QAbstractItemModel& model)
{
    QStringList codes;
    for (int row = 0; row < model.rowCount(); ++row)
        codes << model.index(row, 0).data(CountryListModel::CodeRole).toString();
    return codes;
}

} // namespace

class tst_Account : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_catalog = m_host->StartServices();
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void shouldListEveryCountryOnceByNameWithItsCode()
    {
        // Given the list of countries
        CountryCodeDataModel country;
        QAbstractItemModelTester tester(country.countries(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QStringList codes = Codes(*country.countries());

        // Then every entry has a two-letter code of its own, groupings of countries are left out,
        // and the list is in the order of the names
        QVERIFY(codes.size() > 200);
        QCOMPARE(QSet<QString>(codes.cbegin(), codes.cend()).size(), codes.size());
        for (const QString& code : codes)
            QVERIFY2(code.size() == 2 && code == code.toUpper(), qPrintable(code));
        QVERIFY(!codes.contains(QStringLiteral("EU")));
        QVERIFY(codes.indexOf(QStringLiteral("AF")) < codes.indexOf(QStringLiteral("AX")));
        QVERIFY(codes.indexOf(QStringLiteral("AX")) < codes.indexOf(QStringLiteral("AL")));
        const int germany = codes.indexOf(QStringLiteral("DE"));
        QCOMPARE(country.countries()->index(germany, 0).data(CountryListModel::NameRole).toString(),
                 QStringLiteral("Germany"));
    }

    void shouldFindCountriesByNameOrCode_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("firstCode");
        QTest::newRow("a code") << "DE"
                                << "DE";
        QTest::newRow("a code in lower case") << "de"
                                              << "DE";
        QTest::newRow("the start of a name") << "Germ"
                                             << "DE";
        QTest::newRow("a code that starts other names") << "AL"
                                                        << "AL";
        QTest::newRow("words in another order") << "kingdom united"
                                                << "GB";
        QTest::newRow("a name typed with accents") << QString::fromUtf8("Réunion") << "RE";
        QTest::newRow("nothing that matches") << "Atlantis"
                                              << "";
    }

    void shouldFindCountriesByNameOrCode()
    {
        QFETCH(QString, search);
        QFETCH(QString, firstCode);

        // Given the search list of the country field
        CountryCodeDataModel country;
        QAbstractItemModelTester tester(country.searchResults(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy counted(country.searchResults(), &SearchableProxyModel::countChanged);

        // When the user types
        country.searchResults()->setSearchText(search);

        // Then the country meant comes first, and choosing the first result chooses it
        const QStringList codes = Codes(*country.searchResults());
        QCOMPARE(codes.value(0), firstCode);
        QVERIFY(!counted.isEmpty());
        QCOMPARE(country.chooseResult(0), !firstCode.isEmpty());
        if (!firstCode.isEmpty())
            QCOMPARE(country.countryCode(), firstCode);
    }

    void shouldKeepTheProfileAndCountryForTheNextSession()
    {
        // Given a profile and a country chosen in this session
        {
            AccountDataModel account;
            CountryCodeDataModel country;
            account.setName(QStringLiteral("  Ada   Lovelace "));
            account.setOrganisation(QStringLiteral("Analytical Engines Ltd"));
            country.setCountryCode(QStringLiteral("gb"));
        }

        // When the application starts again
        m_catalog.reset();
        Kernel::Framework::ServiceCatalog::SetGlobal(nullptr);
        m_catalog = m_host->StartServices();
        AccountDataModel account;
        CountryCodeDataModel country;

        // Then it shows them, tidied
        QCOMPARE(account.name(), QStringLiteral("Ada Lovelace"));
        QCOMPARE(account.organisation(), QStringLiteral("Analytical Engines Ltd"));
        QCOMPARE(account.initials(), QStringLiteral("AL"));
        QCOMPARE(country.countryCode(), QStringLiteral("GB"));
        QCOMPARE(country.countryName(), QStringLiteral("United Kingdom"));
    }

    void shouldKeepTheProfileAcrossEnginesAndSessions()
    {
        // Given a profile a QML document edited, in an engine that is gone since
        {
            QQmlEngine engine;
            QQmlComponent component(&engine);
            component.setData(
                "import QtQml\n"
                "import Qml.QtComponents\n"
                "QtObject {\n"
                "    property AccountDataModel account: AccountDataModel { name: \"Ada Lovelace\" }\n"
                "    property CountryCodeDataModel country: CountryCodeDataModel { countryCode: \"de\" }\n"
                "}",
                QUrl());
            std::unique_ptr<QObject> document(component.create());
            QVERIFY2(document, qPrintable(component.errorString()));
        }

        // When the application starts again with a new engine
        m_catalog.reset();
        Kernel::Framework::ServiceCatalog::SetGlobal(nullptr);
        m_catalog = m_host->StartServices();
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQml\n"
                          "import Qml.QtComponents\n"
                          "QtObject {\n"
                          "    property AccountDataModel account: AccountDataModel {}\n"
                          "    property CountryCodeDataModel country: CountryCodeDataModel {}\n"
                          "    readonly property string initials: account.initials\n"
                          "    readonly property string countryName: country.countryName\n"
                          "}",
                          QUrl());
        std::unique_ptr<QObject> document(component.create());
        QVERIFY2(document, qPrintable(component.errorString()));

        // Then the document shows what was chosen
        QCOMPARE(document->property("initials").toString(), QStringLiteral("AL"));
        QCOMPARE(document->property("countryName").toString(), QStringLiteral("Germany"));
    }

    void shouldShowAChangeInEveryView()
    {
        // Given two views of the profile (the status bar's avatar and the profile page)
        AccountDataModel avatar;
        AccountDataModel page;
        CountryCodeDataModel avatarCountry;
        CountryCodeDataModel pageCountry;
        pageCountry.setCountryCode(QStringLiteral("FR"));
        QSignalSpy initials(&avatar, &AccountDataModel::initialsChanged);
        QSignalSpy country(&avatarCountry, &CountryCodeDataModel::countryChanged);

        // When the page changes them
        page.setName(QStringLiteral("Grace Hopper"));
        pageCountry.setCountryCode(QStringLiteral("US"));
        pageCountry.setCountryCode(QStringLiteral("US"));

        // Then the avatar follows, once per change
        QCOMPARE(initials.count(), 1);
        QCOMPARE(avatar.initials(), QStringLiteral("GH"));
        QCOMPARE(country.count(), 1);
        QCOMPARE(avatarCountry.countryCode(), QStringLiteral("US"));
    }

    void shouldDeriveInitialsFromTheName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("initials");
        QTest::newRow("first and last name") << "Ada Lovelace"
                                             << "AL";
        QTest::newRow("middle names left out") << "Ada King Lovelace"
                                               << "AL";
        QTest::newRow("one name") << "ada"
                                  << "A";
        QTest::newRow("a hyphenated first name") << "Jean-Luc Picard"
                                                 << "JP";
        QTest::newRow("accented letters") << "émile zola"
                                          << "ÉZ";
        QTest::newRow("punctuation before a letter") << "(Ada) Lovelace"
                                                     << "AL";
        QTest::newRow("a letter outside the basic plane")
            << QString::fromUtf8("\U0001D400da Lovelace") << QString::fromUtf8("\U0001D400L");
        QTest::newRow("no name") << "  "
                                 << "";
    }

    void shouldDeriveInitialsFromTheName()
    {
        QFETCH(QString, name);
        QFETCH(QString, initials);
        QCOMPARE(AccountDataModel::DeriveInitials(name), initials);
    }

    void shouldPreferTheUsersOwnInitials()
    {
        // Given a user with a name and initials of their own
        AccountDataModel account;
        account.setName(QStringLiteral("Margaret Hamilton"));
        account.setInitials(QStringLiteral("m h"));
        QCOMPARE(account.initials(), QStringLiteral("MH"));
        QVERIFY(account.customInitials());
        QSignalSpy initials(&account, &AccountDataModel::initialsChanged);

        // When the name changes, the own initials stay and nothing is announced
        account.setName(QStringLiteral("Maggie Smith"));
        QCOMPARE(account.initials(), QStringLiteral("MH"));
        QCOMPARE(initials.count(), 0);

        // When initials that do not fit the avatar are typed, they are refused
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("more than 2 letters"));
        account.setInitials(QStringLiteral("MHX"));
        QCOMPARE(account.initials(), QStringLiteral("MH"));

        // When the own initials are cleared, the name's come back
        account.setInitials(QString());
        QCOMPARE(account.initials(), QStringLiteral("MS"));
        QVERIFY(!account.customInitials());
        QCOMPARE(initials.count(), 1);
        QVERIFY(!m_catalog->Get<Settings>()->Value(Settings::c_accountInitials).isValid());
    }

    void shouldRefuseACodeThatIsNoCountry_data()
    {
        QTest::addColumn<QString>("code");
        QTest::newRow("unknown") << "ZZ";
        QTest::newRow("a grouping") << "EU";
        QTest::newRow("a region of the world") << "419";
        QTest::newRow("a name") << "Germany";
    }

    void shouldRefuseACodeThatIsNoCountry()
    {
        QFETCH(QString, code);
        CountryCodeDataModel country;
        country.setCountryCode(QStringLiteral("DE"));
        QSignalSpy changed(&country, &CountryCodeDataModel::countryChanged);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("is no country"));
        country.setCountryCode(code);

        QCOMPARE(country.countryCode(), QStringLiteral("DE"));
        QCOMPARE(changed.count(), 0);
    }

    void shouldFallBackToTheSystemsCountry()
    {
        // Given a chosen country and a settings file edited by hand
        CountryCodeDataModel country;
        const QString systems = QLocale::territoryToCode(QLocale::system().territory());
        const QString expected = country.countries()->FindRow(systems) >= 0 ? systems : QString();
        country.setCountryCode(QStringLiteral("JP"));

        // When the choice is forgotten, or the stored code is none
        country.setCountryCode(QString());
        QCOMPARE(country.countryCode(), expected);
        m_catalog->Get<Settings>()->SetValue(Settings::c_accountCountry, QStringLiteral("Atlantis"));

        // Then the system's country applies
        QCOMPARE(country.countryCode(), expected);
    }

    void shouldWorkWithoutTheHost()
    {
        // Given no host services (a QML designer previewing the page)
        m_catalog.reset();
        Kernel::Framework::ServiceCatalog::SetGlobal(nullptr);
        AccountDataModel account;
        CountryCodeDataModel country;
        QSignalSpy name(&account, &AccountDataModel::nameChanged);
        QSignalSpy changed(&country, &CountryCodeDataModel::countryChanged);

        // When the user edits the profile, it is kept in the objects
        account.setName(QStringLiteral("Alan Turing"));
        country.setCountryCode(QStringLiteral("nz"));
        QCOMPARE(name.count(), 1);
        QCOMPARE(account.initials(), QStringLiteral("AT"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(country.countryName(), QStringLiteral("New Zealand"));
    }

private:
    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<Kernel::Framework::ServiceCatalog> m_catalog;
};

QTEST_MAIN(tst_Account)
#include "tst_account.moc"
