#include "TestHost.h"
#include "commands/CommandRepository.h"
#include "commands/ICommandRepository.h"
#include "commands/IUICommandProcessor.h"
#include "commands/RecentFiles.h"
#include "commands/UICommandProcessor.h"
#include "events/CommandExecuted.h"
#include "framework/EventBus.h"
#include "menusystem/MenuItemsFilterModel.h"
#include "menusystem/MenuItemsModel.h"
#include "menusystem/MenuSystem.h"
#include "menusystem/SubcommandsModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::UIComponents;

namespace {

const char* const c_commands = R"(<commands>
  <command uuid="c6d02f75-d199-457a-9a4d-f1246cb8feb4" name="UI_COMMAND_UNDO" shortcut="Ctrl+Z"/>
  <command uuid="move" name="UI_COMMAND_MOVE" shortcut="Ctrl+M"/>
  <command uuid="copy" name="UI_COMMAND_COPY"/>
  <command uuid="delete" name="UI_COMMAND_DELETE" shortcut="Del"/>
  <command uuid="member" name="UI_COMMAND_NEW_MEMBER"/>
  <command uuid="support" name="UI_COMMAND_NEW_SUPPORT"/>
  <command uuid="results" name="UI_COMMAND_SHOW_RESULTS" checkable="true"/>
  <command uuid="open" name="UI_COMMAND_OPEN"/>
</commands>)";

const char* const c_menus = R"(<menus>
  <menu id="edit" name="UI_MENU_EDIT">
    <command uuid="c6d02f75-d199-457a-9a4d-f1246cb8feb4"/>
    <separator/>
    <command uuid="move"/>
    <command uuid="copy"/>
    <separator/>
    <separator/>
    <command uuid="delete"/>
    <unknown/>
  </menu>
  <menu id="model" name="UI_MENU_MODEL">
    <command uuid="member">
      <subcommand name="UI_SUBCOMMAND_LINE" parameters="shape=line"/>
      <subcommand name="UI_SUBCOMMAND_ARC" parameters="shape=arc"/>
    </command>
    <menu id="model.supports" name="UI_MENU_SUPPORTS">
      <command uuid="support"/>
    </menu>
  </menu>
  <menu id="file" name="UI_MENU_FILE">
    <command uuid="open"/>
    <separator/>
    <recentfiles command="open"/>
    <separator/>
    <command uuid="results"/>
  </menu>
  <contextmenu id="context.object" name="UI_MENU_OBJECT">
    <command uuid="move"/>
    <command uuid="delete"/>
  </contextmenu>
</menus>)";

QStringList Texts(const QAbstractItemModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex item = model.index(row, 0);
        texts << (item.data(MenuItemsModel::ItemTypeRole).toInt() == MenuItemsModel::SeparatorItem
                      ? QStringLiteral("-")
                      : item.data(MenuItemsModel::TextRole).toString());
    }
    return texts;
}

} // namespace

class tst_MenuSystem : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;

    std::shared_ptr<ICommandRepository> Repository() const { return m_catalog->Get<ICommandRepository>(); }

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), c_commands);
        m_host->WriteFile(QStringLiteral("Configuration/Menus.xml"), c_menus);
        m_catalog = m_host->StartServices();
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void menusShouldShowWhatTheCommandsAllow_data()
    {
        QTest::addColumn<QStringList>("hidden");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("all shown, doubled separator once")
            << QStringList() << QStringList { "Undo", "-", "Move", "Copy", "-", "Delete" };
        QTest::newRow("a group hidden takes its separator")
            << QStringList { "move", "copy" } << QStringList { "Undo", "-", "Delete" };
        QTest::newRow("nothing before a separator") << QStringList { "c6d02f75-d199-457a-9a4d-f1246cb8feb4" }
                                                    << QStringList { "Move", "Copy", "-", "Delete" };
        QTest::newRow("nothing after a separator")
            << QStringList { "delete" } << QStringList { "Undo", "-", "Move", "Copy" };
    }

    void menusShouldShowWhatTheCommandsAllow()
    {
        QFETCH(QStringList, hidden);
        QFETCH(QStringList, expected);
        MenuSystem menus;
        MenuItemsFilterModel shown;
        QAbstractItemModelTester tester(&shown, QAbstractItemModelTester::FailureReportingMode::QtTest);
        shown.setSourceModel(menus.menuItems(QStringLiteral("edit")));
        for (const QString& uuid : hidden)
            Repository()->SetCommandVisible(uuid.toStdWString(), false);
        QCOMPARE(Texts(shown), expected);
    }

    void statesShouldFollowTheCommands()
    {
        MenuSystem menus;
        MenuItemsModel* edit = menus.menuItems(QStringLiteral("edit"));
        QAbstractItemModelTester tester(edit, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy changed(edit, &QAbstractItemModel::dataChanged);
        const int moveRow = Texts(*edit).indexOf(QStringLiteral("Move"));
        QVERIFY(edit->index(moveRow).data(MenuItemsModel::EnabledRole).toBool());
        Repository()->SetCommandEnabled(L"move", false);
        QVERIFY(!edit->index(moveRow).data(MenuItemsModel::EnabledRole).toBool());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().at(0).toModelIndex().row(), moveRow);
        QVERIFY(!edit->trigger(moveRow));
        Repository()->SetShortcut(L"move", L"Ctrl+Shift+V");
        QCOMPARE(edit->index(moveRow).data(MenuItemsModel::ShortcutRole).toString(),
                 QStringLiteral("Ctrl+Shift+V"));
    }

    void triggeringShouldRunCommandsWithTheirParameters()
    {
        std::vector<std::pair<std::wstring, std::wstring>> executed;
        auto connection = m_catalog->Get<EventBus>()->Subscribe<Orvo::UI::Events::CommandExecuted>(
            [&](const auto& event) {
                executed.emplace_back(event.GetCommandUuid(), event.GetParameterString());
            });
        MenuSystem menus;
        MenuItemsModel* model = menus.menuItems(QStringLiteral("model"));
        QCOMPARE(Texts(*model), (QStringList { "New member", "Supports and hinges" }));
        QCOMPARE(model->index(1).data(MenuItemsModel::SubmenuIdRole).toString(),
                 QStringLiteral("model.supports"));
        QVERIFY(!model->trigger(1)); // a sub-menu is not a command
        QVERIFY(model->index(0).data(MenuItemsModel::HasSubcommandsRole).toBool());

        SubcommandsModel* variants = menus.subcommands(QStringLiteral("member"));
        QAbstractItemModelTester tester(variants, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(variants->rowCount(), 2);
        QVERIFY(variants->trigger(1));
        QVERIFY(model->trigger(0));
        QCOMPARE(executed.size(), std::size_t(2));
        QVERIFY(executed[0] == std::make_pair(std::wstring(L"member"), std::wstring(L"shape=arc")));
        QVERIFY(executed[1].first == L"member");
        Repository()->SetCommandEnabled(L"member", false);
        QVERIFY(!variants->trigger(0));
        QVERIFY(!variants->trigger(5));
    }

    void searchShouldFindCommandsInEveryMenu_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<bool>("regularExpression");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("by name") << "move" << false << QStringList { "Move" };
        QTest::newRow("by menu path") << "supports" << false << QStringList { "New support" };
        QTest::newRow("words in any order") << "member new" << false << QStringList { "New member" };
        QTest::newRow("nothing") << "girder" << false << QStringList {};
        QTest::newRow("characters a pattern escapes") << "new (" << false << QStringList {};
        // A host's own pattern keeps its meaning: "\\b" is a word start, not the letter b.
        QTest::newRow("a regular expression") << "^New \\bm" << true << QStringList { "New member" };
        QTest::newRow("any character in a pattern") << "^Mo.e\\b" << true << QStringList { "Move" };
    }

    void searchShouldFindCommandsInEveryMenu()
    {
        QFETCH(QString, search);
        QFETCH(bool, regularExpression);
        QFETCH(QStringList, expected);
        MenuSystem menus;
        MenuItemsFilterModel found;
        QAbstractItemModelTester tester(&found, QAbstractItemModelTester::FailureReportingMode::QtTest);
        found.setSourceModel(menus.allCommands());
        if (regularExpression)
            found.setFilterRegularExpression(search);
        else
            found.setFilterFixedString(search);
        QCOMPARE(Texts(found), expected);
    }

    void checkableCommandsShouldShowWhetherTheyAreOn()
    {
        MenuSystem menus;
        MenuItemsModel* file = menus.menuItems(QStringLiteral("file"));
        QAbstractItemModelTester tester(file, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const int resultsRow = Texts(*file).indexOf(QStringLiteral("Show results"));
        const QModelIndex results = file->index(resultsRow);
        QVERIFY(results.data(MenuItemsModel::CheckableRole).toBool());
        QVERIFY(!results.data(MenuItemsModel::CheckedRole).toBool());
        QVERIFY(!file->index(0).data(MenuItemsModel::CheckableRole).toBool());
        QSignalSpy changed(file, &QAbstractItemModel::dataChanged);
        // Running a checkable command switches it over, as the menu shows.
        QVERIFY(file->trigger(resultsRow));
        QVERIFY(results.data(MenuItemsModel::CheckedRole).toBool());
        QCOMPARE(changed.count(), 1);
        QVERIFY(changed.first().at(2).value<QList<int>>().contains(MenuItemsModel::CheckedRole));
        QVERIFY(file->trigger(resultsRow));
        QVERIFY(!results.data(MenuItemsModel::CheckedRole).toBool());
        // A command that does not switch anything cannot be on.
        QVERIFY(!Repository()->SetCommandChecked(L"open", true));
    }

    void undoAndRedoShouldBeEnabledWhileTheStackAllows()
    {
        auto stack = m_catalog->Get<QUndoStack>();
        MenuSystem menus;
        MenuItemsModel* edit = menus.menuItems(QStringLiteral("edit"));
        const QModelIndex undo = edit->index(0);
        QVERIFY(!undo.data(MenuItemsModel::EnabledRole).toBool());
        QVERIFY(!edit->trigger(0));
        stack->push(new QUndoCommand(QStringLiteral("change")));
        QVERIFY(undo.data(MenuItemsModel::EnabledRole).toBool());
        QVERIFY(edit->trigger(0));
        QVERIFY(!undo.data(MenuItemsModel::EnabledRole).toBool());
        QVERIFY(!stack->canUndo());
        // Reloading the commands brings back the file's states; the stack still decides.
        m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), c_commands);
        stack->redo();
        QVERIFY(
            std::dynamic_pointer_cast<CommandRepository>(Repository())
                ->LoadFile(m_host->FilePath(QStringLiteral("Configuration/Commands.xml")).toStdWString()));
        QVERIFY(undo.data(MenuItemsModel::EnabledRole).toBool());
    }

    void recentFilesShouldBeListedWhereTheMenuSays_data()
    {
        QTest::addColumn<QStringList>("opened");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("none: no doubled separator")
            << QStringList() << QStringList { "Open…", "-", "Show results" };
        QTest::newRow("most recent first")
            << QStringList { "/models/a.orvo", "/models/b.orvo" }
            << QStringList { "Open…", "-", "b.orvo", "a.orvo", "-", "Show results" };
        QTest::newRow("opened again moves to the top")
            << QStringList { "/models/a.orvo", "/models/b.orvo", "/models/a.orvo" }
            << QStringList { "Open…", "-", "a.orvo", "b.orvo", "-", "Show results" };
    }

    void recentFilesShouldBeListedWhereTheMenuSays()
    {
        QFETCH(QStringList, opened);
        QFETCH(QStringList, expected);
        auto processor = m_catalog->Get<IUICommandProcessor>();
        MenuSystem menus;
        MenuItemsFilterModel shown;
        QAbstractItemModelTester tester(&shown, QAbstractItemModelTester::FailureReportingMode::QtTest);
        shown.setSourceModel(menus.menuItems(QStringLiteral("file")));
        for (const QString& file : opened)
            QVERIFY(processor->ExecuteCommand(L"open", L"file=" + file.toStdWString(), L"test"));
        QCOMPARE(Texts(shown), expected);
    }

    void aRecentFileShouldOpenWithItsCommand()
    {
        std::vector<std::wstring> parameters;
        auto connection = m_catalog->Get<EventBus>()->Subscribe<Orvo::UI::Events::CommandExecuted>(
            [&](const auto& event) { parameters.push_back(event.GetParameterString()); });
        auto recentFiles = m_catalog->Get<RecentFiles>();
        recentFiles->Add(QStringLiteral("/models/a.orvo"));
        recentFiles->Add(QStringLiteral("/models/b.orvo"));
        MenuSystem menus;
        MenuItemsModel* file = menus.menuItems(QStringLiteral("file"));
        const int aRow = Texts(*file).indexOf(QStringLiteral("a.orvo"));
        QCOMPARE(file->index(aRow).data(MenuItemsModel::FileRole).toString(),
                 QStringLiteral("/models/a.orvo"));
        QVERIFY(file->trigger(aRow));
        QCOMPARE(parameters, std::vector<std::wstring> { L"file=/models/a.orvo" });
        QCOMPARE(recentFiles->Files(), (QStringList { "/models/a.orvo", "/models/b.orvo" }));
        // Kept for the next session.
        RecentFiles reread(m_host->FilePath(QStringLiteral("user/RecentFiles.txt")).toStdWString(), nullptr);
        QCOMPARE(reread.Files(), recentFiles->Files());
    }

    void contextMenusShouldStayOutOfTheMenuBar()
    {
        MenuSystem menus;
        QCOMPARE(Texts(*menus.menuBar()), (QStringList { "Edit", "Model", "File" }));
        QCOMPARE(Texts(*menus.menuItems(QStringLiteral("context.object"))),
                 (QStringList { "Move", "Delete" }));
        MenuItemsFilterModel found;
        found.setSourceModel(menus.allCommands());
        found.setFilterFixedString(QStringLiteral("delete"));
        QCOMPARE(found.rowCount(), 1);
    }

    void aMissingDefinitionShouldLeaveEmptyMenus()
    {
        QFile::remove(m_host->FilePath(QStringLiteral("Configuration/Menus.xml")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Loading the menus")));
        MenuSystem menus;
        QCOMPARE(menus.menuBar()->rowCount(), 0);
    }
};

QTEST_MAIN(tst_MenuSystem)
#include "tst_menusystem.moc"
