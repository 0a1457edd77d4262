#include "PropertiesTestSupport.h"
#include "model/ModelGenerator.h"
#include "properties/PropertiesModel.h"
#include "properties/PropertiesProxyModel.h"
#include "properties/PropertiesRoles.h"
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
    void namedParameterWritesItsValueAndGrade_data();
    void namedParameterWritesItsValueAndGrade();
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
    FillSampleFrame(*m_structure);
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

    QTest::newRow("node: a subcategory below its category")
        << StructuralObjectTypes::c_node
        << QStringList { "C:UI_PROPERTIES_CATEGORY_GENERAL",
                         "general.number",
                         "general.name",
                         "C:UI_PROPERTIES_CATEGORY_GEOMETRY",
                         "S1:Coordinates",
                         "node.x",
                         "node.y",
                         "node.z" };
    QTest::newRow("I-section: nested subcategories deepen the level, other shapes' dimensions left out")
        << StructuralObjectTypes::c_crossSection
        << QStringList { "C:UI_PROPERTIES_CATEGORY_GENERAL",
                         "general.number",
                         "general.name",
                         "C:UI_PROPERTIES_CATEGORY_CROSS_SECTION",
                         "section.shape",
                         "S1:Dimensions",
                         "section.height",
                         "section.width",
                         "S2:Plates",
                         "section.flangeThickness",
                         "section.webThickness",
                         "S1:Section values",
                         "section.area",
                         "section.iy",
                         "section.iz",
                         "section.torsion" };
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
    const auto members = ObjectsOfType(*m_structure, StructuralObjectTypes::c_member);
    m_structure->Assign(members[0], "member.startRelease", std::int32_t { 1 });
    m_model->ShowObjects(m_structure, members);
    const QVariantMap resetAction { { MixedValues::c_actionKey, PropertiesModel::ResetToDefaultAction } };

    const QModelIndex release = m_model->index(m_model->FindRow(UuidOf("member.startRelease")));
    QVERIFY(release.data(mixedRole).toBool());
    QCOMPARE(release.data(mixedValuesRole).toList(),
             (QVariantList { "Hinge (My, Mz)", "Rigid", resetAction }));
    QCOMPARE(release.data(listIndexRole).toInt(), -1);
    QCOMPARE(release.data(allValuesRole).toStringList().size(), 5);
    QVERIFY(release.data(hasActionRole).toBool());

    // A reference has no default to go back to.
    const QModelIndex section = m_model->index(m_model->FindRow(UuidOf("member.section")));
    QCOMPARE(section.data(mixedValuesRole).toList(), (QVariantList { 1, 2 }));
    QVERIFY(!section.data(hasActionRole).toBool());

    m_model->ShowObjects(m_structure,
                         { ObjectsOfType(*m_structure, StructuralObjectTypes::c_material).front() });
    const QModelIndex yield = m_model->index(m_model->FindRow(UuidOf("material.yieldStrength")));
    QCOMPARE(yield.data(selectedParametersIndicesRole).toList(), (QVariantList { 2 }));
    QCOMPARE(yield.data(parametersNamesRole).toStringList(),
             (QStringList { "S235", "S275", "S355", "S460" }));
}

void tst_PropertiesModel::sharedPropertiesOnlyForMixedKinds()
{
    const ObjectId material = ObjectsOfType(*m_structure, StructuralObjectTypes::c_material).front();
    const ObjectId loadCase = ObjectsOfType(*m_structure, StructuralObjectTypes::c_loadCase).front();

    m_model->ShowObjects(m_structure, { material, loadCase });

    QCOMPARE(Layout(*m_model),
             (QStringList { "C:UI_PROPERTIES_CATEGORY_GENERAL", "general.number", "general.name",
                            "C:UI_PROPERTIES_CATEGORY_DISPLAY", "display.color" }));
    const QModelIndex colour = m_model->index(m_model->FindRow(UuidOf("display.color")));
    QCOMPARE(colour.data(mixedValuesRole).toList(), (QVariantList { "#2b3445", "#b7791f" }));
}

void tst_PropertiesModel::editThroughProxyReachesEverySelectedObject_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<QString>("stored"); // what every object holds afterwards
    QTest::addColumn<QVariant>("shown"); // the row's value afterwards

    const QString section = StructuralObjectTypes::c_crossSection;
    const QString member = StructuralObjectTypes::c_member;
    const QString loadCase = StructuralObjectTypes::c_loadCase;
    QTest::newRow("real") << section << "section.height" << int(valueRole) << QVariant(450.5) << "450.5"
                          << QVariant(450.5);
    QTest::newRow("real typed as text")
        << section << "section.height" << int(valueRole) << QVariant("612") << "612" << QVariant(612.0);
    QTest::newRow("list by index") << member << "member.startRelease" << int(listIndexRole) << QVariant(2)
                                   << "2" << QVariant("Hinge about y (My)");
    QTest::newRow("list by text") << member << "member.endRelease" << int(valueRole)
                                  << QVariant("Hinge (My, Mz)") << "1" << QVariant("Hinge (My, Mz)");
    QTest::newRow("bool") << loadCase << "loadCase.selfWeight" << int(valueRole) << QVariant(true) << "true"
                          << QVariant(true);
    QTest::newRow("colour by name") << loadCase << "display.color" << int(Qt::EditRole) << QVariant("#ff0000")
                                    << "#ff0000" << QVariant(QColor(Qt::red));
    QTest::newRow("string parsed by the host")
        << StructuralObjectTypes::c_combination << "combination.definition" << int(valueRole)
        << QVariant("1.35*LC1 + LC3") << "\"1.35×LC1 + 1×LC3\"" << QVariant("1.35×LC1 + 1×LC3");
    QTest::newRow("integer given for a real")
        << member << "member.rotation" << int(valueRole) << QVariant(-90) << "-90" << QVariant(-90.0);
}

void tst_PropertiesModel::editThroughProxyReachesEverySelectedObject()
{
    QFETCH(QString, type);
    QFETCH(QString, key);
    QFETCH(int, role);
    QFETCH(QVariant, input);
    QFETCH(QString, stored);
    QFETCH(QVariant, shown);
    const auto objects = ObjectsOfType(*m_structure, type);
    m_model->ShowObjects(m_structure, objects);
    const QModelIndex index = ProxyIndexOf(*m_proxy, key);
    QVERIFY(index.isValid());

    QVERIFY(m_proxy->setData(index, input, role));

    for (ObjectId id : objects)
        QCOMPARE(DescribeValue(*m_structure->Value(id, key)), stored);
    const QModelIndex after = ProxyIndexOf(*m_proxy, key);
    QVERIFY(!after.data(mixedRole).toBool());
    QCOMPARE(after.data(valueRole), shown);
}

void tst_PropertiesModel::refusedEditKeepsEveryValue_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<bool>("hostRefuses");

    const QString section = StructuralObjectTypes::c_crossSection;
    const QString member = StructuralObjectTypes::c_member;
    QTest::newRow("read-only") << member << "general.number" << QVariant(7) << "is read-only" << false;
    QTest::newRow("below the minimum")
        << section << "section.height" << QVariant(0.05) << "BELOW_MINIMUM" << true;
    QTest::newRow("above the maximum")
        << member << "member.rotation" << QVariant(400) << "ABOVE_MAXIMUM" << true;
    QTest::newRow("not a number") << section << "section.height" << QVariant("tall") << "is no real value"
                                  << false;
    QTest::newRow("not finite") << section << "section.height" << QVariant(qInf()) << "NOT_A_NUMBER" << true;
    QTest::newRow("no such choice") << member << "member.startRelease" << QVariant(9) << "is no list value"
                                    << false;
    QTest::newRow("fractional integer")
        << member << "member.startNode" << QVariant(2.5) << "is no integer value" << false;
    QTest::newRow("no such node") << member << "member.endNode" << QVariant(99) << "NO_NODE" << true;
    QTest::newRow("not a colour") << StructuralObjectTypes::c_loadCase << "display.color"
                                  << QVariant("sunset") << "is no colour value" << false;
    QTest::newRow("no value") << section << "section.height" << QVariant() << "is no real value" << false;
}

void tst_PropertiesModel::refusedEditKeepsEveryValue()
{
    QFETCH(QString, type);
    QFETCH(QString, key);
    QFETCH(QVariant, input);
    QFETCH(QString, warning);
    QFETCH(bool, hostRefuses);
    const auto objects = ObjectsOfType(*m_structure, type);
    m_model->ShowObjects(m_structure, objects);
    std::vector<PropertyValue> before;
    for (ObjectId id : objects)
        before.push_back(*m_structure->Value(id, key));
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    QVERIFY(changed.isValid());
    QSignalSpy rejected(m_model.get(), &PropertiesModel::valueRejected);

    // The host explains a refused value once per object in its debug output; the model warns
    // once about a value it cannot read or a property it may not write.
    const QRegularExpression message(QRegularExpression::escape(warning));
    if (hostRefuses) {
        for (std::size_t i = 0; i < objects.size(); ++i)
            QTest::ignoreMessage(QtDebugMsg, message);
    } else {
        QTest::ignoreMessage(QtWarningMsg, message);
    }
    QVERIFY(!m_model->SetValue(input, UuidOf(key), PropertiesModel::NoAction));

    for (std::size_t i = 0; i < objects.size(); ++i)
        QCOMPARE(*m_structure->Value(objects[i], key), before[i]);
    QCOMPARE(changed.count(), 0);
    // What the host refused, it explains to the user.
    QCOMPARE(rejected.count(), hostRefuses ? 1 : 0);
}

void tst_PropertiesModel::resetActionRestoresDefaults()
{
    const auto sections = ObjectsOfType(*m_structure, StructuralObjectTypes::c_crossSection);
    m_model->ShowObjects(m_structure, sections);
    const QString uuid = UuidOf("section.height");

    QVERIFY(m_model->SetValue(QVariant(), uuid, PropertiesModel::ResetToDefaultAction));

    for (ObjectId id : sections)
        QCOMPARE(std::get<double>(*m_structure->Value(id, "section.height")), 300.0);
    const QModelIndex height = m_model->index(m_model->FindRow(uuid));
    QCOMPARE(height.data(highlightStateRole).toInt(), 0);
    QCOMPARE(height.data(mixedValuesRole).toList(), QVariantList { 300.0 });
}

void tst_PropertiesModel::namedParameterWritesItsValueAndGrade_data()
{
    QTest::addColumn<int>("parameter");
    QTest::addColumn<double>("strength");
    QTest::addColumn<QString>("grade");

    QTest::newRow("S235") << 0 << 235.0 << "S235";
    QTest::newRow("S460") << 3 << 460.0 << "S460";
}

void tst_PropertiesModel::namedParameterWritesItsValueAndGrade()
{
    QFETCH(int, parameter);
    QFETCH(double, strength);
    QFETCH(QString, grade);
    const ObjectId steel = ObjectsOfType(*m_structure, StructuralObjectTypes::c_material).front();
    m_model->ShowObjects(m_structure, { steel });
    const QModelIndex yield = ProxyIndexOf(*m_proxy, "material.yieldStrength");

    QVERIFY(m_proxy->setData(yield, parameter, selectedParametersIndicesRole));

    QCOMPARE(std::get<double>(*m_structure->Value(steel, "material.yieldStrength")), strength);
    QCOMPARE(ProxyIndexOf(*m_proxy, "material.yieldStrength").data(selectedParametersIndicesRole).toList(),
             QVariantList { parameter });
    // The grade follows the strength chosen by its name.
    QCOMPARE(ProxyIndexOf(*m_proxy, "material.steelGrade").data(valueRole).toString(), grade);
}

void tst_PropertiesModel::valuesThatBecomeMixedHideTheirRowAndHeader()
{
    // Two members on the same start node: the start node shows until one of them moves.
    const auto members = ObjectsOfType(*m_structure, StructuralObjectTypes::c_member);
    m_structure->Assign(members[1], "member.startNode", std::int32_t { 1 });
    m_structure->Assign(members[1], "member.endNode", std::int32_t { 2 });
    m_model->ShowObjects(m_structure, { members[0], members[1] });
    QVERIFY(ProxyIndexOf(*m_proxy, "member.startNode").isValid());
    QVERIFY(ProxyIndexOf(*m_proxy, "member.endNode").isValid());
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    QVERIFY(changed.isValid());

    m_structure->Assign(members[1], "member.startNode", std::int32_t { 3 });
    m_structure->Assign(members[1], "member.endNode", std::int32_t { 4 });
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
    QCOMPARE(changed.count(), 5); // the header, the subcategory and three properties
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
