#include "EventRecorder.h"
#include "TestHost.h"
#include "commands/CommandRepository.h"
#include "commands/IUICommandProcessor.h"
#include "events/CommandShortcutChange.h"
#include "qtextensions/CommandExecutionMonitor.h"
#include "qtextensions/CommandListModel.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::QtExtensions;
using Orvo::UI::Events::CommandShortcutChange;

namespace {

const QByteArray c_commands = R"(<commands>
  <command uuid="node" name="UI_APP_STATUS_READY" icon="Images/node.svg" shortcut="Ctrl+Shift+N"/>
  <command uuid="move" name="UI_NO_SUCH_TEXT" group="edit" parameters="mode=drag"/>
  <command uuid="delete" name="UI_COMMAND_DELETE" group="edit" shortcut="Del" enabled="false"/>
</commands>)";

QStringList Rows(const QAbstractItemModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        rows << QStringLiteral("%1=%2").arg(index.data(CommandListModel::UuidRole).toString(),
                                            index.data(CommandListModel::ShortcutRole).toString());
    }
    return rows;
}

} // namespace

class tst_CommandListModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void shouldListTheCommandsInTheRepositoryOrder();
    void shouldChangeOneShortcutWithoutAReset();
    void shouldRefuseWhatTheRepositoryRefuses_data();
    void shouldRefuseWhatTheRepositoryRefuses();
    void shouldReadEverythingAgainAfterAReload();
    void monitorShouldReportEveryCommandRun();

private:
    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;
    std::unique_ptr<CommandListModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void tst_CommandListModel::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), c_commands);
    m_catalog = m_host->StartServices();
    m_model = std::make_unique<CommandListModel>();
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
}

void tst_CommandListModel::cleanup()
{
    m_tester.reset();
    m_model.reset();
    m_catalog.reset();
    m_host.reset();
}

void tst_CommandListModel::shouldListTheCommandsInTheRepositoryOrder()
{
    QCOMPARE(Rows(*m_model), QStringList({ "node=Ctrl+Shift+N", "move=", "delete=Del" }));
    QCOMPARE(m_model->count(), 3);
    const QModelIndex move = m_model->index(1, 0);
    QCOMPARE(move.data(CommandListModel::ParameterStringRole).toString(), QStringLiteral("mode=drag"));
    QCOMPARE(move.data(CommandListModel::GroupRole).toString(), QStringLiteral("edit"));
    QCOMPARE(m_model->index(2, 0).data(CommandListModel::EnabledRole).toBool(), false);
    // Icons are image sources in the application directory; no icon is no source.
    QCOMPARE(m_model->index(0, 0).data(CommandListModel::IconRole).toUrl(),
             QUrl::fromLocalFile(m_host->FilePath(QStringLiteral("Images/node.svg"))));
    QCOMPARE(move.data(CommandListModel::IconRole).toString(), QString());
    // Names come from the string table; a name without a text shows its identifier.
    QCOMPARE(m_model->commandName(QStringLiteral("node")), QStringLiteral("Ready"));
    QCOMPARE(m_model->commandName(QStringLiteral("move")), QStringLiteral("UI_NO_SUCH_TEXT"));
    QCOMPARE(m_model->commandName(QStringLiteral("unknown")), QStringLiteral("unknown"));
}

void tst_CommandListModel::shouldChangeOneShortcutWithoutAReset()
{
    // Given views that keep their place while the user edits
    QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    QVERIFY(reset.isValid() && changed.isValid());
    EventRecorder<CommandShortcutChange> announcements(*m_catalog->Get<EventBus>());

    // When a shortcut is given to a command that had none
    QVERIFY(m_model->setShortcut(QStringLiteral("move"), QStringLiteral(" Ctrl+M ")));

    // Then the repository announced it and only that row changed
    QCOMPARE(announcements.Count(), 1u);
    QCOMPARE(m_catalog->Get<ICommandRepository>()->FindCommand(L"move")->shortcut, std::wstring(L"Ctrl+M"));
    QCOMPARE(Rows(*m_model), QStringList({ "node=Ctrl+Shift+N", "move=Ctrl+M", "delete=Del" }));
    QCOMPARE(reset.count(), 0);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex().row(), 1);
}

void tst_CommandListModel::shouldRefuseWhatTheRepositoryRefuses_data()
{
    QTest::addColumn<QString>("uuid");
    QTest::addColumn<QString>("shortcut");
    QTest::newRow("unknown command") << "unknown"
                                     << "Ctrl+U";
    QTest::newRow("no key sequence") << "node"
                                     << "Ctrl+Nonsense";
}

void tst_CommandListModel::shouldRefuseWhatTheRepositoryRefuses()
{
    QFETCH(QString, uuid);
    QFETCH(QString, shortcut);
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);

    QVERIFY(!m_model->setShortcut(uuid, shortcut));

    QCOMPARE(Rows(*m_model), QStringList({ "node=Ctrl+Shift+N", "move=", "delete=Del" }));
    QCOMPARE(changed.count(), 0);
}

void tst_CommandListModel::shouldReadEverythingAgainAfterAReload()
{
    QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
    QSignalSpy countChanged(m_model.get(), &CommandListModel::countChanged);
    auto repository = std::dynamic_pointer_cast<CommandRepository>(m_catalog->Get<ICommandRepository>());
    QVERIFY(repository);

    QVERIFY(repository->LoadString(
        LR"(<commands><command uuid="copy" name="UI_C" shortcut="Ctrl+C"/></commands>)"));

    QCOMPARE(Rows(*m_model), QStringList({ "copy=Ctrl+C" }));
    QVERIFY(reset.count() >= 1);
    QCOMPARE(countChanged.count(), 1);
}

void tst_CommandListModel::monitorShouldReportEveryCommandRun()
{
    CommandExecutionMonitor monitor;
    QSignalSpy executed(&monitor, &CommandExecutionMonitor::commandExecuted);
    QVERIFY(executed.isValid());
    auto processor = m_catalog->Get<IUICommandProcessor>();

    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Command .* \\(node\\) run by test"));
    QVERIFY(processor->ExecuteCommand(L"node", L"x=1", L"test"));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("disabled"));
    QVERIFY(!processor->ExecuteCommand(L"delete", L"", L"test"));

    QCOMPARE(executed.count(), 1);
    QCOMPARE(executed.first(), QVariantList({ "node", "x=1", "test" }));
    QCOMPARE(monitor.executedCount(), 1);
}

QTEST_GUILESS_MAIN(tst_CommandListModel)
#include "tst_commandlistmodel.moc"
