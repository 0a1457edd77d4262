#include "ModelingCommands.h"
#include "TestHost.h"
#include "commands/IUICommandProcessor.h"
#include "commands/RunningCommand.h"
#include "properties/StructuralModel.h"

#include <QUndoStack>
#include <QtTest>

using namespace Orvo::Kernel::Framework;
using Orvo::Kernel::Model::MakeObjectId;
using Orvo::Kernel::Model::ObjectKind;

// The demo's modelling commands as the input panel drives them: started from the menu, their
// inputs edited, then applied.
class tst_ModelingCommands : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;

    std::shared_ptr<RunningCommand> Command() const { return m_catalog->Get<RunningCommand>(); }
    std::shared_ptr<StructuralModel> Model() const { return m_catalog->Get<StructuralModel>(); }

    void Run(const wchar_t* uuid) const
    {
        QVERIFY(m_catalog->Get<IUICommandProcessor>()->ExecuteCommand(uuid, {}, L"test"));
    }

    double Value(ObjectKind kind, int number, const char* key) const
    {
        const auto value = Model()->Value(MakeObjectId(kind, number), QString::fromLatin1(key));
        return value ? std::visit(
                   [](const auto& held) -> double {
                       if constexpr (std::is_arithmetic_v<std::decay_t<decltype(held)>>)
                           return double(held);
                       else
                           return qQNaN();
                   },
                   *value)
                     : qQNaN();
    }

    // One member from (0, 0, 0) to (4, 0, 0), selected.
    void AddSelectedMember() const
    {
        const auto node = [this](double x) {
            return Orvo::Kernel::Model::NumberOf(
                Model()->AddObject(ObjectKind::Node, { { QStringLiteral("node.x"), x } }));
        };
        const int start = node(0.0);
        const int end = node(4.0);
        const auto member = Model()->AddObject(ObjectKind::Member,
                                               { { QStringLiteral("member.startNode"), start },
                                                 { QStringLiteral("member.endNode"), end },
                                                 { QStringLiteral("member.rotation"), 15.0 } });
        Model()->Select({ member });
    }

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"),
                          R"(<commands>
<command uuid="d395689b-b049-44ce-8f57-680eddf6ef26" name="UI_COMMAND_NEW_MEMBER"/>
<command uuid="34ecfcf1-2343-4e3d-adcb-722902af15fd" name="UI_COMMAND_MOVE"/>
</commands>)");
        m_catalog = m_host->StartServices();
        // What every new member is made of.
        QVERIFY(Model()->AddObject(ObjectKind::Material));
        QVERIFY(Model()->AddObject(ObjectKind::CrossSection));
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void newMemberShouldDrawFromThePanelsPoint_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<QList<double>>("end"); // from (1, 2, 3), 2.5 long
        QTest::newRow("along X") << 0 << QList<double> { 3.5, 2, 3 };
        QTest::newRow("along Z") << 2 << QList<double> { 1, 2, 5.5 };
    }

    void newMemberShouldDrawFromThePanelsPoint()
    {
        QFETCH(int, direction);
        QFETCH(QList<double>, end);
        ModelingCommands commands;
        Run(ModelingCommands::c_newMember);
        QVERIFY(Command()->IsRunning());
        QVERIFY(Command()->SetNumber(L"x", 1));
        QVERIFY(Command()->SetNumber(L"y", 2));
        QVERIFY(Command()->SetNumber(L"z", 3));
        QVERIFY(Command()->SetNumber(L"length", 2.5));
        QVERIFY(Command()->SetChoice(L"direction", direction));
        QVERIFY(Command()->Apply());

        QCOMPARE(Model()->Objects(ObjectKind::Member).size(), std::size_t(1));
        const int endNode = int(Value(ObjectKind::Member, 1, "member.endNode"));
        const QList<double>& expected = end;
        QCOMPARE(Value(ObjectKind::Node, endNode, "node.x"), expected[0]);
        QCOMPARE(Value(ObjectKind::Node, endNode, "node.y"), expected[1]);
        QCOMPARE(Value(ObjectKind::Node, endNode, "node.z"), expected[2]);
        // Drawing goes on from the end.
        QVERIFY(Command()->IsRunning());
        QCOMPARE(Command()->FindInput(L"x")->number, expected[0]);
        QCOMPARE(Command()->FindInput(L"z")->number, expected[2]);
    }

    void moveShouldMoveOrCopyTheSelection_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("nodes");
        QTest::addColumn<int>("members");
        QTest::addColumn<int>("movedNode"); // the node that ends up at x = 0 + dx
        QTest::newRow("move") << int(ModelingCommands::MoveMode::Move) << 2 << 1 << 1;
        QTest::newRow("copy") << int(ModelingCommands::MoveMode::Copy) << 4 << 2 << 3;
    }

    void moveShouldMoveOrCopyTheSelection()
    {
        QFETCH(int, mode);
        QFETCH(int, nodes);
        QFETCH(int, members);
        QFETCH(int, movedNode);
        AddSelectedMember();
        ModelingCommands commands;
        Run(ModelingCommands::c_move);
        QCOMPARE(Command()->FindInput(L"objects")->objects,
                 (std::vector<int> { MakeObjectId(ObjectKind::Member, 1) }));
        QVERIFY(Command()->SetNumber(L"dx", 0.5));
        QVERIFY(Command()->SetNumber(L"dz", -1));
        QVERIFY(Command()->SetChoice(L"mode", mode));
        const int stepsBefore = Model()->UndoStack()->count();
        QVERIFY(Command()->Apply());

        QVERIFY(!Command()->IsRunning());
        QCOMPARE(int(Model()->Objects(ObjectKind::Node).size()), nodes);
        QCOMPARE(int(Model()->Objects(ObjectKind::Member).size()), members);
        QCOMPARE(Value(ObjectKind::Node, movedNode, "node.x"), 0.5);
        QCOMPARE(Value(ObjectKind::Node, movedNode, "node.z"), -1.0);
        QCOMPARE(Value(ObjectKind::Node, movedNode + 1, "node.x"), 4.5);
        QCOMPARE(Value(ObjectKind::Member, members, "member.rotation"), 15.0);
        QCOMPARE(Model()->UndoStack()->count(), stepsBefore + 1);
    }

    void moveShouldTakeOnlyObjectsWithAPlace()
    {
        const std::vector<ObjectId> selection { MakeObjectId(ObjectKind::Node, 4),
                                                MakeObjectId(ObjectKind::LoadCase, 1),
                                                MakeObjectId(ObjectKind::Member, 2) };
        const auto inputs = ModelingCommands::MoveInputs(selection);
        QCOMPARE(inputs.back().objects, (std::vector<int> { selection[0], selection[2] }));
    }
};

QTEST_MAIN(tst_ModelingCommands)
#include "tst_modelingcommands.moc"
