#include "TestHost.h"
#include "commands/RunningCommand.h"
#include "inputpanel/FilterBarItemModel.h"
#include "inputpanel/FilterBarItemProxyModel.h"
#include "inputpanel/InputPanel.h"
#include "inputpanel/InputPanelContainerModel.h"
#include "inputpanel/InputPanelContainerProxyModel.h"
#include "inputpanel/InputPanelUserConfiguration.h"
#include "inputpanel/TagModel.h"

#include <QAbstractItemModelTester>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>
#include <cmath>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::UIComponents;

namespace {

const wchar_t* const c_move = L"34ecfcf1-2343-4e3d-adcb-722902af15fd";

CommandInput Number(const wchar_t* id, const wchar_t* group, const wchar_t* category, double value)
{
    CommandInput input;
    input.id = id;
    input.nameId = id;
    input.groupId = group;
    input.category = category;
    input.number = value;
    input.unit = L"m";
    return input;
}

// Move's inputs: a vector (geometry), how many copies (parameters), the objects (selection).
std::vector<CommandInput> MoveInputs()
{
    CommandInput copies;
    copies.id = L"copies";
    copies.groupId = L"UI_INPUT_GROUP_COPIES";
    copies.category = L"parameters";
    copies.kind = CommandInput::Kind::Choice;
    copies.choices = { L"move", L"copy" };
    CommandInput objects;
    objects.id = L"objects";
    objects.groupId = L"UI_INPUT_GROUP_OBJECTS";
    objects.category = L"selection";
    objects.kind = CommandInput::Kind::Objects;
    objects.objects = { 1, 2, 3 };
    return { Number(L"dx", L"UI_INPUT_GROUP_VECTOR", L"geometry", 1.0),
             Number(L"dy", L"UI_INPUT_GROUP_VECTOR", L"geometry", 0.0), copies, objects };
}

QStringList Containers(const QAbstractItemModel& model)
{
    QStringList ids;
    for (int row = 0; row < model.rowCount(); ++row)
        ids << model.index(row, 0).data(InputPanelContainerModel::ContainerIdRole).toString();
    return ids;
}

} // namespace

class tst_InputPanel : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;

    std::shared_ptr<RunningCommand> Command() const { return m_catalog->Get<RunningCommand>(); }

    void StartMove() const
    {
        Command()->Start(c_move, L"UI_PROMPT_START_POINT");
        Command()->SetInputs(MoveInputs());
    }

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile(
            QStringLiteral("Configuration/Commands.xml"),
            R"(<commands><command uuid="34ecfcf1-2343-4e3d-adcb-722902af15fd" name="UI_COMMAND_MOVE"/></commands>)");
        m_catalog = m_host->StartServices();
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void containersShouldFollowTheRunningCommand()
    {
        InputPanelContainerModel containers;
        QAbstractItemModelTester tester(&containers, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(containers.rowCount(), 0);
        StartMove();
        QCOMPARE(
            Containers(containers),
            (QStringList { "UI_INPUT_GROUP_VECTOR", "UI_INPUT_GROUP_COPIES", "UI_INPUT_GROUP_OBJECTS" }));
        const QVariantList vector = containers.index(0).data(InputPanelContainerModel::FieldsRole).toList();
        QCOMPARE(vector.size(), 2);
        QCOMPARE(vector[1].toMap().value("inputId").toString(), QStringLiteral("dy"));
        QCOMPARE(vector[0].toMap().value("kind").toInt(), int(InputPanelContainerModel::NumberField));

        // A changed value updates its own container, without a reset.
        QSignalSpy changed(&containers, &QAbstractItemModel::dataChanged);
        QSignalSpy reset(&containers, &QAbstractItemModel::modelReset);
        QVERIFY(containers.setNumber(QStringLiteral("dx"), 2.5));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().at(0).toModelIndex().row(), 0);
        QCOMPARE(reset.count(), 0);
        QCOMPARE(containers.index(0)
                     .data(InputPanelContainerModel::FieldsRole)
                     .toList()[0]
                     .toMap()
                     .value("number"),
                 QVariant(2.5));

        Command()->Finish();
        QCOMPARE(containers.rowCount(), 0);
    }

    void containersShouldStayWhileTheCommandAsksForItsNextPoint()
    {
        InputPanelContainerModel containers;
        QAbstractItemModelTester tester(&containers, QAbstractItemModelTester::FailureReportingMode::QtTest);
        StartMove();
        QSignalSpy reset(&containers, &QAbstractItemModel::modelReset);
        QSignalSpy removed(&containers, &QAbstractItemModel::rowsRemoved);
        Command()->SetPrompt(L"UI_PROMPT_END_POINT", 3);
        Command()->Start(c_move, L"UI_PROMPT_START_POINT"); // the same command again keeps its inputs
        QCOMPARE(reset.count(), 0);
        QCOMPARE(removed.count(), 0);
        QCOMPARE(containers.rowCount(), 3);

        // Another command, or none, is a new set of rows.
        Command()->Start(L"other", L"UI_PROMPT_START_POINT");
        QCOMPARE(reset.count(), 1);
        QCOMPARE(containers.rowCount(), 0);
        StartMove();
        Command()->Finish();
        QCOMPARE(containers.rowCount(), 0);
    }

    void valuesShouldBeCheckedByTheCommand_data()
    {
        QTest::addColumn<QString>("inputId");
        QTest::addColumn<bool>("isChoice");
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("a number") << "dx" << false << 4.0 << true;
        QTest::newRow("not a number") << "dx" << false << double(NAN) << false;
        QTest::newRow("infinite") << "dy" << false << double(INFINITY) << false;
        QTest::newRow("unknown input") << "dz" << false << 1.0 << false;
        QTest::newRow("a number for a choice") << "copies" << false << 1.0 << false;
        QTest::newRow("a choice") << "copies" << true << 1.0 << true;
        QTest::newRow("a choice out of range") << "copies" << true << 2.0 << false;
        QTest::newRow("a choice for a number") << "dx" << true << 0.0 << false;
    }

    void valuesShouldBeCheckedByTheCommand()
    {
        QFETCH(QString, inputId);
        QFETCH(bool, isChoice);
        QFETCH(double, value);
        QFETCH(bool, accepted);
        InputPanelContainerModel containers;
        StartMove();
        const bool result
            = isChoice ? containers.setChoice(inputId, int(value)) : containers.setNumber(inputId, value);
        QCOMPARE(result, accepted);
        const CommandInput* input = Command()->FindInput(inputId.toStdWString());
        if (accepted)
            QCOMPARE(isChoice ? double(input->choice) : input->number, value);
    }

    void tagsShouldDropPickedObjects()
    {
        InputPanelContainerModel containers;
        StartMove();
        TagModel* tags = containers.tags(QStringLiteral("objects"));
        QCOMPARE(containers.tags(QStringLiteral("objects")), tags);
        QAbstractItemModelTester tester(tags, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(tags->rowCount(), 3);
        QSignalSpy removed(tags, &QAbstractItemModel::rowsRemoved);
        QVERIFY(tags->remove(1));
        QCOMPARE(Command()->FindInput(L"objects")->objects, (std::vector<int> { 1, 3 }));
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.first().at(1).toInt(), 1);
        QCOMPARE(tags->index(1).data(TagModel::ObjectIdRole).toInt(), 3);
        QVERIFY(!tags->remove(5));
        Command()->Finish();
        QCOMPARE(tags->rowCount(), 3 - 1); // kept until a command has the input again
    }

    void theFilterBarShouldHideKindsOfContainers()
    {
        InputPanel panel;
        QAbstractItemModelTester containerTester(panel.containers(),
                                                 QAbstractItemModelTester::FailureReportingMode::QtTest);
        QAbstractItemModelTester itemTester(panel.filterItems(),
                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
        QAbstractItemModelTester sourceTester(panel.filterItemModel(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        StartMove();
        QCOMPARE(panel.filterItems()->rowCount(), 3);
        panel.filterItems()->setChecked(0, false); // geometry
        QCOMPARE(Containers(*panel.containers()),
                 (QStringList { "UI_INPUT_GROUP_COPIES", "UI_INPUT_GROUP_OBJECTS" }));
        QCOMPARE(panel.userConfiguration()->hiddenCategories(), QStringList { "geometry" });

        // A command without a kind does not offer it; the choice comes back with the kind.
        Command()->Start(L"other", L"UI_PROMPT_START_POINT");
        Command()->SetInputs({ Number(L"length", L"UI_INPUT_GROUP_VECTOR", L"parameters", 3.0) });
        QCOMPARE(panel.filterItems()->rowCount(), 1);
        StartMove();
        QCOMPARE(panel.containers()->rowCount(), 2);
    }

    void configurationShouldRoundTrip_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QStringList>("folded");
        QTest::addColumn<bool>("placed");
        QTest::addColumn<bool>("readable");
        QTest::newRow("empty: defaults") << "" << QStringList() << false << true;
        QTest::newRow("folded and placed")
            << R"({"foldedContainers":["UI_INPUT_GROUP_VECTOR"],"position":[40,60]})"
            << QStringList { "UI_INPUT_GROUP_VECTOR" } << true << true;
        QTest::newRow("wrong kinds keep defaults")
            << R"({"foldedContainers":"x","position":[1]})" << QStringList() << false << true;
        QTest::newRow("not a configuration") << "{folded" << QStringList() << false << false;
    }

    void configurationShouldRoundTrip()
    {
        QFETCH(QString, stored);
        QFETCH(QStringList, folded);
        QFETCH(bool, placed);
        QFETCH(bool, readable);
        if (!readable)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot be read")));
        InputPanel panel;
        panel.loadConfiguration(stored);
        QCOMPARE(panel.userConfiguration()->foldedContainers(), folded);
        QCOMPARE(panel.userConfiguration()->placed(), placed);
        StartMove();
        QCOMPARE(panel.containerModel()->index(0).data(InputPanelContainerModel::FoldedRole).toBool(),
                 !folded.isEmpty());

        // What the user folds is kept for the next session.
        panel.containers()->setFolded(1, true);
        InputPanelUserConfiguration reread;
        QVERIFY(reread.FromString(panel.saveConfiguration()));
        QVERIFY(reread.foldedContainers().contains(QStringLiteral("UI_INPUT_GROUP_COPIES")));
        QCOMPARE(reread.placed(), placed);
    }

    void foldingAndPlaceShouldOutliveThePanel()
    {
        qmlRegisterType<InputPanel>("InputPanelTest", 1, 0, "InputPanel_Cpp");
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData(R"(import InputPanelTest
InputPanel_Cpp { configurationKey: "TestInputPanel" })",
                          QUrl());
        StartMove();
        {
            std::unique_ptr<QObject> created(component.create());
            auto* panel = qobject_cast<InputPanel*>(created.get());
            QVERIFY2(panel, qPrintable(component.errorString()));
            QVERIFY(!panel->customUserSettingPosition());
            panel->containers()->setFolded(0, true);
            panel->userConfiguration()->setPosition(QPointF(30, 40));
            QVERIFY(panel->customUserSettingPosition());
            panel->storeConfiguration();
        }
        std::unique_ptr<QObject> created(component.create());
        auto* panel = qobject_cast<InputPanel*>(created.get());
        QVERIFY(panel);
        QVERIFY(panel->containers()->index(0, 0).data(InputPanelContainerModel::FoldedRole).toBool());
        QVERIFY(!panel->containers()->index(1, 0).data(InputPanelContainerModel::FoldedRole).toBool());
        QCOMPARE(panel->userConfiguration()->position(), QPointF(30, 40));
        QVERIFY(panel->customUserSettingPosition());
    }

    void applyAndCancelShouldReachTheCommand()
    {
        InputPanel panel;
        QSignalSpy running(&panel, &InputPanel::runningCommandChanged);
        QVERIFY(!panel.apply());
        QVERIFY(!panel.cancel());
        StartMove();
        QVERIFY(panel.commandRunning());
        QCOMPARE(panel.commandName(), QStringLiteral("Move"));
        QVERIFY(panel.apply());
        QVERIFY(Command()->IsRunning());
        QVERIFY(panel.cancel());
        QVERIFY(!panel.commandRunning());
        QCOMPARE(running.count(), 2);
    }
};

QTEST_MAIN(tst_InputPanel)
#include "tst_inputpanel.moc"
