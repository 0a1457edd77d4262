#include "PropertiesTestSupport.h"
#include "properties/PropertiesModel.h"
#include "properties/PropertiesProxyModel.h"
#include "properties/PropertiesRoles.h"
#include "properties/SampleStructure.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralObjectTypes.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <cmath>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::PropertiesRoles;
using namespace Orvo::Kernel::Framework;

namespace {

// The rows as "C:<category id>", "S<level>:<name>" and property keys.
QStringList Layout(const PropertiesModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        const int type = index.data(typeRole).toInt();
        if (type == c_categoryType)
            rows << "C:" + index.data(categoryRole).toString();
        else if (type == c_subcategoryType)
            rows << QStringLiteral("S%1:%2")
                        .arg(index.data(valueRole).toInt())
                        .arg(index.data(nameRole).toString());
        else
            rows << model.FindDefinition(index.data(uuidRole).toString())->key;
    }
    return rows;
}

QModelIndex ProxyIndexOf(const QAbstractItemModel& proxy, const QString& key)
{
    for (int row = 0; row < proxy.rowCount(); ++row) {
        if (proxy.index(row, 0).data(uuidRole).toString() == UuidOf(key))
            return proxy.index(row, 0);
    }
    return {};
}

} // namespace

class tst_PropertiesModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void listsCategoriesThenNestedSubcategories_data();
    void listsCategoriesThenNestedSubcategories();
    void mixedPropertyListsItsDistinctValues();
    void sharedPropertiesOnlyForMixedKinds();
    void editThroughProxyReachesEverySelectedObject_data();
    void editThroughProxyReachesEverySelectedObject();
    void refusedEditKeepsEveryValue_data();
    void refusedEditKeepsEveryValue();
    void resetActionRestoresDefaults();
    void namedParameterWritesItsValue();
    void valuesThatBecomeMixedHideTheirRowAndHeader();
    void collapsedFlagsFollowTheProxysList();
    void unknownObjectsAreLeftOut();

private:
    std::shared_ptr<StructuralModel> m_structure;
    std::unique_ptr<PropertiesModel> m_model;
    std::unique_ptr<PropertiesProxyModel> m_proxy;
    std::unique_ptr<QAbstractItemModelTester> m_modelTester;
    std::unique_ptr<QAbstractItemModelTester> m_proxyTester;
    std::shared_ptr<std::vector<QString>> m_collapsed;
};

void tst_PropertiesModel::init()
{
    m_structure = std::make_shared<StructuralModel>();
    SampleStructure::Fill(*m_structure);
    m_model = std::make_unique<PropertiesModel>();
    m_collapsed = std::make_shared<std::vector<QString>>();
    m_proxy = std::make_unique<PropertiesProxyModel>(nullptr, m_collapsed);
    m_proxy->SetInBasicMode(false);
    m_proxy->setSourceModel(m_model.get());
    m_modelTester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_proxyTester = std::make_unique<QAbstractItemModelTester>(
        m_proxy.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
}

void tst_PropertiesModel::cleanup()
{
    m_proxyTester.reset();
    m_modelTester.reset();
    m_proxy.reset();
    m_model.reset();
    m_structure.reset();
}

void tst_PropertiesModel::listsCategoriesThenNestedSubcategories_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("load case: a subcategory after its category's own properties")
        << StructuralObjectTypes::c_loadCase
        << QStringList { "C:UI_PROPERTIES_CATEGORY_GENERAL",
                         "general.number",
                         "general.name",
                         "general.comment",
                         "C:UI_PROPERTIES_CATEGORY_ANALYSIS",
                         "loadCase.actionCategory",
                         "loadCase.active",
                         "loadCase.partialFactor",
                         "S1:Self-weight",
                         "loadCase.selfWeight",
                         "loadCase.factorX",
                         "loadCase.factorY",
                         "loadCase.factorZ",
                         "C:UI_PROPERTIES_CATEGORY_DISPLAY",
                         "display.color",
                         "display.showLabel" };
    QTest::newRow("node: nested subcategories deepen the level")
        << StructuralObjectTypes::c_node
        << QStringList { "C:UI_PROPERTIES_CATEGORY_GENERAL",
                         "general.number",
                         "general.name",
                         "general.comment",
                         "C:UI_PROPERTIES_CATEGORY_GEOMETRY",
                         "node.coordinateSystem",
                         "S1:Coordinates",
                         "node.x",
                         "node.y",
                         "node.z",
                         "C:UI_PROPERTIES_CATEGORY_SUPPORT",
                         "node.supportType",
                         "S1:Springs",
                         "node.springX",
                         "node.springY",
                         "node.springZ",
                         "S2:Rotational springs",
                         "node.springRotX",
                         "node.springRotY",
                         "node.springRotZ",
                         "C:UI_PROPERTIES_CATEGORY_DISPLAY",
                         "display.color",
                         "display.showLabel" };
}

void tst_PropertiesModel::listsCategoriesThenNestedSubcategories()
{
    QFETCH(QString, type);
    QFETCH(QStringList, expected);

    m_model->ShowObjects(m_structure, { ObjectsOfType(*m_structure, type).front() });

    QCOMPARE(Layout(*m_model), expected);
}

void tst_PropertiesModel::mixedPropertyListsItsDistinctValues()
{
    m_model->ShowObjects(m_structure, ObjectsOfType(*m_structure, StructuralObjectTypes::c_member));
    const QModelIndex material = m_model->index(m_model->FindRow(UuidOf("member.material")));
    const QVariantMap resetAction { { MixedValues::c_actionKey, PropertiesModel::ResetToDefaultAction } };

    QVERIFY(material.data(mixedRole).toBool());
    QCOMPARE(material.data(mixedValuesRole).toList(), (QVariantList { "S235", "S355", resetAction }));
    QCOMPARE(material.data(listIndexRole).toInt(), -1);
    QCOMPARE(material.data(allValuesRole).toStringList(),
             (QStringList { "S235", "S355", "C30/37", "GL24h" }));
    QVERIFY(material.data(hasActionRole).toBool());

    const QModelIndex yield = m_model->index(m_model->FindRow(UuidOf("member.yieldStrength")));
    QCOMPARE(yield.data(selectedParametersIndicesRole).toList(), (QVariantList { 0, 2 }));
    QCOMPARE(yield.data(parametersNamesRole).toStringList(),
             (QStringList { "S235", "S275", "S355", "S460" }));

    const QModelIndex modulus = m_model->index(m_model->FindRow(UuidOf("member.elasticModulus")));
    QVERIFY(!modulus.data(mixedRole).toBool());
    QCOMPARE(modulus.data(mixedValuesRole).toList(), QVariantList { 210.0 });
    QCOMPARE(modulus.data(highlightStateRole).toInt(), 0);
    QVERIFY(!modulus.data(hasActionRole).toBool());
}

void tst_PropertiesModel::sharedPropertiesOnlyForMixedKinds()
{
    const ObjectId node = ObjectsOfType(*m_structure, StructuralObjectTypes::c_node).front();
    const ObjectId member = ObjectsOfType(*m_structure, StructuralObjectTypes::c_member).front();

    m_model->ShowObjects(m_structure, { node, member });

    QCOMPARE(Layout(*m_model),
             (QStringList { "C:UI_PROPERTIES_CATEGORY_GENERAL", "general.number", "general.name",
                            "general.comment", "C:UI_PROPERTIES_CATEGORY_DISPLAY", "display.color",
                            "display.showLabel" }));
    const QModelIndex colour = m_model->index(m_model->FindRow(UuidOf("display.color")));
    QCOMPARE(colour.data(mixedValuesRole).toList(), (QVariantList { "#1f6feb", "#2b3445" }));
}

void tst_PropertiesModel::editThroughProxyReachesEverySelectedObject_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<QString>("stored"); // what every object holds afterwards
    QTest::addColumn<QVariant>("shown"); // the row's value afterwards

    QTest::newRow("real") << "member.height" << int(valueRole) << QVariant(450.5) << "450.5"
                          << QVariant(450.5);
    QTest::newRow("real typed as text")
        << "member.height" << int(valueRole) << QVariant("612") << "612" << QVariant(612.0);
    QTest::newRow("list by index") << "member.material" << int(listIndexRole) << QVariant(2) << "2"
                                   << QVariant("C30/37");
    QTest::newRow("list by text") << "member.material" << int(valueRole) << QVariant("GL24h") << "3"
                                  << QVariant("GL24h");
    QTest::newRow("bool") << "member.hingeAtStart" << int(valueRole) << QVariant(true) << "true"
                          << QVariant(true);
    QTest::newRow("colour by name") << "display.color" << int(Qt::EditRole) << QVariant("#ff0000")
                                    << "#ff0000" << QVariant(QColor(Qt::red));
    QTest::newRow("string") << "general.comment" << int(valueRole) << QVariant("checked") << "\"checked\""
                            << QVariant("checked");
    QTest::newRow("integer given for a real")
        << "member.rotation" << int(valueRole) << QVariant(-90) << "-90" << QVariant(-90.0);
}

void tst_PropertiesModel::editThroughProxyReachesEverySelectedObject()
{
    QFETCH(QString, key);
    QFETCH(int, role);
    QFETCH(QVariant, input);
    QFETCH(QString, stored);
    QFETCH(QVariant, shown);
    const auto members = ObjectsOfType(*m_structure, StructuralObjectTypes::c_member);
    m_model->ShowObjects(m_structure, members);
    const QModelIndex index = ProxyIndexOf(*m_proxy, key);
    QVERIFY(index.isValid());

    QVERIFY(m_proxy->setData(index, input, role));

    for (ObjectId id : members)
        QCOMPARE(DescribeValue(m_structure->FindObject(id)->Value(key)), stored);
    const QModelIndex after = ProxyIndexOf(*m_proxy, key);
    QVERIFY(!after.data(mixedRole).toBool());
    QCOMPARE(after.data(valueRole), shown);
}

void tst_PropertiesModel::refusedEditKeepsEveryValue_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<bool>("hostRefuses");

    QTest::newRow("read-only") << "general.number" << QVariant(7) << "is read-only" << false;
    QTest::newRow("below the minimum")
        << "member.height" << QVariant(0.5) << "0.5 is below the minimum 1" << true;
    QTest::newRow("above the maximum")
        << "member.rotation" << QVariant(270) << "270 is above the maximum 180" << true;
    QTest::newRow("not a number") << "member.height" << QVariant("tall") << "is no real value" << false;
    QTest::newRow("not finite") << "member.height" << QVariant(qInf()) << "inf is not a finite number"
                                << true;
    QTest::newRow("no such choice") << "member.material" << QVariant(9) << "is no list value" << false;
    QTest::newRow("fractional integer")
        << "member.startNode" << QVariant(2.5) << "is no integer value" << false;
    QTest::newRow("not a colour") << "display.color" << QVariant("sunset") << "is no colour value" << false;
    QTest::newRow("no value") << "member.height" << QVariant() << "is no real value" << false;
}

void tst_PropertiesModel::refusedEditKeepsEveryValue()
{
    QFETCH(QString, key);
    QFETCH(QVariant, input);
    QFETCH(QString, warning);
    QFETCH(bool, hostRefuses);
    const auto members = ObjectsOfType(*m_structure, StructuralObjectTypes::c_member);
    m_model->ShowObjects(m_structure, members);
    std::vector<PropertyValue> before;
    for (ObjectId id : members)
        before.push_back(m_structure->FindObject(id)->Value(key));
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    QVERIFY(changed.isValid());

    // The host explains a refused value once per object in its debug output; the model warns
    // once about a value it cannot read or a property it may not write.
    const QRegularExpression message(QRegularExpression::escape(warning));
    if (hostRefuses) {
        for (std::size_t i = 0; i < members.size(); ++i)
            QTest::ignoreMessage(QtDebugMsg, message);
    } else {
        QTest::ignoreMessage(QtWarningMsg, message);
    }
    QVERIFY(!m_model->SetValue(input, UuidOf(key), PropertiesModel::NoAction));

    for (std::size_t i = 0; i < members.size(); ++i)
        QCOMPARE(m_structure->FindObject(members[i])->Value(key), before[i]);
    QCOMPARE(changed.count(), 0);
}

void tst_PropertiesModel::resetActionRestoresDefaults()
{
    const auto members = ObjectsOfType(*m_structure, StructuralObjectTypes::c_member);
    m_model->ShowObjects(m_structure, members);
    const QString uuid = UuidOf("member.height");

    QVERIFY(m_model->SetValue(QVariant(), uuid, PropertiesModel::ResetToDefaultAction));

    for (ObjectId id : members)
        QCOMPARE(std::get<double>(m_structure->FindObject(id)->Value("member.height")), 300.0);
    const QModelIndex height = m_model->index(m_model->FindRow(uuid));
    QCOMPARE(height.data(highlightStateRole).toInt(), 0);
    QCOMPARE(height.data(mixedValuesRole).toList(), QVariantList { 300.0 });
}

void tst_PropertiesModel::namedParameterWritesItsValue()
{
    const auto members = ObjectsOfType(*m_structure, StructuralObjectTypes::c_member);
    m_model->ShowObjects(m_structure, members);
    const QModelIndex yield = ProxyIndexOf(*m_proxy, "member.yieldStrength");

    QVERIFY(m_proxy->setData(yield, 3, selectedParametersIndicesRole));

    for (ObjectId id : members)
        QCOMPARE(std::get<double>(m_structure->FindObject(id)->Value("member.yieldStrength")), 460.0);
    QCOMPARE(ProxyIndexOf(*m_proxy, "member.yieldStrength").data(selectedParametersIndicesRole).toList(),
             QVariantList { 3 });
}

void tst_PropertiesModel::valuesThatBecomeMixedHideTheirRowAndHeader()
{
    // Two members on the same start node: the start node shows until one of them moves.
    const auto members = ObjectsOfType(*m_structure, StructuralObjectTypes::c_member);
    m_structure->Assign(members[1], "member.startNode", std::int32_t { 1 });
    m_structure->Assign(members[1], "member.endNode", std::int32_t { 4 });
    m_model->ShowObjects(m_structure, { members[0], members[1] });
    QVERIFY(ProxyIndexOf(*m_proxy, "member.startNode").isValid());
    QVERIFY(ProxyIndexOf(*m_proxy, "member.endNode").isValid());
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    QVERIFY(changed.isValid());

    m_structure->Assign(members[1], "member.startNode", std::int32_t { 2 });
    m_structure->Assign(members[1], "member.endNode", std::int32_t { 5 });
    m_model->RefreshValues();

    QCOMPARE(changed.count(), 1);
    const QModelIndex first = changed.front().at(0).toModelIndex();
    QCOMPARE(first.data(typeRole).toInt(), c_categoryType); // headers are asked again too
    QVERIFY(!ProxyIndexOf(*m_proxy, "member.startNode").isValid());
    for (int row = 0; row < m_proxy->rowCount(); ++row)
        QVERIFY(m_proxy->index(row, 0).data(nameRole).toString() != "Nodes");
}

void tst_PropertiesModel::collapsedFlagsFollowTheProxysList()
{
    m_model->ShowObjects(m_structure, { ObjectsOfType(*m_structure, StructuralObjectTypes::c_node).front() });
    const QString geometry = "UI_PROPERTIES_CATEGORY_GEOMETRY";
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    QVERIFY(changed.isValid());

    m_proxy->filterForCategory(geometry, true);
    m_proxy->UpdateCollapsedGroupsStates();

    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QModelIndex index = m_model->index(row);
        QCOMPARE(index.data(isCollapsedRole).toBool(), index.data(categoryRole).toString() == geometry);
    }
    QCOMPARE(changed.count(), 6); // the header, the subcategory and four properties
    QCOMPARE(changed.front().at(2).value<QList<int>>(), QList<int> { isCollapsedRole });
    QVERIFY(!ProxyIndexOf(*m_proxy, "node.x").isValid());
}

void tst_PropertiesModel::unknownObjectsAreLeftOut()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Object 999 does not exist"));
    m_model->ShowObjects(m_structure, { 999 });
    QCOMPARE(m_model->rowCount(), 0);
    QCOMPARE(m_proxy->rowCount(), 0);

    m_model->ShowObjects(nullptr, { 1 });
    QCOMPARE(m_model->rowCount(), 0);
}

QTEST_GUILESS_MAIN(tst_PropertiesModel)
#include "tst_propertiesmodel.moc"
