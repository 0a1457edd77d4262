#include "ClassicCLocale.h"
#include "EventRecorder.h"
#include "TestHost.h"
#include "commands/CommandMenuHelper.h"
#include "commands/ICommandRepository.h"
#include "events/CommandExecuted.h"

#include <QtTest>

using namespace Orvo::Kernel::Framework;
using Orvo::UI::Events::CommandExecuted;
using Orvo::UI::UIComponents::CommandMenuHelper;

namespace {

const QByteArray c_commands = R"(<commands>
  <command uuid="move" name="UI_COMMAND_MOVE" icon="Images/Commands/move.svg" parameters="mode=drag"/>
  <command uuid="rotate" name="UI_COMMAND_ROTATE" icon="/opt/icons/rotate.svg" enabled="false"/>
  <command uuid="mirror" name="UI_COMMAND_MIRROR" visible="false"/>
  <command uuid="custom" name="UI_NOT_IN_THE_TABLE"/>
  <command uuid="accented" name="UI_COMMAND_MOVE" icon="Images/Commands/déplacer.svg"/>
</commands>)";

} // namespace

class tst_CommandMenuHelper : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void shouldDescribeCommands_data();
    void shouldDescribeCommands();
    void shouldResolveANonAsciiIconInTheClassicCLocale();
    void shouldRunACommandWithItsParametersAndOrigin();
    void shouldNotRunADisabledOrUnknownCommand();
    void shouldAnnounceStateChanges();
    void shouldWorkWithoutHostServices();

private:
    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;
};

void tst_CommandMenuHelper::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), c_commands);
    m_catalog = m_host->StartServices();
}

void tst_CommandMenuHelper::cleanup()
{
    m_catalog.reset();
    m_host.reset();
}

void tst_CommandMenuHelper::shouldDescribeCommands_data()
{
    QTest::addColumn<QString>("uuid");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<QString>("icon"); // relative to the application directory, or absolute
    QTest::addColumn<QString>("name");
    QTest::newRow("enabled and visible") << "move" << true << true << "Images/Commands/move.svg"
                                         << "Move";
    QTest::newRow("disabled, absolute icon") << "rotate" << false << true << "/opt/icons/rotate.svg"
                                             << "Rotate";
    QTest::newRow("hidden, no icon") << "mirror" << true << false << ""
                                     << "Mirror";
    QTest::newRow("name missing from the table") << "custom" << true << true << ""
                                                 << "UI_NOT_IN_THE_TABLE";
    QTest::newRow("unknown") << "nothing" << false << false << ""
                             << "";
    QTest::newRow("empty slice") << "" << false << false << ""
                                 << "";
}

void tst_CommandMenuHelper::shouldDescribeCommands()
{
    QFETCH(QString, uuid);
    QFETCH(bool, enabled);
    QFETCH(bool, visible);
    QFETCH(QString, icon);
    QFETCH(QString, name);
    CommandMenuHelper helper;
    QCOMPARE(helper.isItemEnabled(uuid), enabled);
    QCOMPARE(helper.isItemVisible(uuid), visible);
    const QString expectedIcon = icon.isEmpty() ? QString()
        : icon.startsWith('/')                  ? QUrl::fromLocalFile(icon).toString()
                                                : QUrl::fromLocalFile(m_host->FilePath(icon)).toString();
    QCOMPARE(helper.getCommandIcon(uuid), expectedIcon);
    QCOMPARE(helper.getCommandName(uuid), name);
}

void tst_CommandMenuHelper::shouldResolveANonAsciiIconInTheClassicCLocale()
{
    const ClassicCLocale classicLocale;
    CommandMenuHelper helper;
    QCOMPARE(helper.getCommandIcon(QStringLiteral("accented")),
             QUrl::fromLocalFile(m_host->FilePath(QStringLiteral("Images/Commands/d\u00E9placer.svg")))
                 .toString());
}

void tst_CommandMenuHelper::shouldRunACommandWithItsParametersAndOrigin()
{
    CommandMenuHelper helper;
    QSignalSpy trackingChanged(&helper, &CommandMenuHelper::componentTrackingIDChanged);
    QVERIFY(trackingChanged.isValid());
    helper.setComponentTrackingID(QStringLiteral("MarkingMenu"));
    helper.setComponentTrackingID(QStringLiteral("MarkingMenu"));
    QCOMPARE(trackingChanged.count(), 1);

    EventRecorder<CommandExecuted> executed(*m_catalog->Get<EventBus>());
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression("Command UI_COMMAND_MOVE \\(move\\) run by MarkingMenu"));
    QVERIFY(helper.executeCommand(QStringLiteral("move")));
    QCOMPARE(executed.Count(), 1u);
    QCOMPARE(executed.Last().GetParameterString(), std::wstring(L"mode=drag"));
    QCOMPARE(executed.Last().GetOrigin(), std::wstring(L"MarkingMenu"));
}

void tst_CommandMenuHelper::shouldNotRunADisabledOrUnknownCommand()
{
    CommandMenuHelper helper;
    EventRecorder<CommandExecuted> executed(*m_catalog->Get<EventBus>());
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("is disabled"));
    QVERIFY(!helper.executeCommand(QStringLiteral("rotate")));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Unknown command"));
    QVERIFY(!helper.executeCommand(QStringLiteral("nothing")));
    QCOMPARE(executed.Count(), 0u);
}

void tst_CommandMenuHelper::shouldAnnounceStateChanges()
{
    CommandMenuHelper helper;
    QSignalSpy stateChanged(&helper, &CommandMenuHelper::commandStateChanged);
    QVERIFY(stateChanged.isValid());
    auto repository = m_catalog->Get<ICommandRepository>();

    repository->SetCommandEnabled(L"rotate", true);
    QCOMPARE(stateChanged.count(), 1);
    QVERIFY(helper.isItemEnabled(QStringLiteral("rotate")));
    repository->SetCommandVisible(L"rotate", true); // already visible: nothing changes
    QCOMPARE(stateChanged.count(), 1);
}

void tst_CommandMenuHelper::shouldWorkWithoutHostServices()
{
    // A host that provides no command services: the helper answers, and runs nothing.
    ServiceCatalog::SetGlobal(std::make_shared<ServiceCatalog>());
    CommandMenuHelper helper;
    QVERIFY(!helper.isItemEnabled(QStringLiteral("move")));
    QCOMPARE(helper.getCommandName(QStringLiteral("move")), QString());
    QVERIFY(!helper.executeCommand(QStringLiteral("move")));
}

QTEST_GUILESS_MAIN(tst_CommandMenuHelper)
#include "tst_commandmenuhelper.moc"
