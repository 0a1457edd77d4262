#include "ClassicCLocale.h"
#include "EventRecorder.h"
#include "TestHost.h"
#include "commands/CommandRepository.h"
#include "commands/INeedCommandRepository.h"
#include "commands/INeedUICommandProcessor.h"
#include "commands/UICommandProcessor.h"
#include "events/CommandExecuted.h"
#include "events/CommandShortcutChange.h"
#include "events/CommandStateChange.h"
#include "kernel/PathText.h"

#include <QtTest>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::Events;

namespace {

const std::wstring c_sampleCommands = LR"(<commands>
  <command uuid="node" name="UI_COMMAND_NEW_NODE" icon="Images/node.svg" group="model" shortcut="Ctrl+Shift+N"/>
  <command uuid="move" name="UI_COMMAND_MOVE" group="edit" parameters="mode=drag" enabled="false"/>
  <command uuid="delete" name="UI_COMMAND_DELETE" group="edit" shortcut="Del" visible="0"/>
</commands>)";

QStringList Uuids(const std::vector<CommandDefinition>& commands)
{
    QStringList uuids;
    for (const auto& command : commands)
        uuids << QString::fromStdWString(command.uuid);
    return uuids;
}

QStringList Describe(const std::vector<ShortcutEntry>& shortcuts)
{
    QStringList texts;
    for (const auto& entry : shortcuts) {
        texts << QString::fromStdWString(entry.commandUuid + L"=" + entry.shortcut + L"|"
                                         + entry.parameterString);
    }
    return texts;
}

class CommandClient : public INeedCommandRepository, public INeedUICommandProcessor
{
public:
    void SetCommandRepository(std::shared_ptr<ICommandRepository> repository) override
    {
        m_repository = repository;
    }
    std::shared_ptr<ICommandRepository> GetCommandRepository() const override { return m_repository; }
    void SetUICommandProcessor(std::shared_ptr<IUICommandProcessor> processor) override
    {
        m_processor = processor;
    }
    std::shared_ptr<IUICommandProcessor> GetUICommandProcessor() const override { return m_processor; }

private:
    std::shared_ptr<ICommandRepository> m_repository;
    std::shared_ptr<IUICommandProcessor> m_processor;
};

} // namespace

class tst_CommandRepository : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void shouldKeepTheFileOrderAndFillInDefaults();
    void shouldListOnlyCommandsWithShortcuts();
    void shouldLeaveOutBrokenCommandsAndKeepTheRest_data();
    void shouldLeaveOutBrokenCommandsAndKeepTheRest();
    void shouldKeepItsCommandsWhenADocumentCannotBeRead_data();
    void shouldKeepItsCommandsWhenADocumentCannotBeRead();
    void shouldLoadAFileFromANonAsciiFolderInTheClassicCLocale();
    void shouldAnnounceStateChangesOnlyWhenTheyHappen();
    void shouldChangeShortcutsAtRunTime();
    void shouldEnableAndDisableAGroup();
    void shouldFindAndMoveAShortcutHoweverItIsSpelled_data();
    void shouldFindAndMoveAShortcutHoweverItIsSpelled();
    void processorShouldPostAndLogARunCommand();
    void processorShouldRefuseUnknownAndDisabledCommands();
    void catalogShouldInjectTheCommandServices();

private:
    std::shared_ptr<EventBus> m_eventbus;
    std::unique_ptr<CommandRepository> m_repository;
};

void tst_CommandRepository::init()
{
    m_eventbus = std::make_shared<EventBus>();
    m_repository = std::make_unique<CommandRepository>(m_eventbus);
}

void tst_CommandRepository::shouldKeepTheFileOrderAndFillInDefaults()
{
    EventRecorder<CommandStateChange> states(*m_eventbus);
    EventRecorder<CommandShortcutChange> shortcuts(*m_eventbus);
    QVERIFY(m_repository->LoadString(c_sampleCommands));

    QCOMPARE(Uuids(m_repository->GetCommands()), QStringList({ "node", "move", "delete" }));
    const auto node = m_repository->FindCommand(L"node");
    QVERIFY(node);
    QCOMPARE(node->nameId, std::wstring(L"UI_COMMAND_NEW_NODE"));
    QCOMPARE(node->icon, std::wstring(L"Images/node.svg"));
    QVERIFY(node->enabled);
    QVERIFY(node->visible);
    QVERIFY(node->parameterString.empty());
    QVERIFY(!m_repository->FindCommand(L"move")->enabled);
    QVERIFY(!m_repository->FindCommand(L"delete")->visible);
    QVERIFY(!m_repository->FindCommand(L"unknown"));
    // A reload may change anything: both kinds of listener hear of it.
    QCOMPARE(states.Count(), 1u);
    QCOMPARE(shortcuts.Count(), 1u);
}

void tst_CommandRepository::shouldListOnlyCommandsWithShortcuts()
{
    QVERIFY(m_repository->LoadString(c_sampleCommands));
    QCOMPARE(Describe(m_repository->GetShortcuts()), QStringList({ "node=Ctrl+Shift+N|", "delete=Del|" }));
}

void tst_CommandRepository::shouldLeaveOutBrokenCommandsAndKeepTheRest_data()
{
    QTest::addColumn<QString>("broken");
    QTest::addColumn<QString>("message"); // empty: nothing to report
    QTest::addColumn<QStringList>("expectedUuids");
    const QStringList firstAndLast { "first", "last" };
    QTest::newRow("no uuid") << QStringLiteral("<command name=\"UI_X\"/>")
                             << QStringLiteral("Required attribute \"uuid\" is missing") << firstAndLast;
    QTest::newRow("empty uuid") << QStringLiteral("<command uuid=\"\" name=\"UI_X\"/>")
                                << QStringLiteral("empty uuid") << firstAndLast;
    QTest::newRow("no name") << QStringLiteral("<command uuid=\"x\"/>")
                             << QStringLiteral("Required attribute \"name\" is missing") << firstAndLast;
    QTest::newRow("enabled no boolean")
        << QStringLiteral("<command uuid=\"x\" name=\"UI_X\" enabled=\"maybe\"/>")
        << QStringLiteral("is not a boolean") << firstAndLast;
    QTest::newRow("second first") << QStringLiteral("<command uuid=\"first\" name=\"UI_OTHER\"/>")
                                  << QStringLiteral("appears twice") << firstAndLast;
    QTest::newRow("unknown element ignored") << QStringLiteral("<separator/>") << QString() << firstAndLast;
    QTest::newRow("bad shortcut keeps command")
        << QStringLiteral("<command uuid=\"x\" name=\"UI_X\" shortcut=\"Ctrl+Nonsense\"/>")
        << QStringLiteral("is no key sequence") << QStringList({ "first", "x", "last" });
}

void tst_CommandRepository::shouldLeaveOutBrokenCommandsAndKeepTheRest()
{
    QFETCH(QString, broken);
    QFETCH(QString, message);
    QFETCH(QStringList, expectedUuids);
    if (!message.isEmpty())
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QRegularExpression::escape(message)));
    const QString xml = QStringLiteral("<commands><command uuid=\"first\" name=\"UI_FIRST\"/>%1"
                                       "<command uuid=\"last\" name=\"UI_LAST\"/></commands>")
                            .arg(broken);
    QVERIFY(m_repository->LoadString(xml.toStdWString()));
    QCOMPARE(Uuids(m_repository->GetCommands()), expectedUuids);
    QCOMPARE(m_repository->FindCommand(L"first")->nameId, std::wstring(L"UI_FIRST"));
    if (const auto x = m_repository->FindCommand(L"x"))
        QVERIFY(x->shortcut.empty());
}

void tst_CommandRepository::shouldKeepItsCommandsWhenADocumentCannotBeRead_data()
{
    QTest::addColumn<QString>("document");
    QTest::newRow("empty") << QString();
    QTest::newRow("truncated") << QStringLiteral("<commands><command uuid=\"a\" name=\"UI_A\"");
    QTest::newRow("other root") << QStringLiteral("<marking_menu/>");
}

void tst_CommandRepository::shouldKeepItsCommandsWhenADocumentCannotBeRead()
{
    QFETCH(QString, document);
    QVERIFY(m_repository->LoadString(c_sampleCommands));
    EventRecorder<CommandStateChange> states(*m_eventbus);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Cannot read the commands|no <commands> root"));

    QVERIFY(!m_repository->LoadString(document.toStdWString()));
    QCOMPARE(m_repository->GetCommands().size(), 3u);
    QCOMPARE(states.Count(), 0u);
}

void tst_CommandRepository::shouldLoadAFileFromANonAsciiFolderInTheClassicCLocale()
{
    QTemporaryDir directory;
    const QString folder = directory.filePath(QStringLiteral("Konfigur\u00E4tion"));
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + QStringLiteral("/Commands.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QString::fromStdWString(c_sampleCommands).toUtf8());
    file.close();

    const ClassicCLocale classicLocale;
    QVERIFY(m_repository->LoadFile(Orvo::Kernel::Directories::ToPath(file.fileName())));
    QCOMPARE(m_repository->GetCommands().size(), 3u);
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression("Cannot read the commands file .*Konfigur\u00E4tion"));
    QVERIFY(
        !m_repository->LoadFile(Orvo::Kernel::Directories::ToPath(folder + QStringLiteral("/Missing.xml"))));
}

void tst_CommandRepository::shouldAnnounceStateChangesOnlyWhenTheyHappen()
{
    QVERIFY(m_repository->LoadString(c_sampleCommands));
    EventRecorder<CommandStateChange> states(*m_eventbus);

    QVERIFY(m_repository->SetCommandEnabled(L"node", true)); // already enabled
    QCOMPARE(states.Count(), 0u);
    QVERIFY(m_repository->SetCommandEnabled(L"node", false));
    QVERIFY(m_repository->SetCommandVisible(L"delete", true));
    QCOMPARE(states.Count(), 2u);
    QCOMPARE(states.Events()[0].GetCommandUuid(), std::wstring(L"node"));
    QCOMPARE(states.Events()[1].GetCommandUuid(), std::wstring(L"delete"));
    QVERIFY(!m_repository->FindCommand(L"node")->enabled);

    QVERIFY(!m_repository->SetCommandEnabled(L"unknown", false));
    QCOMPARE(states.Count(), 2u);
}

void tst_CommandRepository::shouldChangeShortcutsAtRunTime()
{
    QVERIFY(m_repository->LoadString(c_sampleCommands));
    EventRecorder<CommandShortcutChange> changes(*m_eventbus);

    QVERIFY(m_repository->SetShortcut(L"move", L"Ctrl+M"));
    QCOMPARE(changes.Count(), 1u);
    QCOMPARE(changes.Last().GetCommandUuid(), std::wstring(L"move"));
    QCOMPARE(Describe(m_repository->GetShortcuts()),
             QStringList({ "node=Ctrl+Shift+N|", "move=Ctrl+M|mode=drag", "delete=Del|" }));

    QVERIFY(m_repository->SetShortcut(L"node", L""));
    QCOMPARE(Describe(m_repository->GetShortcuts()), QStringList({ "move=Ctrl+M|mode=drag", "delete=Del|" }));

    QVERIFY(!m_repository->SetShortcut(L"move", L"Ctrl+Nonsense"));
    QVERIFY(!m_repository->SetShortcut(L"unknown", L"Ctrl+U"));
    QVERIFY(m_repository->SetShortcut(L"move", L"Ctrl+M")); // unchanged: no event
    QVERIFY(m_repository->SetShortcut(L"move", L"ctrl+m")); // the same key combination: no event
    QCOMPARE(changes.Count(), 2u);
}

void tst_CommandRepository::shouldFindAndMoveAShortcutHoweverItIsSpelled_data()
{
    QTest::addColumn<QString>("spelling");
    QTest::newRow("as stored") << "Ctrl+Shift+N";
    QTest::newRow("lower case") << "ctrl+shift+n";
    QTest::newRow("modifiers in another order") << "Shift+Ctrl+N";
}

void tst_CommandRepository::shouldFindAndMoveAShortcutHoweverItIsSpelled()
{
    QFETCH(QString, spelling);
    QVERIFY(m_repository->LoadString(c_sampleCommands));
    EventRecorder<CommandShortcutChange> changes(*m_eventbus);

    // Given the shortcut of "node" in some spelling, its owner is found
    QCOMPARE(m_repository->FindCommandsWithShortcut(spelling.toStdWString()),
             std::vector<std::wstring>({ L"node" }));
    QVERIFY(m_repository->FindCommandsWithShortcut(L"").empty());

    // When it is moved to "move", "node" loses it and both changes are announced
    QVERIFY(m_repository->MoveShortcut(L"move", spelling.toStdWString()));
    QCOMPARE(Describe(m_repository->GetShortcuts()),
             QStringList({ "move=Ctrl+Shift+N|mode=drag", "delete=Del|" }));
    QCOMPARE(changes.Count(), 2u);
    QCOMPARE(m_repository->FindCommandsWithShortcut(L"Ctrl+Shift+N"), std::vector<std::wstring>({ L"move" }));

    // And nothing moves for an unknown command, an empty or an invalid shortcut
    QVERIFY(!m_repository->MoveShortcut(L"unknown", L"Del"));
    QVERIFY(!m_repository->MoveShortcut(L"node", L""));
    QVERIFY(!m_repository->MoveShortcut(L"node", L"Ctrl+Nonsense"));
    QCOMPARE(changes.Count(), 2u);
}

void tst_CommandRepository::shouldEnableAndDisableAGroup()
{
    QVERIFY(m_repository->LoadString(c_sampleCommands));
    EventRecorder<CommandStateChange> states(*m_eventbus);

    QVERIFY(m_repository->SetGroupEnabled(L"edit", false));
    QVERIFY(!m_repository->FindCommand(L"delete")->enabled);
    QVERIFY(m_repository->FindCommand(L"node")->enabled);
    QCOMPARE(states.Count(), 1u); // "move" was disabled already

    QVERIFY(!m_repository->SetGroupEnabled(L"loads", false));
    QVERIFY(!m_repository->SetGroupEnabled(L"", false));
}

void tst_CommandRepository::processorShouldPostAndLogARunCommand()
{
    QVERIFY(m_repository->LoadString(c_sampleCommands));
    std::shared_ptr<CommandRepository> repository = std::move(m_repository);
    UICommandProcessor processor(repository, m_eventbus);
    EventRecorder<CommandExecuted> executed(*m_eventbus);

    QTest::ignoreMessage(QtDebugMsg,
                         "Command UI_COMMAND_NEW_NODE (node) run by MarkingMenu with parameters \"x=1\"");
    QVERIFY(processor.ExecuteCommand(L"node", L"x=1", L"MarkingMenu"));
    QCOMPARE(executed.Count(), 1u);
    QCOMPARE(executed.Last().GetCommandUuid(), std::wstring(L"node"));
    QCOMPARE(executed.Last().GetParameterString(), std::wstring(L"x=1"));
    QCOMPARE(executed.Last().GetOrigin(), std::wstring(L"MarkingMenu"));
}

void tst_CommandRepository::processorShouldRefuseUnknownAndDisabledCommands()
{
    QVERIFY(m_repository->LoadString(c_sampleCommands));
    std::shared_ptr<CommandRepository> repository = std::move(m_repository);
    UICommandProcessor processor(repository, m_eventbus);
    EventRecorder<CommandExecuted> executed(*m_eventbus);

    QTest::ignoreMessage(QtDebugMsg, "Unknown command nothing requested by test");
    QVERIFY(!processor.ExecuteCommand(L"nothing", L"", L"test"));
    QTest::ignoreMessage(QtDebugMsg, "Command UI_COMMAND_MOVE (move) is disabled, request by test refused");
    QVERIFY(!processor.ExecuteCommand(L"move", L"", L"test"));
    QCOMPARE(executed.Count(), 0u);

    UICommandProcessor withoutRepository(nullptr, m_eventbus);
    QTest::ignoreMessage(QtDebugMsg, "Unknown command node requested by test");
    QVERIFY(!withoutRepository.ExecuteCommand(L"node", L"", L"test"));
}

void tst_CommandRepository::catalogShouldInjectTheCommandServices()
{
    // Given an application directory that ships a commands file
    TestHost host;
    host.WriteFile(QStringLiteral("Configuration/Commands.xml"),
                   QString::fromStdWString(c_sampleCommands).toUtf8());
    auto catalog = host.StartServices();

    // When a client is injected
    CommandClient client;
    catalog->Inject(client);

    // Then it holds the catalog's repository, loaded from the file, and its processor
    QVERIFY(client.GetCommandRepository());
    QCOMPARE(client.GetCommandRepository(), catalog->Get<ICommandRepository>());
    QCOMPARE(client.GetCommandRepository()->GetCommands().size(), 3u);
    QCOMPARE(client.GetUICommandProcessor(), catalog->Get<IUICommandProcessor>());
    EventRecorder<CommandExecuted> executed(*catalog->Get<EventBus>());
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Command UI_COMMAND_NEW_NODE"));
    QVERIFY(client.GetUICommandProcessor()->ExecuteCommand(L"node", L"", L"test"));
    QCOMPARE(executed.Count(), 1u);
}

QTEST_GUILESS_MAIN(tst_CommandRepository)
#include "tst_commandrepository.moc"
