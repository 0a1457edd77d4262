#include "EventRecorder.h"
#include "TestHost.h"
#include "commands/IUICommandProcessor.h"
#include "commands/UICommandProcessor.h"
#include "framework/EventBus.h"
#include "model/ModelGenerator.h"
#include "model/SectionProperties.h"
#include "model/StructureValidator.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"

#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::Kernel::Model;

Q_DECLARE_METATYPE(PropertyValue)
Q_DECLARE_METATYPE(CrossSection)

namespace {

const QByteArray c_commands = R"(<commands>
  <command uuid="c6d02f75-d199-457a-9a4d-f1246cb8feb4" name="UI_COMMAND_UNDO" shortcut="Ctrl+Z"/>
  <command uuid="2e4dd56a-f2b6-489b-9dd5-b3ee6a66e276" name="UI_COMMAND_REDO" shortcut="Ctrl+Y"/>
</commands>)";

template<class Record> bool SameTable(const Structure& a, const Structure& b)
{
    return a.Table<Record>().Records() == b.Table<Record>().Records();
}

bool SameStructure(const Structure& a, const Structure& b)
{
    return SameTable<Node>(a, b) && SameTable<Member>(a, b) && SameTable<Support>(a, b)
        && SameTable<CrossSection>(a, b) && SameTable<Material>(a, b) && SameTable<LoadCase>(a, b)
        && SameTable<NodalLoad>(a, b) && SameTable<MemberLoad>(a, b) && SameTable<Combination>(a, b);
}

ObjectId Id(ObjectKind kind, Number number)
{
    return MakeObjectId(kind, number);
}

} // namespace

class tst_StructuralModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void numbersCountPerKindFromOne();
    void selectionKeepsFirstAppearanceAndAnnouncesRealChanges();
    void refusedValuesChangeNothing_data();
    void refusedValuesChangeNothing();
    void everyChangeIsOneNamedUndoStep_data();
    void everyChangeIsOneNamedUndoStep();
    void resetToDefaultsLeavesPropertiesWithoutDefaultAlone();
    void removingWhatIsInUseIsRefused();
    void dependentPropertiesFollowTheirSource();
    void materialGradeAndStrengthAgree_data();
    void materialGradeAndStrengthAgree();
    void sectionPropertiesOfEachShape_data();
    void sectionPropertiesOfEachShape();
    void generatedBuildingIsValid();

private:
    ObjectId AddNode(double x, double y, double z);

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_services;
    std::shared_ptr<StructuralModel> m_model;
};

void tst_StructuralModel::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->WriteFile("Configuration/Commands.xml", c_commands);
    m_services = m_host->StartServices();
    m_model = m_services->Get<StructuralModel>();
    m_model->Replace([](Structure& structure) { ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 }); });
}

void tst_StructuralModel::cleanup()
{
    m_model.reset();
    m_services.reset();
    m_host.reset();
}

ObjectId tst_StructuralModel::AddNode(double x, double y, double z)
{
    return m_model->AddObject(ObjectKind::Node, { { "node.x", x }, { "node.y", y }, { "node.z", z } });
}

void tst_StructuralModel::numbersCountPerKindFromOne()
{
    const ObjectId node = AddNode(20.0, 0.0, 0.0);
    const ObjectId member = m_model->AddObject(
        ObjectKind::Member,
        { { "member.startNode", std::int32_t(1) }, { "member.endNode", std::int32_t(7) } });

    QCOMPARE(NumberOf(node), 7);
    QCOMPARE(NumberOf(member), 6);
    QCOMPARE(std::get<std::int32_t>(
                 *m_model->Value(Id(ObjectKind::CrossSection, 1), StructuralModel::c_numberProperty)),
             1);
    QCOMPARE(std::get<std::int32_t>(*m_model->Value(member, StructuralModel::c_numberProperty)), 6);
}

void tst_StructuralModel::selectionKeepsFirstAppearanceAndAnnouncesRealChanges()
{
    EventRecorder<SelectionChangedEvent> selections(*m_services->Get<EventBus>());
    const ObjectId a = Id(ObjectKind::Node, 1);
    const ObjectId b = Id(ObjectKind::Member, 2);
    const ObjectId missing = Id(ObjectKind::Node, 99);

    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("object \\d+ does not exist"));
    m_model->Select({ b, a, b, missing });
    m_model->Select({ b, a });

    QCOMPARE(m_model->Selection(), (std::vector<ObjectId> { b, a }));
    QCOMPARE(selections.Count(), 1u);
}

void tst_StructuralModel::refusedValuesChangeNothing_data()
{
    QTest::addColumn<ObjectId>("object");
    QTest::addColumn<QString>("key");
    QTest::addColumn<PropertyValue>("value");
    QTest::addColumn<QString>("reason");

    const ObjectId member = Id(ObjectKind::Member, 1); // node 1 to node 2
    QTest::newRow("end node that does not exist")
        << member << "member.endNode" << PropertyValue(std::int32_t(99)) << "There is no node 99";
    QTest::newRow("end node equal to the start node")
        << member << "member.endNode" << PropertyValue(std::int32_t(1))
        << "A member cannot start and end at the same node (1)";
    QTest::newRow("node moved onto the other end of its member")
        << Id(ObjectKind::Node, 2) << "node.z" << PropertyValue(0.0)
        << "Member 1 would have no length: nodes 1 and 2 lie at the same place";
    QTest::newRow("section that does not exist")
        << member << "member.section" << PropertyValue(std::int32_t(7)) << "There is no cross-section 7";
    QTest::newRow("flanges thicker than the height")
        << Id(ObjectKind::CrossSection, 2) << "section.flangeThickness" << PropertyValue(250.0)
        << "Two flanges of 250 mm do not fit in a height of 400 mm";
    QTest::newRow("second support on a node")
        << Id(ObjectKind::Support, 1) << "support.node" << PropertyValue(std::int32_t(3))
        << "Node 3 has a support already: Support 2";
    QTest::newRow("combination that is not a sum")
        << Id(ObjectKind::Combination, 1) << "combination.definition"
        << PropertyValue(QString("dead plus wind"))
        << "Write a combination as factors times load cases, such as 1.35*LC1 + 1.5*LC2";
    QTest::newRow("below the minimum") << Id(ObjectKind::CrossSection, 1) << "section.height"
                                       << PropertyValue(0.0) << "0 is below the smallest value allowed, 0.1";
    QTest::newRow("computed value") << Id(ObjectKind::CrossSection, 1) << "section.area"
                                    << PropertyValue(10.0) << "Area A cannot be changed";
}

void tst_StructuralModel::refusedValuesChangeNothing()
{
    QFETCH(ObjectId, object);
    QFETCH(QString, key);
    QFETCH(PropertyValue, value);
    QFETCH(QString, reason);
    const Structure before = m_model->Structure();
    EventRecorder<ObjectValuesChangedEvent> changes(*m_services->Get<EventBus>());
    EventRecorder<EditRejectedEvent> rejections(*m_services->Get<EventBus>());

    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("keeps its value"));
    const auto result = m_model->SetValue({ object }, key, value);

    QCOMPARE(result.rejected, 1);
    QCOMPARE(m_model->Text(result.firstRejection), reason);
    // The refusal is announced with the object that kept its value.
    QCOMPARE(rejections.Count(), 1u);
    QCOMPARE(rejections.Last().message, reason);
    QCOMPARE(rejections.Last().object, object);
    QVERIFY(SameStructure(m_model->Structure(), before));
    QCOMPARE(changes.Count(), 0u);
    QCOMPARE(m_model->UndoStack()->count(), 0);
}

void tst_StructuralModel::everyChangeIsOneNamedUndoStep_data()
{
    QTest::addColumn<std::function<void(StructuralModel&)>>("change");
    QTest::addColumn<QString>("name");

    QTest::newRow("property of two members")
        << std::function<void(StructuralModel&)>([](StructuralModel& model) {
               model.SetValue({ Id(ObjectKind::Member, 4), Id(ObjectKind::Member, 5) }, "member.section",
                              std::int32_t(1));
           })
        << "Set Cross-section of 2 members";
    QTest::newRow("property of one section")
        << std::function<void(StructuralModel&)>([](StructuralModel& model) {
               model.SetValue({ Id(ObjectKind::CrossSection, 1) }, "section.height", 320.0);
           })
        << "Set Height h of Cross-section 1";
    QTest::newRow("reset to defaults") << std::function<void(StructuralModel&)>([](StructuralModel& model) {
        model.RunAction({ Id(ObjectKind::CrossSection, 1), Id(ObjectKind::CrossSection, 2) },
                        StructuralModel::c_resetToDefaultsAction);
    }) << "Reset to defaults: 2 cross-sections";
    QTest::newRow("reverse direction") << std::function<void(StructuralModel&)>([](StructuralModel& model) {
        model.RunAction({ Id(ObjectKind::Member, 4) }, "member.reverse");
    }) << "Reverse direction: Member 4";
    QTest::newRow("new object") << std::function<void(StructuralModel&)>([](StructuralModel& model) {
        model.AddObject(ObjectKind::Member,
                        { { "member.startNode", std::int32_t(1) }, { "member.endNode", std::int32_t(4) } });
    }) << "Add Member 6";
    QTest::newRow("deleted objects with what refers to them")
        << std::function<void(StructuralModel&)>([](StructuralModel& model) {
               model.RemoveObjects({ Id(ObjectKind::Member, 4), Id(ObjectKind::MemberLoad, 1),
                                     Id(ObjectKind::MemberLoad, 2), Id(ObjectKind::MemberLoad, 3),
                                     Id(ObjectKind::MemberLoad, 4) });
           })
        << "Delete 5 objects";
    QTest::newRow("several edits in one scope")
        << std::function<void(StructuralModel&)>([](StructuralModel& model) {
               StructuralModel::ChangeScope scope(model, "Paste 2 cells");
               model.SetValue({ Id(ObjectKind::Node, 2) }, "node.x", 0.5);
               model.SetValue({ Id(ObjectKind::Node, 4) }, "node.x", 6.5);
           })
        << "Paste 2 cells";
}

void tst_StructuralModel::everyChangeIsOneNamedUndoStep()
{
    QFETCH(std::function<void(StructuralModel&)>, change);
    QFETCH(QString, name);
    auto processor = m_services->Get<IUICommandProcessor>();
    EventRecorder<ObjectValuesChangedEvent> changes(*m_services->Get<EventBus>());
    const Structure before = m_model->Structure();

    change(*m_model);
    const Structure after = m_model->Structure();
    QVERIFY(!SameStructure(before, after));
    QCOMPARE(m_model->UndoStack()->count(), 1);
    QCOMPARE(m_model->UndoStack()->undoText(), name);

    // Through the commands a user runs (Ctrl+Z, Ctrl+Y), and the views hear of each.
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Command UI_COMMAND_UNDO"));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^Undo: "));
    changes.Clear();
    QVERIFY(processor->ExecuteCommand(UICommandProcessor::c_undoCommand, L"", L"test"));
    QVERIFY(SameStructure(m_model->Structure(), before));
    QCOMPARE(changes.Count(), 1u);

    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Command UI_COMMAND_REDO"));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^Redo: "));
    QVERIFY(processor->ExecuteCommand(UICommandProcessor::c_redoCommand, L"", L"test"));
    QVERIFY(SameStructure(m_model->Structure(), after));
    QCOMPARE(changes.Count(), 2u);
}

void tst_StructuralModel::resetToDefaultsLeavesPropertiesWithoutDefaultAlone()
{
    const ObjectId node = Id(ObjectKind::Node, 2);
    const ObjectId section = Id(ObjectKind::CrossSection, 1);
    m_model->Assign(node, "general.name", QString("Eave"));
    const Node nodeBefore = *m_model->Structure().Nodes().Find(2);

    m_model->RunAction({ node, section }, StructuralModel::c_resetToDefaultsAction);

    QVERIFY(*m_model->Structure().Nodes().Find(2) == nodeBefore); // names and coordinates have no default
    const CrossSection& reset = *m_model->Structure().Sections().Find(1);
    QCOMPARE(reset.name, QString("HEB 300"));
    QCOMPARE(reset.height, 300.0);
    QCOMPARE(reset.width, 150.0);
    QCOMPARE(m_model->UndoStack()->count(), 1);
}

void tst_StructuralModel::removingWhatIsInUseIsRefused()
{
    const Structure before = m_model->Structure();
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Nothing removed"));
    const auto result = m_model->RemoveObjects({ Id(ObjectKind::MemberLoad, 1), Id(ObjectKind::Node, 1) });

    QCOMPARE(result.changed, 0);
    QCOMPARE(m_model->Text(result.firstRejection), "Node 1 is used by Member 1");
    QVERIFY(SameStructure(m_model->Structure(), before)); // the load removed first came back
    QCOMPARE(m_model->UndoStack()->count(), 0);
}

void tst_StructuralModel::dependentPropertiesFollowTheirSource()
{
    const ObjectId section = Id(ObjectKind::CrossSection, 1);
    QVERIFY(m_model->HasProperty(section, "section.flangeThickness"));
    QVERIFY(!m_model->HasProperty(section, "section.diameter"));
    QCOMPARE(m_model->Illustration(section, "section.height"), "Illustrations/CrossSection.qml");

    m_model->SetValue({ section }, "section.shape", std::int32_t(SectionShape::Circle));

    QVERIFY(!m_model->HasProperty(section, "section.flangeThickness"));
    QVERIFY(!m_model->HasProperty(section, "section.height"));
    QVERIFY(m_model->HasProperty(section, "section.diameter"));
    QCOMPARE(m_model->Illustration(section, "section.diameter"), "Illustrations/SectionCircle.qml");
}

void tst_StructuralModel::materialGradeAndStrengthAgree_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<PropertyValue>("value");
    QTest::addColumn<int>("grade");
    QTest::addColumn<double>("strength");

    QTest::newRow("yield strength of another grade")
        << "material.yieldStrength" << PropertyValue(355.0) << 2 << 355.0;
    QTest::newRow("yield strength of no grade")
        << "material.yieldStrength" << PropertyValue(300.0) << 4 << 300.0;
    QTest::newRow("grade chosen") << "material.steelGrade" << PropertyValue(std::int32_t(3)) << 3 << 460.0;
    QTest::newRow("user-defined keeps the values")
        << "material.steelGrade" << PropertyValue(std::int32_t(4)) << 4 << 235.0;
}

void tst_StructuralModel::materialGradeAndStrengthAgree()
{
    QFETCH(QString, key);
    QFETCH(PropertyValue, value);
    QFETCH(int, grade);
    QFETCH(double, strength);
    const ObjectId steel = Id(ObjectKind::Material, 1);
    m_model->SetValue({ steel }, "material.steelGrade", std::int32_t(0));

    m_model->SetValue({ steel }, key, value);

    QCOMPARE(std::get<std::int32_t>(*m_model->Value(steel, "material.steelGrade")), grade);
    QCOMPARE(std::get<double>(*m_model->Value(steel, "material.yieldStrength")), strength);
}

void tst_StructuralModel::sectionPropertiesOfEachShape_data()
{
    QTest::addColumn<CrossSection>("section");
    QTest::addColumn<double>("area");
    QTest::addColumn<double>("iy");
    QTest::addColumn<double>("iz");

    CrossSection rectangle;
    rectangle.shape = SectionShape::Rectangle;
    rectangle.height = 200.0;
    rectangle.width = 100.0;
    QTest::newRow("rectangle b h³/12") << rectangle << 20000.0 << 100.0 * 8e6 / 12.0 << 200.0 * 1e6 / 12.0;
    CrossSection circle;
    circle.shape = SectionShape::Circle;
    circle.diameter = 100.0;
    const double pi = 3.14159265358979323846;
    QTest::newRow("circle π d⁴/64") << circle << pi * 2500.0 << pi * 1e8 / 64.0 << pi * 1e8 / 64.0;
    CrossSection tube = circle;
    tube.shape = SectionShape::CircularHollow;
    tube.wallThickness = 10.0;
    QTest::newRow("tube") << tube << pi * (1e4 - 6400.0) / 4.0 << pi * (1e8 - 4.096e7) / 64.0
                          << pi * (1e8 - 4.096e7) / 64.0;
    CrossSection box = rectangle;
    box.shape = SectionShape::RectangularHollow;
    box.wallThickness = 10.0;
    QTest::newRow("box") << box << 20000.0 - 80.0 * 180.0 << (100.0 * 8e6 - 80.0 * 5.832e6) / 12.0
                         << (200.0 * 1e6 - 180.0 * 512000.0) / 12.0;
    CrossSection ipe; // IPE 300 from its plates: 2 b tf + (h - 2 tf) tw
    ipe.height = 300.0;
    ipe.width = 150.0;
    ipe.flangeThickness = 10.7;
    ipe.webThickness = 7.1;
    QTest::newRow("I-section") << ipe << 2 * 150.0 * 10.7 + 278.6 * 7.1
                               << (150.0 * 2.7e7 - 142.9 * std::pow(278.6, 3)) / 12.0
                               << (2 * 10.7 * std::pow(150.0, 3) + 278.6 * std::pow(7.1, 3)) / 12.0;
}

void tst_StructuralModel::sectionPropertiesOfEachShape()
{
    QFETCH(CrossSection, section);
    QFETCH(double, area);
    QFETCH(double, iy);
    QFETCH(double, iz);

    const SectionProperties properties = SectionProperties::Of(section);

    QVERIFY(qAbs(properties.area - area) < 1e-9 * area);
    QVERIFY(qAbs(properties.iy - iy) < 1e-9 * iy);
    QVERIFY(qAbs(properties.iz - iz) < 1e-9 * iz);
    QVERIFY(properties.torsion > 0.0);
}

void tst_StructuralModel::generatedBuildingIsValid()
{
    BuildingOptions options;
    options.baysX = 3;
    options.baysY = 2;
    options.storeys = 4;
    Structure structure;

    ModelGenerator::Building(structure, options);

    QCOMPARE(int(structure.Members().Size()), options.MemberCount());
    QCOMPARE(structure.Nodes().Size(), std::size_t(4 * 3 * 5));
    QCOMPARE(structure.Supports().Size(), std::size_t(4 * 3));
    for (const Member& member : structure.Members().Records())
        QVERIFY(StructureValidator::Check(structure, member).IsEmpty());
    for (const MemberLoad& load : structure.MemberLoads().Records())
        QVERIFY(StructureValidator::Check(structure, load).IsEmpty());
    QCOMPARE(structure.LoadCases().Size(), std::size_t(options.loadCases));
    QCOMPARE(structure.Combinations().Size(), std::size_t(2));

    const auto million = BuildingOptions::ForMemberCount(1'000'000);
    QVERIFY(qAbs(million.MemberCount() - 1'000'000) < 100'000);
}

QTEST_GUILESS_MAIN(tst_StructuralModel)
#include "tst_structuralmodel.moc"
