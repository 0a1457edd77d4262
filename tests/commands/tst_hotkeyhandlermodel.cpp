#include "EventRecorder.h"
#include "commands/CommandRepository.h"
#include "commands/HotkeyHandlerModel.h"
#include "commands/UICommandProcessor.h"
#include "events/CommandExecuted.h"
#include "events/CommandShortcutChange.h"
#include "events/MessageBoxVisibleChanged.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::Events;
using Orvo::UI::UIComponents::HotkeyHandlerModel;

namespace {

// Reaches rows the model would not hand out through index(), as a stale view might ask for.
class ProbedModel : public HotkeyHandlerModel
{
public:
    using HotkeyHandlerModel::HotkeyHandlerModel;
    QModelIndex RawIndex(int row, int column) const { return createIndex(row, column); }
};

QStringList g_debugRecords;

void CaptureDebugOutput(QtMsgType, const QMessageLogContext& context, const QString& message)
{
    if (qstrcmp(context.category, "orvo.debug") == 0)
        g_debugRecords << message;
}

} // namespace

class tst_HotkeyHandlerModel : public QObject
{
    Q_OBJECT

    std::shared_ptr<EventBus> m_eventbus;
    std::shared_ptr<CommandRepository> m_repository;
    std::unique_ptr<ProbedModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;

    // Each command as "uuid:shortcut:parameters", in file order.
    void Load(const QStringList& commands)
    {
        QString xml = QStringLiteral("<commands>");
        for (const QString& command : commands) {
            const QStringList parts = command.split(QLatin1Char(':'));
            xml += QStringLiteral("<command uuid=\"%1\" name=\"UI_X\" shortcut=\"%2\" parameters=\"%3\"/>")
                       .arg(parts.value(0), parts.value(1), parts.value(2));
        }
        QVERIFY(m_repository->LoadString((xml + QStringLiteral("</commands>")).toStdWString()));
    }

    // The rows as "uuid=shortcut|parameters".
    QStringList Rows() const
    {
        QStringList rows;
        for (int row = 0; row < m_model->rowCount(); ++row) {
            const QModelIndex index = m_model->index(row, 0);
            rows << QStringLiteral("%1=%2|%3")
                        .arg(index.data(HotkeyHandlerModel::CmdUuidRole).toString(),
                             index.data(HotkeyHandlerModel::CmdShortcutRole).toString(),
                             index.data(HotkeyHandlerModel::CmdParameterStringRole).toString());
        }
        return rows;
    }

private slots:
    void init()
    {
        m_eventbus = std::make_shared<EventBus>();
        m_repository = std::make_shared<CommandRepository>(m_eventbus);
        m_model = std::make_unique<ProbedModel>(nullptr, m_eventbus);
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
    }

    void shouldMirrorTheBindingsWithOneReturnRowForEnter_data()
    {
        QTest::addColumn<QStringList>("commands");
        QTest::addColumn<QStringList>("expectedRows");
        QTest::newRow("no entries") << QStringList() << QStringList();
        QTest::newRow("commands without shortcut have no row")
            << QStringList { "a:Ctrl+A:", "b::p", "c:Del:" } << QStringList { "a=Ctrl+A|", "c=Del|" };
        QTest::newRow("Enter answers Return too")
            << QStringList { "a:Ctrl+A:first", "b:Enter:second" }
            << QStringList { "a=Ctrl+A|first", "b=Enter|second", "b=Return|second" };
        QTest::newRow("Enter then Return: the later is repeated")
            << QStringList { "a:Enter:x", "b:Return:y" }
            << QStringList { "a=Enter|x", "b=Return|y", "b=Return|y" };
        QTest::newRow("Return then Enter: the later is repeated, last")
            << QStringList { "a:Return:x", "b:Enter:y", "c:F2:" }
            << QStringList { "a=Return|x", "b=Enter|y", "c=F2|", "b=Return|y" };
        QTest::newRow("Enter with a modifier is another binding")
            << QStringList { "a:Ctrl+Enter:", "b:Shift+Return:" }
            << QStringList { "a=Ctrl+Enter|", "b=Shift+Return|" };
    }

    void shouldMirrorTheBindingsWithOneReturnRowForEnter()
    {
        QFETCH(QStringList, commands);
        QFETCH(QStringList, expectedRows);
        Load(commands);

        m_model->SetCommandRepository(m_repository);

        QCOMPARE(Rows(), expectedRows);
    }

    void shouldReadTheListAgainWhenAShortcutChanges()
    {
        Load({ "a:Ctrl+A:", "b:Ctrl+B:" });
        m_model->SetCommandRepository(m_repository);
        QSignalSpy aboutToReset(m_model.get(), &QAbstractItemModel::modelAboutToBeReset);
        QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);

        QVERIFY(m_repository->SetShortcut(L"a", L"Enter"));
        QCOMPARE(Rows(), QStringList({ "a=Enter|", "b=Ctrl+B|", "a=Return|" }));
        QCOMPARE(aboutToReset.count(), 1);
        QCOMPARE(reset.count(), 1);

        // Removing the binding takes the extra row with it
        QVERIFY(m_repository->SetShortcut(L"a", L""));
        QCOMPARE(Rows(), QStringList({ "b=Ctrl+B|" }));
    }

    void shouldStayEmptyWithoutARepository()
    {
        QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
        m_eventbus->Post(CommandShortcutChange());
        QCOMPARE(reset.count(), 1);
        QCOMPARE(m_model->rowCount(), 0);
    }

    void shouldGiveNothingOutsideItsRowsAndRoles_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("role");
        const int uuidRole = HotkeyHandlerModel::CmdUuidRole;
        QTest::newRow("row rowCount(), after the extra row") << 3 << 0 << uuidRole;
        QTest::newRow("negative row") << -1 << 0 << uuidRole;
        QTest::newRow("second column") << 0 << 1 << uuidRole;
        QTest::newRow("display role") << 0 << 0 << int(Qt::DisplayRole);
        QTest::newRow("role after the last") << 2 << 0 << int(HotkeyHandlerModel::CmdParameterStringRole) + 1;
    }

    void shouldGiveNothingOutsideItsRowsAndRoles()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(int, role);
        Load({ "a:Ctrl+A:", "b:Enter:" });
        m_model->SetCommandRepository(m_repository);
        QCOMPARE(m_model->rowCount(), 3);

        QVERIFY(!m_model->data(m_model->RawIndex(row, column), role).isValid());
    }

    void shouldSwitchShortcutsOffWhileAMessageBoxIsVisible()
    {
        QSignalSpy enabledChanged(m_model.get(), &HotkeyHandlerModel::shortcutsEnabledChanged);
        QVERIFY(m_model->shortcutsEnabled());

        m_eventbus->Post(MessageBoxVisibleChanged(true));
        m_eventbus->Post(MessageBoxVisibleChanged(true));
        QVERIFY(!m_model->shortcutsEnabled());
        QCOMPARE(enabledChanged.count(), 1);

        m_eventbus->Post(MessageBoxVisibleChanged(false));
        QVERIFY(m_model->shortcutsEnabled());
        QCOMPARE(enabledChanged.count(), 2);
    }

    void shouldHandTheCommandToTheProcessor()
    {
        Load({ "a:Ctrl+A:", "b:Enter:" });
        EventRecorder<CommandExecuted> executed(*m_eventbus);

        QTest::ignoreMessage(QtDebugMsg, "No command processor: the hotkey for command b runs nothing");
        m_model->commandSelected(QStringLiteral("b"), QStringLiteral("depth=2"));
        QCOMPARE(executed.Count(), 0u);

        m_model->SetUICommandProcessor(std::make_shared<UICommandProcessor>(m_repository, m_eventbus));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("\\(b\\) run by HotkeyHandler"));
        m_model->commandSelected(QStringLiteral("b"), QStringLiteral("depth=2"));
        QCOMPARE(executed.Count(), 1u);
        QCOMPARE(executed.Last().GetParameterString(), std::wstring(L"depth=2"));
        QCOMPARE(executed.Last().GetOrigin(), std::wstring(L"HotkeyHandler"));
    }

    void shouldLogOneLinePerMessage()
    {
        g_debugRecords.clear();
        const QtMessageHandler previous = qInstallMessageHandler(CaptureDebugOutput);
        m_model->logDebugMessage(QStringLiteral("Hotkey activated: Ctrl+Shift+N"));
        qInstallMessageHandler(previous);
        // The line feed ends the message's line: one record, and no empty one after it.
        QCOMPARE(g_debugRecords, QStringList { "Hotkey activated: Ctrl+Shift+N" });
    }
};

QTEST_GUILESS_MAIN(tst_HotkeyHandlerModel)
#include "tst_hotkeyhandlermodel.moc"
