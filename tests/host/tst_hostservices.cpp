#include "framework/DefaultServices.h"
#include "framework/EventBus.h"
#include "framework/INeedEventbus.h"
#include "framework/INeedServiceCatalog.h"
#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"
#include "kernel/Directories.h"
#include "kernel/PathText.h"
#include "plugin/QtComponentsText.h"
#include "qtextensions/ComponentConfigurationStore.h"
#include "qtextensions/File.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Orvo::Kernel;
using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::QtExtensions;

namespace {
class Client : public INeedEventbus, public INeedServiceCatalog
{
public:
    void SetEventbus(std::shared_ptr<EventBus> eventbus) override { bus = std::move(eventbus); }
    std::shared_ptr<EventBus> GetEventbus() const override { return bus; }
    void SetServiceCatalog(std::shared_ptr<ServiceCatalog> c) override { catalog = std::move(c); }

    std::shared_ptr<EventBus> bus;
    std::shared_ptr<ServiceCatalog> catalog;
};
} // namespace

class tst_HostServices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void cleanup() { Directories::ResetDirectories(); }

    void shouldCreateDefaultServicesOnFirstUse()
    {
        auto catalog = ServiceCatalog::Global();
        QVERIFY(catalog->Get<EventBus>());
        QVERIFY(catalog->Get<IStringLoader>());
        QCOMPARE(ServiceCatalog::Global(), catalog);
    }

    void shouldInjectEveryClientInterface()
    {
        auto catalog = ServiceCatalog::CreateWithDefaults();
        Client client;
        catalog->Inject(client);
        QCOMPARE(client.bus, catalog->Get<EventBus>());
        QCOMPARE(client.catalog, catalog);
    }

    void shouldLookUpTexts_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("expected");
        QTest::newRow("known") << "UI_APP_STATUS_READY"
                               << "Ready";
        QTest::newRow("unknown comes back as the identifier") << "UI_DOES_NOT_EXIST"
                                                              << "UI_DOES_NOT_EXIST";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("case matters") << "ui_app_status_ready"
                                      << "ui_app_status_ready";
    }

    void shouldLookUpTexts()
    {
        QFETCH(QString, id);
        QFETCH(QString, expected);
        QCOMPARE(Orvo::UI::UIComponents::GetText(id), expected);
        QCOMPARE(QString::fromStdWString(Orvo::UI::UIComponents::GetWText(id.toStdWString())), expected);
    }

    void shouldLeaveTextsOfAnUnknownTableAlone()
    {
        auto loader = ServiceCatalog::Global()->Get<IStringLoader>();
        QCOMPARE(loader->Load({ L"UI_APP_STATUS_READY", L"NoSuchTable" }),
                 std::wstring(L"UI_APP_STATUS_READY"));
    }

    void shouldTurnPathsIntoImageSourcesAndBack_data()
    {
        QTest::addColumn<QString>("relative");
        QTest::newRow("plain") << "Images/icon.svg";
        QTest::newRow("spaces and non-ASCII") << "Bilder/Ikone für Träger #1.svg";
        QTest::newRow("nested") << "a/b/c/d.png";
    }

    void shouldTurnPathsIntoImageSourcesAndBack()
    {
        QFETCH(QString, relative);
        QTemporaryDir applicationDirectory;
        Directories::SetDirectory(Directories::DirectoryType::ApplicationDirectory,
                                  Directories::ToPath(applicationDirectory.path()));
        const auto absolute
            = Directories::ToPath(applicationDirectory.path()) / Directories::ToPath(relative);
        const QString source = File::createQmlFilePath(absolute);
        QVERIFY2(source.startsWith(QLatin1String("file:///")), qPrintable(source));
        QCOMPARE(QString::fromStdWString(File::getRelativePathFromQmlPath(source)), relative);
    }

    void shouldKeepSourcesOutsideTheApplicationDirectoryAbsolute()
    {
        QTemporaryDir applicationDirectory;
        Directories::SetDirectory(Directories::DirectoryType::ApplicationDirectory,
                                  Directories::ToPath(applicationDirectory.path()));
        QCOMPARE(QString::fromStdWString(
                     File::getRelativePathFromQmlPath(QStringLiteral("file:///usr/share/x.svg"))),
                 QStringLiteral("/usr/share/x.svg"));
        QCOMPARE(QString::fromStdWString(File::getRelativePathFromQmlPath(QStringLiteral("qrc:/x.svg"))),
                 QStringLiteral("qrc:/x.svg"));
    }

    void shouldKeepComponentConfigurationsAcrossRuns()
    {
        QTemporaryDir directory;
        const auto file = Directories::ToPath(directory.path()) / "sub" / "components.json";
        {
            ComponentConfigurationStore store(file);
            store.Store(QStringLiteral("MarkingMenu"), QStringLiteral("<marking_menu/>"));
            store.Store(QStringLiteral("PropertiesPanel"), QStringLiteral("{\"basic\":true}"));
        }
        ComponentConfigurationStore reopened(file);
        QCOMPARE(reopened.Load(QStringLiteral("MarkingMenu")), QStringLiteral("<marking_menu/>"));
        QCOMPARE(reopened.Load(QStringLiteral("PropertiesPanel")), QStringLiteral("{\"basic\":true}"));
        QCOMPARE(reopened.Load(QStringLiteral("Unknown")), QString());
    }

    void shouldStartEmptyButKeepADamagedConfigurationFile()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("components.json"));
        QFile damaged(path);
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write("{ not json");
        damaged.close();
        QTest::ignoreMessage(QtDebugMsg,
                             QRegularExpression(QStringLiteral("Ignoring damaged component configuration")));
        ComponentConfigurationStore store(Directories::ToPath(path));
        QCOMPARE(store.Load(QStringLiteral("MarkingMenu")), QString());
        QVERIFY(QFile::exists(path + QStringLiteral(".damaged")));
    }
};

QTEST_GUILESS_MAIN(tst_HostServices)
#include "tst_hostservices.moc"
