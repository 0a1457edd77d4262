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

// The application's commands for the keyboard settings, and the reports of commands run.
class tst_CommandListModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;
    std::unique_ptr<CommandListModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;

    QStringList Rows() const
    {
        QStringList rows;
        for (int row = 0; row < m_model->rowCount(); ++row) {
            const QModelIndex index = m_model->index(row, 0);
            rows << index.data(CommandListModel::UuidRole).toString() + QLatin1Char('=')
                    + index.data(CommandListModel::ShortcutRole).toString();
        }
        return rows;
    }

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), R"(<commands>
  <command uuid="node" name="UI_APP_STATUS_READY" icon="Images/node.svg" shortcut="Ctrl+Shift+N"/>
  <command uuid="move" name="UI_NO_SUCH_TEXT" group="edit" parameters="mode=drag"/>
  <command uuid="delete" name="UI_X" shortcut="Del" enabled="false"/>
</commands>)");
        m_catalog = m_host->StartServices();
        m_model = std::make_unique<CommandListModel>();
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_catalog.reset();
        m_host.reset();
    }

    void shouldListTheCommandsInTheRepositoryOrder()
    {
        QCOMPARE(Rows(), QStringList({ "node=Ctrl+Shift+N", "move=", "delete=Del" }));
        const QModelIndex move = m_model->index(1, 0);
        QCOMPARE(move.data(CommandListModel::ParameterStringRole).toString(), QStringLiteral("mode=drag"));
        QCOMPARE(m_model->index(2, 0).data(CommandListModel::EnabledRole).toBool(), false);
        QCOMPARE(m_model->index(0, 0).data(CommandListModel::IconRole).toUrl(),
                 QUrl::fromLocalFile(m_host->FilePath(QStringLiteral("Images/node.svg"))));
        QCOMPARE(move.data(CommandListModel::IconRole).toString(), QString());
        // Names come from the string table; a name without a text shows its identifier.
        QCOMPARE(m_model->commandName(QStringLiteral("node")), QStringLiteral("Ready"));
        QCOMPARE(m_model->commandName(QStringLiteral("move")), QStringLiteral("UI_NO_SUCH_TEXT"));
        QCOMPARE(m_model->commandName(QStringLiteral("unknown")), QStringLiteral("unknown"));
    }

    void shouldChangeOneShortcutWithoutAReset()
    {
        QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        EventRecorder<CommandShortcutChange> announcements(*m_catalog->Get<EventBus>());

        QVERIFY(!m_model->setShortcut(QStringLiteral("unknown"), QStringLiteral("Ctrl+U")));
        QVERIFY(!m_model->setShortcut(QStringLiteral("node"), QStringLiteral("Ctrl+Nonsense")));
        QVERIFY(m_model->setShortcut(QStringLiteral("move"), QStringLiteral(" Ctrl+M ")));

        // The repository announced it, and only that row changed, so views keep their place
        QCOMPARE(announcements.Count(), 1u);
        QCOMPARE(Rows(), QStringList({ "node=Ctrl+Shift+N", "move=Ctrl+M", "delete=Del" }));
        QCOMPARE(reset.count(), 0);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().at(0).toModelIndex().row(), 1);
    }

    void shouldReadEverythingAgainAfterAReload()
    {
        QSignalSpy countChanged(m_model.get(), &CommandListModel::countChanged);
        auto repository = std::dynamic_pointer_cast<CommandRepository>(m_catalog->Get<ICommandRepository>());

        QVERIFY(repository->LoadString(
            LR"(<commands><command uuid="c" name="UI_C" shortcut="Ctrl+C"/></commands>)"));

        QCOMPARE(Rows(), QStringList({ "c=Ctrl+C" }));
        QCOMPARE(countChanged.count(), 1);
    }

    void monitorShouldReportEveryCommandRun()
    {
        CommandExecutionMonitor monitor;
        QSignalSpy executed(&monitor, &CommandExecutionMonitor::commandExecuted);
        auto processor = m_catalog->Get<IUICommandProcessor>();

        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("\\(node\\) run by test"));
        QVERIFY(processor->ExecuteCommand(L"node", L"x=1", L"test"));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("disabled"));
        QVERIFY(!processor->ExecuteCommand(L"delete", L"", L"test"));

        QCOMPARE(executed.count(), 1);
        QCOMPARE(executed.first(), QVariantList({ "node", "x=1", "test" }));
        QCOMPARE(monitor.executedCount(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_CommandListModel)
#include "tst_commandlistmodel.moc"
