#include "framework/EventBus.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"
#include "properties/StructuralObjectTypes.h"

#include <QTest>

using namespace Orvo::Kernel::Framework;

class tst_StructuralModel : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void selectionKeepsFirstAppearanceAndAnnouncesRealChanges();
    void editAnnouncesOnlyTheObjectsItChanged();
    void editRefusesReadOnlyAndOutOfRangeValues();
    void removingASelectedObjectDeselectsIt();
    void actionsOfferedByEveryObjectOnly();
    void typesRefuseInconsistentDefinitions();

private:
    std::shared_ptr<EventBus> m_bus;
    std::unique_ptr<StructuralModel> m_model;
    std::vector<std::vector<ObjectId>> m_selections;
    std::vector<ObjectValuesChangedEvent> m_valueChanges;
    EventConnection m_selectionConnection;
    EventConnection m_valuesConnection;
};

void tst_StructuralModel::init()
{
    m_bus = std::make_shared<EventBus>();
    m_model = std::make_unique<StructuralModel>(m_bus);
    StructuralObjectTypes::RegisterAll(*m_model);
    m_selections.clear();
    m_valueChanges.clear();
    m_selectionConnection = m_bus->Subscribe<SelectionChangedEvent>(
        [this](const SelectionChangedEvent& event) { m_selections.push_back(event.selection); });
    m_valuesConnection = m_bus->Subscribe<ObjectValuesChangedEvent>(
        [this](const ObjectValuesChangedEvent& event) { m_valueChanges.push_back(event); });
}

void tst_StructuralModel::selectionKeepsFirstAppearanceAndAnnouncesRealChanges()
{
    const ObjectId a = m_model->AddObject(StructuralObjectTypes::c_node);
    const ObjectId b = m_model->AddObject(StructuralObjectTypes::c_node);

    QTest::ignoreMessage(QtDebugMsg, "Selection: object 99 does not exist and is left out");
    m_model->Select({ b, a, b, 99 });
    m_model->Select({ b, a });

    QCOMPARE(m_model->Selection(), (std::vector<ObjectId> { b, a }));
    QCOMPARE(m_selections.size(), 1u);
}

void tst_StructuralModel::editAnnouncesOnlyTheObjectsItChanged()
{
    const ObjectId a = m_model->AddObject(StructuralObjectTypes::c_node);
    const ObjectId b = m_model->AddObject(StructuralObjectTypes::c_node);
    const ObjectId loadCase = m_model->AddObject(StructuralObjectTypes::c_loadCase);
    m_model->Assign(b, "node.z", 3.0);
    m_valueChanges.clear();

    const auto result = m_model->SetValue({ a, b, loadCase }, "node.z", 3.0);

    QCOMPARE(result.changed, 1);
    QCOMPARE(result.unchanged, 1);
    QCOMPARE(result.rejected, 0);
    QCOMPARE(m_valueChanges.size(), 1u);
    QCOMPARE(m_valueChanges.front().objects, std::vector<ObjectId> { a });
    QCOMPARE(m_valueChanges.front().propertyKey, "node.z");

    m_model->SetValue({ a, b }, "node.z", 3.0);
    QCOMPARE(m_valueChanges.size(), 1u);
}

void tst_StructuralModel::editRefusesReadOnlyAndOutOfRangeValues()
{
    const ObjectId member = m_model->AddObject(StructuralObjectTypes::c_member);
    QCOMPARE(std::get<std::int32_t>(m_model->FindObject(member)->Value(StructuralModel::c_numberProperty)),
             member);

    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("read-only"));
    QCOMPARE(m_model->SetValue({ member }, StructuralModel::c_numberProperty, std::int32_t { 5 }).rejected,
             1);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("above the maximum 5000"));
    QCOMPARE(m_model->SetValue({ member }, "member.height", 5000.5).rejected, 1);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("takes a real value, not \"tall\""));
    QCOMPARE(m_model->SetValue({ member }, "member.height", QString("tall")).rejected, 1);

    QVERIFY(m_valueChanges.empty());
    QVERIFY(m_model->Assign(member, StructuralModel::c_numberProperty, std::int32_t { 5 }));
    QCOMPARE(m_valueChanges.size(), 1u);
}

void tst_StructuralModel::removingASelectedObjectDeselectsIt()
{
    const ObjectId a = m_model->AddObject(StructuralObjectTypes::c_node);
    const ObjectId b = m_model->AddObject(StructuralObjectTypes::c_node);
    m_model->Select({ a, b });

    QVERIFY(m_model->RemoveObject(a));
    QVERIFY(!m_model->RemoveObject(a));

    QCOMPARE(m_model->Selection(), std::vector<ObjectId> { b });
    QCOMPARE(m_selections.back(), std::vector<ObjectId> { b });
    QVERIFY(!m_model->FindObject(a));
}

void tst_StructuralModel::actionsOfferedByEveryObjectOnly()
{
    const ObjectId node = m_model->AddObject(StructuralObjectTypes::c_node);
    const ObjectId member = m_model->AddObject(StructuralObjectTypes::c_member);
    m_model->Assign(node, "node.z", 2.0);
    m_model->Assign(node, "general.name", QString("N"));

    const auto both = m_model->ActionsFor({ node, member });
    QCOMPARE(both.size(), 1u);
    QCOMPARE(both.front().key, StructuralModel::c_resetToDefaultsAction);
    QCOMPARE(m_model->ActionsFor({ member }).back().key, "member.reverse");

    QCOMPARE(m_model->RunAction({ node, member }, StructuralModel::c_resetToDefaultsAction), 1);
    QCOMPARE(std::get<double>(m_model->FindObject(node)->Value("node.z")), 0.0);
    QCOMPARE(std::get<QString>(m_model->FindObject(node)->Value("general.name")), QString());
    // The number is read-only: a reset keeps it.
    QCOMPARE(std::get<std::int32_t>(m_model->FindObject(node)->Value(StructuralModel::c_numberProperty)),
             node);
}

void tst_StructuralModel::typesRefuseInconsistentDefinitions()
{
    ObjectType type("test", "UI_TEST", "UI_TESTS");
    type.AddProperty(PropertyDefinition("p", PropertyType::Real, "UI_P"));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument,
                             type.AddProperty(PropertyDefinition("p", PropertyType::Bool, "UI_P")));
    QVERIFY_THROWS_EXCEPTION(
        std::invalid_argument,
        type.AddProperty(PropertyDefinition("q", PropertyType::Real, "UI_Q").WithRange(1.0, 2.0)));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument,
                             PropertyDefinition("r", PropertyType::Real, "UI_R").WithRange(2.0, 1.0));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument,
                             m_model->RegisterType(StructuralObjectTypes::CreateNode()));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, m_model->AddObject("bridge"));
}

QTEST_GUILESS_MAIN(tst_StructuralModel)
#include "tst_structuralmodel.moc"
