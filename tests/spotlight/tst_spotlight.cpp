#include "TestHost.h"
#include "commands/ICommandRepository.h"
#include "commands/RunningCommand.h"
#include "events/CommandExecuted.h"
#include "events/RunningCommandEvents.h"
#include "framework/EventBus.h"
#include "model/ModelGenerator.h"
#include "model/ObjectIds.h"
#include "properties/StructuralModel.h"
#include "spotlight/Spotlight.h"
#include "spotlight/SpotlightModel.h"
#include "spotlight/SpotlightProxyModel.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::UIComponents;
using Orvo::Kernel::Model::ObjectKind;

namespace {

const char* const c_commands = R"(<commands>
  <command uuid="new-node" name="UI_COMMAND_NEW_NODE" group="model" shortcut="Ctrl+Shift+N"/>
  <command uuid="new-member" name="UI_COMMAND_NEW_MEMBER" group="model" shortcut="Ctrl+Shift+M"/>
  <command uuid="new-support" name="UI_COMMAND_NEW_SUPPORT" group="model"/>
  <command uuid="member-load" name="UI_COMMAND_MEMBER_LOAD" group="loads"/>
  <command uuid="load-case" name="UI_COMMAND_NEW_LOAD_CASE" group="loads"/>
  <command uuid="combinations" name="UI_COMMAND_LOAD_COMBINATIONS" group="loads"/>
  <command uuid="move" name="UI_COMMAND_MOVE" group="edit" shortcut="Ctrl+M" parameters="mode=drag"/>
  <command uuid="delete" name="UI_COMMAND_DELETE" group="edit" shortcut="Del"/>
  <command uuid="hidden" name="UI_COMMAND_MIRROR" group="edit" visible="false"/>
</commands>)";

QStringList Titles(const QAbstractItemModel& model, int atMost = 100)
{
    QStringList titles;
    for (int row = 0; row < model.rowCount() && row < atMost; ++row)
        titles << model.index(row, 0).data(SpotlightModel::TitleRole).toString();
    return titles;
}

QStringList Sections(const QAbstractItemModel& model)
{
    QStringList sections;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString section = model.index(row, 0).data(SpotlightProxyModel::SectionRole).toString();
        if (sections.isEmpty() || sections.back() != section)
            sections << section;
    }
    return sections;
}

} // namespace

class tst_Spotlight : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;

    std::shared_ptr<StructuralModel> Model() const { return m_catalog->Get<StructuralModel>(); }
    std::shared_ptr<RunningCommand> Running() const { return m_catalog->Get<RunningCommand>(); }

    // The spotlight's rows for a search, as the list shows them.
    struct Search
    {
        SpotlightModel model;
        SpotlightProxyModel results;
        QAbstractItemModelTester modelTester { &model,
                                               QAbstractItemModelTester::FailureReportingMode::QtTest };
        QAbstractItemModelTester resultsTester { &results,
                                                 QAbstractItemModelTester::FailureReportingMode::QtTest };

        Search() { results.setSourceModel(&model); }
        void Type(const QString& text)
        {
            model.setQuery(text);
            results.setSearchText(text);
        }
    };

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), c_commands);
        m_catalog = m_host->StartServices();
        // Sections "HEB 300" and "IPE 400", materials, load cases and combinations with names;
        // members and nodes are numbered only.
        Model()->Replace([](Orvo::Kernel::Model::Structure& structure) {
            Orvo::Kernel::Model::ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 });
        });
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void shouldRankTheIntendedItemFirst_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("firstSection");
        QTest::newRow("exact name") << "new member"
                                    << "New member"
                                    << "Commands";
        QTest::newRow("typo") << "new memebr"
                              << "New member"
                              << "Commands";
        QTest::newRow("word order") << "member new"
                                    << "New member"
                                    << "Commands";
        QTest::newRow("synonym") << "beam"
                                 << "New member"
                                 << "Commands";
        QTest::newRow("shortcut") << "ctrl m"
                                  << "Move"
                                  << "Commands";
        QTest::newRow("section name") << "ipe 400"
                                      << "IPE 400"
                                      << "Objects";
        QTest::newRow("section name with a typo") << "heb 300"
                                                  << "HEB 300"
                                                  << "Objects";
        QTest::newRow("object by number") << "member 2"
                                          << "Member 2"
                                          << "Answers";
        QTest::newRow("object by number, words swapped") << "2 node"
                                                         << "Node 2"
                                                         << "Answers";
        QTest::newRow("table") << "nodes table"
                               << "Nodes"
                               << "Tables";
        QTest::newRow("setting") << "zoom sensitivty"
                                 << "Zoom sensitivity"
                                 << "Settings";
        QTest::newRow("a setting of the profile") << "country"
                                                  << "Country"
                                                  << "Settings";
        QTest::newRow("calculation") << "=2*3"
                                     << "6"
                                     << "Answers";
    }

    void shouldRankTheIntendedItemFirst()
    {
        QFETCH(QString, search);
        QFETCH(QString, first);
        QFETCH(QString, firstSection);
        Search spotlight;
        spotlight.Type(search);
        QVERIFY2(spotlight.results.rowCount() > 0, qPrintable(search));
        QCOMPARE(Titles(spotlight.results, 1), QStringList { first });
        QCOMPARE(spotlight.results.index(0, 0).data(SpotlightProxyModel::SectionRole).toString(),
                 firstSection);
    }

    void shouldGroupByKindBestGroupFirst()
    {
        Search spotlight;
        spotlight.Type(QStringLiteral("load"));
        // The commands about loads match better than the load cases' names.
        const QStringList sections = Sections(spotlight.results);
        QCOMPARE(QSet<QString>(sections.cbegin(), sections.cend()).size(),
                 sections.size()); // each group once
        QCOMPARE(sections.first(), QStringLiteral("Commands"));
        QVERIFY(sections.contains(QStringLiteral("Objects")));
    }

    void shouldLeaveOutHiddenCommandsAndShowDisabledOnes()
    {
        m_catalog->Get<ICommandRepository>()->SetCommandEnabled(L"delete", false);
        Search spotlight;
        spotlight.Type(QStringLiteral("mirror"));
        QVERIFY(!Titles(spotlight.results).contains(QStringLiteral("Mirror")));
        spotlight.Type(QStringLiteral("delete"));
        QCOMPARE(Titles(spotlight.results, 1), QStringList { QStringLiteral("Delete") });
        QVERIFY(!spotlight.results.index(0, 0).data(SpotlightModel::EnabledRole).toBool());
    }

    void shouldPutRecentChoicesFirst()
    {
        Search spotlight;
        spotlight.Type(QString());
        QCOMPARE(spotlight.results.rowCount(), 0);

        spotlight.model.setRecentKeys(
            { QStringLiteral("Command:member-load"), QStringLiteral("Command:new-node") });
        QCOMPARE(Titles(spotlight.results),
                 (QStringList { QStringLiteral("Member load"), QStringLiteral("New node") }));
        QCOMPARE(Sections(spotlight.results), QStringList { QStringLiteral("Recent") });

        // Typing: a recent choice comes first among equally good matches of its group.
        spotlight.Type(QStringLiteral("new"));
        QCOMPARE(Titles(spotlight.results, 1), QStringList { QStringLiteral("New node") });
        spotlight.Type(QStringLiteral("member"));
        QCOMPARE(Titles(spotlight.results, 1), QStringList { QStringLiteral("Member load") });
    }

    void shouldOfferCoordinatesOnlyToARunningCommand_data()
    {
        QTest::addColumn<bool>("running");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("answer");
        QTest::newRow("no command runs") << false << "1 2 3" << QString();
        QTest::newRow("spaces") << true << "1 2 3"
                                << "(1; 2; 3)";
        QTest::newRow("semicolons and expressions") << true << "1;2*2;=3" << QString();
        QTest::newRow("expressions") << true << "1+1 2*2 3"
                                     << "(2; 4; 3)";
        QTest::newRow("a point in the plan") << true << "1.5 2"
                                             << "(1.5; 2; 0)";
        QTest::newRow("too many values") << true << "1 2 3 4" << QString();
        QTest::newRow("not a number") << true << "1 x 3" << QString();
    }

    void shouldOfferCoordinatesOnlyToARunningCommand()
    {
        QFETCH(bool, running);
        QFETCH(QString, typed);
        QFETCH(QString, answer);
        if (running)
            Running()->Start(L"new-member", L"UI_PROMPT_START_POINT", 3);
        Search spotlight;
        spotlight.Type(typed);
        const bool answered = spotlight.results.rowCount() > 0
            && spotlight.results.index(0, 0).data(SpotlightModel::KindRole).toInt()
                == SpotlightModel::Coordinates;
        QCOMPARE(answered, !answer.isEmpty());
        if (answered) {
            QCOMPARE(Titles(spotlight.results, 1), QStringList { answer });
            QCOMPARE(spotlight.results.index(0, 0).data(SpotlightModel::DetailRole).toString(),
                     QStringLiteral("Start point"));
        }
    }

    void answersShouldFollowTheQuery()
    {
        Search spotlight;
        spotlight.Type(QStringLiteral("=2*"));
        QCOMPARE(spotlight.results.rowCount(), 0);
        spotlight.Type(QStringLiteral("=2*3"));
        QCOMPARE(spotlight.results.rowCount(), 1);
        QCOMPARE(spotlight.results.index(0, 0).data(SpotlightModel::ValueRole).toDouble(), 6.0);
        // A number alone finds every kind's object of that number.
        spotlight.Type(QStringLiteral("3"));
        QVERIFY(Titles(spotlight.results).contains(QStringLiteral("Member 3")));
        QVERIFY(Titles(spotlight.results).contains(QStringLiteral("Node 3")));
        spotlight.Type(QStringLiteral("member 999"));
        QVERIFY(!Titles(spotlight.results).contains(QStringLiteral("Member 999")));
    }

    void activatingShouldDoWhatTheRowStandsFor()
    {
        Spotlight panel;
        QSignalSpy activated(&panel, &Spotlight::activated);
        std::vector<Orvo::UI::Events::CommandExecuted> executed;
        auto bus = m_catalog->Get<EventBus>();
        auto executedConnection = bus->Subscribe<Orvo::UI::Events::CommandExecuted>(
            [&](const auto& event) { executed.push_back(event); });

        // A command runs with its parameters, and becomes a recent choice.
        panel.setSearchText(QStringLiteral("move"));
        QVERIFY(panel.activate(0));
        QCOMPARE(executed.size(), std::size_t(1));
        QVERIFY(executed.front().GetCommandUuid() == L"move");
        QVERIFY(executed.front().GetParameterString() == L"mode=drag");
        QVERIFY(executed.front().GetOrigin() == L"Spotlight");
        QCOMPARE(panel.spotlightModel()->recentKeys(), QStringList { QStringLiteral("Command:move") });

        // A disabled command does not.
        m_catalog->Get<ICommandRepository>()->SetCommandEnabled(L"delete", false);
        panel.setSearchText(QStringLiteral("delete"));
        QVERIFY(!panel.activate(0));
        QCOMPARE(executed.size(), std::size_t(1));

        // An object is selected.
        QSignalSpy selected(&panel, &Spotlight::objectSelected);
        panel.setSearchText(QStringLiteral("member 4"));
        QVERIFY(panel.activate(0));
        const ObjectId member4 = Orvo::Kernel::Model::MakeObjectId(ObjectKind::Member, 4);
        QCOMPARE(Model()->Selection(), std::vector<ObjectId> { member4 });
        QCOMPARE(selected.count(), 1);

        // A calculation's result goes to the clipboard.
        panel.setSearchText(QStringLiteral("=1/4"));
        QVERIFY(panel.activate(0));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("0.25"));

        // Coordinates go to the running command.
        std::vector<double> offered;
        auto offeredConnection = bus->Subscribe<Orvo::UI::Events::CommandInputOffered>(
            [&](const auto& event) { offered = event.GetValues(); });
        Running()->Start(L"new-member", L"UI_PROMPT_START_POINT", 3);
        panel.setSearchText(QStringLiteral("1 2"));
        QVERIFY(panel.activate(0));
        QCOMPARE(offered, (std::vector<double> { 1.0, 2.0, 0.0 }));
        QCOMPARE(activated.count(), 4);
        QVERIFY(!panel.activate(99));
    }

    void recentChoicesShouldSurviveARestart_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QStringList>("recent");
        QTest::newRow("two") << R"({"recent":["Command:move","Object:33554434"]})"
                             << QStringList { QStringLiteral("Command:move"),
                                              QStringLiteral("Object:33554434") };
        QTest::newRow("repeats once") << R"({"recent":["Command:move","Command:move"]})"
                                      << QStringList { QStringLiteral("Command:move") };
        QTest::newRow("broken text") << "{recent" << QStringList();
        QTest::newRow("empty") << "" << QStringList();
    }

    void recentChoicesShouldSurviveARestart()
    {
        QFETCH(QString, stored);
        QFETCH(QStringList, recent);
        Spotlight panel;
        panel.loadConfiguration(stored);
        QCOMPARE(panel.spotlightModel()->recentKeys(), recent);
        Spotlight restarted;
        restarted.loadConfiguration(panel.saveConfiguration());
        QCOMPARE(restarted.spotlightModel()->recentKeys(), recent);
    }
};

QTEST_MAIN(tst_Spotlight)
#include "tst_spotlight.moc"
