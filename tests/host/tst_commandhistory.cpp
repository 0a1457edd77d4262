#include "TestHost.h"
#include "commands/CommandHistory.h"
#include "commands/CommandOrigin.h"
#include "events/CommandExecuted.h"
#include "framework/EventBus.h"
#include "qtextensions/CommandHistoryModel.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Orvo::Kernel::Framework;
using Orvo::UI::Events::CommandExecuted;
using Orvo::UI::QtExtensions::CommandHistoryModel;

namespace {

const QByteArray c_commands = R"(<commands>
  <command uuid="move" name="UI_COMMAND_MOVE"/>
  <command uuid="copy" name="UI_COMMAND_COPY"/>
</commands>)";

QStringList Rows(const CommandHistoryModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        rows << QStringLiteral("%1|%2|%3")
                    .arg(index.data(CommandHistoryModel::NameRole).toString(),
                         index.data(CommandHistoryModel::ParametersRole).toString(),
                         index.data(CommandHistoryModel::OriginRole).toString());
    }
    return rows;
}

} // namespace

// What the application ran, for logs opened at any time.
class tst_CommandHistory : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), c_commands);
        m_catalog = m_host->StartServices();
        m_eventbus = m_catalog->Get<EventBus>();
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void shouldListCommandsRunBeforeTheModelExisted()
    {
        // Given commands that ran before any log was opened
        m_eventbus->Post(CommandExecuted(L"move", L"mode=drag", L"MarkingMenu"));
        m_eventbus->Post(CommandExecuted(L"copy", L"", L"HotkeyHandler"));

        // When a log opens, and then a command runs
        CommandHistoryModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        QVERIFY(inserted.isValid());
        QCOMPARE(Rows(model), QStringList({ "Copy||Keyboard shortcut", "Move|mode=drag|Marking menu" }));
        m_eventbus->Post(CommandExecuted(L"unknown", L"", L"SomeTool"));

        // Then it lists them all, latest first, by the names users know
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(inserted.first().at(1).toInt(), 0);
        QCOMPARE(
            Rows(model),
            QStringList({ "unknown||SomeTool", "Copy||Keyboard shortcut", "Move|mode=drag|Marking menu" }));
    }

    void shouldKeepOnlyTheLatestRecords()
    {
        CommandHistoryModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (std::size_t i = 0; i < CommandHistory::c_capacity + 3; ++i)
            m_eventbus->Post(
                CommandExecuted(i % 2 ? L"move" : L"copy", std::to_wstring(i), L"HotkeyHandler"));

        QCOMPARE(model.rowCount(), int(CommandHistory::c_capacity));
        QCOMPARE(model.index(0).data(CommandHistoryModel::ParametersRole).toString(),
                 QString::number(CommandHistory::c_capacity + 2));
        QCOMPARE(model.index(model.rowCount() - 1).data(CommandHistoryModel::ParametersRole).toString(),
                 QStringLiteral("3"));
    }

    void shouldNameOriginsForPeople_data()
    {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QString>("name");
        QTest::newRow("marking menu") << "MarkingMenu"
                                      << "Marking menu";
        QTest::newRow("hotkeys") << "HotkeyHandler"
                                 << "Keyboard shortcut";
        QTest::newRow("no text of its own") << "ReportPreview"
                                            << "ReportPreview";
        QTest::newRow("none") << ""
                              << "";
    }

    void shouldNameOriginsForPeople()
    {
        QFETCH(QString, origin);
        QFETCH(QString, name);
        QCOMPARE(QString::fromStdWString(CommandOrigin::DisplayName(origin.toStdWString())), name);
    }

private:
    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;
    std::shared_ptr<EventBus> m_eventbus;
};

QTEST_GUILESS_MAIN(tst_CommandHistory)
#include "tst_commandhistory.moc"
