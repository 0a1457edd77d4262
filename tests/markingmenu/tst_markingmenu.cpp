#include "ClassicCLocale.h"
#include "TestHost.h"
#include "events/ShowMarkingMenuEvent.h"
#include "framework/EventBus.h"
#include "framework/OnIdleEvent.h"
#include "kernel/PathText.h"
#include "markingmenu/MarkingMenu.h"
#include "qtextensions/ViewInputArea.h"

#include <QQuickWindow>
#include <QtTest>

using namespace Orvo::Kernel::Framework;
using Orvo::UI::Events::ShowMarkingMenuEvent;
using Orvo::UI::QtExtensions::ViewInputArea;
using Orvo::UI::UIComponents::MarkingMenu;
using Orvo::UI::UIComponents::MarkingMenuConfig;

namespace {

const QByteArray c_shippedXml = R"(<marking_menu>
  <section id="TOP" label="Model" lcid="UI_MARKING_MENU_SECTION_MODEL" icon="Images/model.svg"/>
  <section id="RIGHT" label="Loads" lcid="UI_MARKING_MENU_SECTION_LOADS" icon="Images/loads.svg"/>
  <section id="BOTTOM" label="View" lcid="UI_MARKING_MENU_SECTION_VIEW" icon="Images/view.svg"/>
  <section id="LEFT" label="Edit" lcid="UI_MARKING_MENU_SECTION_EDIT" icon="Images/edit.svg"/>
</marking_menu>)";

const QString c_userXml = QStringLiteral(R"(<marking_menu>
  <section id="TOP" visible="false"/>
  <section id="LEFT" visible="true"><tool uuid="move" slice="1"/></section>
</marking_menu>)");

const QString c_nothingVisibleXml
    = QStringLiteral(R"(<marking_menu><section id="LEFT" visible="false"/></marking_menu>)");

QString Describe(const MarkingMenuConfig* config)
{
    if (!config)
        return QStringLiteral("none");
    QStringList sections;
    for (const auto* section :
         { config->topSection(), config->rightSection(), config->bottomSection(), config->leftSection() }) {
        sections << QStringLiteral("%1:%2:%3")
                        .arg(section->lcid(), section->sectionVisible() ? "shown" : "hidden",
                             section->commandUuids().join(QLatin1Char(',')));
    }
    return sections.join(QLatin1Char(' '));
}

const QString c_defaultConfiguration = Describe(std::make_unique<MarkingMenuConfig>().get());

} // namespace

class tst_MarkingMenu : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void loadConfiguration_data();
    void loadConfiguration();
    void shouldLoadTheShippedMenuOfANonAsciiInstallationInTheClassicCLocale();
    void showIdleHide_data();
    void showIdleHide();
    void shouldOpenOnlyWithAVisibleSection_data();
    void shouldOpenOnlyWithAVisibleSection();
    void shouldFollowTheLogicalSecondaryButton();
    void shouldOfferItsCommandHelperForTheMarkingMenu();
    void shouldDropItsSubscriptionsWithTheItem();
    void holdOverAViewShouldOpenTheMenuAndAQuickClickNever();

private:
    void Post(const QString& step);

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<EventBus> m_eventbus;
};

void tst_MarkingMenu::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->WriteFile(QStringLiteral("Configuration/MarkingMenu.xml"), c_shippedXml);
    m_eventbus = m_host->StartServices()->Get<EventBus>();
}

void tst_MarkingMenu::cleanup()
{
    m_eventbus.reset();
    m_host.reset();
}

// One step of a host event sequence: "show x y", "hide" or "idle".
void tst_MarkingMenu::Post(const QString& step)
{
    const QStringList parts = step.split(QLatin1Char(' '));
    if (parts.first() == QLatin1String("show"))
        m_eventbus->Post(ShowMarkingMenuEvent(true, parts.at(1).toDouble(), parts.at(2).toDouble()));
    else if (parts.first() == QLatin1String("hide"))
        m_eventbus->Post(ShowMarkingMenuEvent(false, 0, 0));
    else
        m_eventbus->Post(OnIdleEvent {});
}

void tst_MarkingMenu::loadConfiguration_data()
{
    QTest::addColumn<QString>("shipped"); // the shipped file's content; null: no file
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("message"); // the debugger output expected, empty for none
    QTest::addColumn<QString>("expected");
    const QString shipped = QString::fromUtf8(c_shippedXml);
    QTest::newRow("user configuration applied on the shipped one")
        << shipped << c_userXml << QString()
        << "UI_MARKING_MENU_SECTION_MODEL:hidden:,,,,, UI_MARKING_MENU_SECTION_LOADS:hidden:,,,,, "
           "UI_MARKING_MENU_SECTION_VIEW:hidden:,,,,, UI_MARKING_MENU_SECTION_EDIT:shown:move,,,,,";
    QTest::newRow("empty user configuration")
        << shipped << QString() << "Input XML for MarkingMenu is not valid." << c_defaultConfiguration;
    QTest::newRow("truncated user configuration")
        << shipped << c_userXml.left(40) << "Input XML for MarkingMenu is not valid."
        << c_defaultConfiguration;
    QTest::newRow("user configuration broken part-way")
        << shipped
        << "<marking_menu><section id=\"LEFT\" visible=\"true\"/><section id=\"TOP\"/></marking_menu>"
        << "Required attribute \"visible\" is missing on element <section>." << c_defaultConfiguration;
    QTest::newRow("no shipped file") << QString() << c_userXml
                                     << "Failed to load MarkingMenu XML configuration."
                                     << c_defaultConfiguration;
    QTest::newRow("truncated shipped file")
        << shipped.left(60) << c_userXml << "Failed to load MarkingMenu XML configuration."
        << c_defaultConfiguration;
    QTest::newRow("shipped file with another root")
        << "<menu/>" << c_userXml << "Input XML for MarkingMenu is not valid." << c_defaultConfiguration;
    QTest::newRow("shipped section without icon")
        << "<marking_menu><section id=\"TOP\" label=\"M\" lcid=\"UI_M\"/></marking_menu>" << c_userXml
        << "Required attribute \"icon\" is missing on element <section>." << c_defaultConfiguration;
}

void tst_MarkingMenu::loadConfiguration()
{
    QFETCH(QString, shipped);
    QFETCH(QString, user);
    QFETCH(QString, message);
    QFETCH(QString, expected);
    if (shipped.isNull())
        QFile::remove(m_host->FilePath(QStringLiteral("Configuration/MarkingMenu.xml")));
    else
        m_host->WriteFile(QStringLiteral("Configuration/MarkingMenu.xml"), shipped.toUtf8());
    MarkingMenu menu;
    QSignalSpy configChanged(&menu, &MarkingMenu::mmConfigChanged);
    QVERIFY(configChanged.isValid());
    QCOMPARE(menu.mmConfig(), nullptr);

    if (!message.isEmpty())
        QTest::ignoreMessage(QtDebugMsg, message.toUtf8().constData());
    menu.loadConfiguration(user);

    QCOMPARE(Describe(menu.mmConfig()), expected);
    QCOMPARE(configChanged.count(), 0); // QML reads the configuration when the menu opens
}

void tst_MarkingMenu::shouldLoadTheShippedMenuOfANonAsciiInstallationInTheClassicCLocale()
{
    using namespace Orvo::Kernel;
    // Given an application installed in a folder with an accented name, whose shipped menu names
    // an icon with one, run in the "C" locale of a service
    const QString installation = m_host->FilePath(QStringLiteral("D\u00E9veloppement"));
    const QString icon = QStringLiteral("Images/mod\u00E8le.svg");
    QString shipped = QString::fromUtf8(c_shippedXml);
    shipped.replace(QStringLiteral("Images/model.svg"), icon);
    QVERIFY(QDir().mkpath(installation + QStringLiteral("/Configuration")));
    QFile file(installation + QStringLiteral("/Configuration/MarkingMenu.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(shipped.toUtf8());
    file.close();
    Directories::SetDirectory(Directories::DirectoryType::ApplicationDirectory,
                              Directories::ToPath(installation));
    const ClassicCLocale classicLocale;

    // When the controller loads its configuration
    MarkingMenu menu;
    menu.loadConfiguration(c_userXml);

    // Then the shipped menu is there, with the user's choices and the icon's image source
    QCOMPARE(menu.mmConfig()->leftSection()->sectionVisible(), true);
    QCOMPARE(menu.mmConfig()->leftSection()->commandUuids().first(), QStringLiteral("move"));
    QCOMPARE(menu.mmConfig()->topSection()->icon(),
             QUrl::fromLocalFile(installation + "/" + icon).toString());
}

void tst_MarkingMenu::showIdleHide_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("shows");
    QTest::addColumn<int>("hides");
    QTest::addColumn<int>("finalState");
    QTest::newRow("show, idle, idle: shown on the second idle")
        << QStringList { "show 10 20", "idle", "idle" } << 1 << 0 << 0;
    QTest::newRow("show, idle: not yet") << QStringList { "show 10 20", "idle" } << 0 << 0 << 1;
    QTest::newRow("show, idle, hide: hidden only")
        << QStringList { "show 10 20", "idle", "hide" } << 0 << 1 << 0;
    QTest::newRow("show, hide, idle, idle: nothing after the hide")
        << QStringList { "show 10 20", "hide", "idle", "idle" } << 0 << 1 << 0;
    QTest::newRow("hide with nothing pending still hides") << QStringList { "hide" } << 0 << 1 << 0;
    QTest::newRow("idle alone does nothing") << QStringList { "idle", "idle" } << 0 << 0 << 0;
    QTest::newRow("second show restarts the delay")
        << QStringList { "show 10 20", "idle", "show 30 40", "idle" } << 0 << 0 << 1;
    QTest::newRow("shown once, later idles quiet")
        << QStringList { "show 10 20", "idle", "idle", "idle", "idle" } << 1 << 0 << 0;
    QTest::newRow("open menu hidden by the release")
        << QStringList { "show 10 20", "idle", "idle", "hide" } << 1 << 1 << 0;
}

void tst_MarkingMenu::showIdleHide()
{
    QFETCH(QStringList, steps);
    QFETCH(int, shows);
    QFETCH(int, hides);
    QFETCH(int, finalState);
    MarkingMenu menu;
    menu.loadConfiguration(c_userXml);
    QSignalSpy shown(&menu, &MarkingMenu::showMarkingMenu);
    QSignalSpy hidden(&menu, &MarkingMenu::hideMarkingMenu);
    QVERIFY(shown.isValid());
    QVERIFY(hidden.isValid());

    for (const QString& step : steps)
        Post(step);

    QCOMPARE(shown.count(), shows);
    QCOMPARE(hidden.count(), hides);
    QCOMPARE(menu.ShowState(), finalState);
}

void tst_MarkingMenu::shouldOpenOnlyWithAVisibleSection_data()
{
    QTest::addColumn<QString>("configuration"); // null: none loaded
    QTest::addColumn<bool>("opens");
    QTest::newRow("all sections invisible") << c_nothingVisibleXml << false;
    QTest::newRow("configuration not loaded yet") << QString() << false;
    QTest::newRow("top section only")
        << "<marking_menu><section id=\"TOP\" visible=\"true\"/></marking_menu>" << true;
    QTest::newRow("right section only")
        << "<marking_menu><section id=\"RIGHT\" visible=\"true\"/></marking_menu>" << true;
}

void tst_MarkingMenu::shouldOpenOnlyWithAVisibleSection()
{
    QFETCH(QString, configuration);
    QFETCH(bool, opens);
    MarkingMenu menu;
    if (!configuration.isNull())
        menu.loadConfiguration(configuration);
    QSignalSpy cxChanged(&menu, &MarkingMenu::cxChanged);
    QSignalSpy cyChanged(&menu, &MarkingMenu::cyChanged);
    QSignalSpy shown(&menu, &MarkingMenu::showMarkingMenu);

    Post(QStringLiteral("show 10 20"));
    QCOMPARE(menu.ShowState(), opens ? 2 : 0);
    Post(QStringLiteral("idle"));
    Post(QStringLiteral("idle"));

    QCOMPARE(shown.count(), opens ? 1 : 0);
    QCOMPARE(cxChanged.count(), opens ? 1 : 0);
    QCOMPARE(cyChanged.count(), opens ? 1 : 0);
    QCOMPARE(menu.cx(), opens ? 10.0 : 0.0);
    QCOMPARE(menu.cy(), opens ? 20.0 : 0.0);
}

void tst_MarkingMenu::shouldFollowTheLogicalSecondaryButton()
{
    MarkingMenu menu;
    QQuickWindow window;
    window.resize(100, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QVERIFY(!menu.getPrimaryMouseButtonStatus());
    QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(10, 10));
    QVERIFY(!menu.getPrimaryMouseButtonStatus());
    QTest::mouseRelease(&window, Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mousePress(&window, Qt::RightButton, {}, QPoint(10, 10));
    QVERIFY(menu.getPrimaryMouseButtonStatus());
    QTest::mouseRelease(&window, Qt::RightButton, {}, QPoint(10, 10));
    QVERIFY(!menu.getPrimaryMouseButtonStatus());
}

void tst_MarkingMenu::shouldOfferItsCommandHelperForTheMarkingMenu()
{
    MarkingMenu menu;
    QVERIFY(menu.commandHelper());
    QCOMPARE(menu.commandHelper()->componentTrackingID(), QStringLiteral("MarkingMenu"));
    QCOMPARE(menu.GetEventbus(), m_eventbus);
    QCOMPARE(menu.property("commandHelper").value<QObject*>(), menu.commandHelper());
}

void tst_MarkingMenu::shouldDropItsSubscriptionsWithTheItem()
{
    {
        MarkingMenu menu;
        QCOMPARE(m_eventbus->SubscriberCount<ShowMarkingMenuEvent>(), 1u);
        QCOMPARE(m_eventbus->SubscriberCount<OnIdleEvent>(), 1u);
    }
    QCOMPARE(m_eventbus->SubscriberCount<ShowMarkingMenuEvent>(), 0u);
    QCOMPARE(m_eventbus->SubscriberCount<OnIdleEvent>(), 0u);
    Post(QStringLiteral("show 1 2"));
    Post(QStringLiteral("idle"));
}

void tst_MarkingMenu::holdOverAViewShouldOpenTheMenuAndAQuickClickNever()
{
    // Given a view in a window, the host's idle events and a configured menu
    QQuickWindow window;
    window.setGeometry(50, 60, 300, 300);
    auto* view = new ViewInputArea(window.contentItem());
    view->setSize(QSizeF(300, 300));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    MarkingMenu menu;
    menu.loadConfiguration(c_userXml);
    QSignalSpy shown(&menu, &MarkingMenu::showMarkingMenu);
    QSignalSpy hidden(&menu, &MarkingMenu::hideMarkingMenu);

    // When the button is clicked quickly, the menu does not open
    QTest::mousePress(&window, Qt::RightButton, {}, QPoint(100, 120));
    QTest::mouseRelease(&window, Qt::RightButton, {}, QPoint(100, 120));
    QVERIFY(!shown.wait(ViewInputArea::c_holdTurnDelayMs * 2));
    QCOMPARE(hidden.count(), 1);

    // When it is held with the pointer at rest, the menu opens, centred on the pointer
    QTest::mousePress(&window, Qt::RightButton, {}, QPoint(100, 120));
    QVERIFY(shown.wait(ViewInputArea::c_holdTurnDelayMs * 5));
    QCOMPARE(shown.count(), 1);
    QCOMPARE(menu.cx(), window.mapToGlobal(QPointF(100, 120)).x());
    QCOMPARE(menu.cy(), window.mapToGlobal(QPointF(100, 120)).y());
    QTest::mouseRelease(&window, Qt::RightButton, {}, QPoint(100, 120));
    QCOMPARE(hidden.count(), 2);
}

QTEST_MAIN(tst_MarkingMenu)
#include "tst_markingmenu.moc"
