#include "properties/PropertiesProxyModel.h"
#include "properties/PropertiesRoles.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::PropertiesRoles;

namespace {

// Builds a flat property list from short descriptions:
//   "C:Name"        a category
//   "S2:Name"       a subcategory of level 2
//   "P:name/flags"  a property of the last category; flags: adv (not basic), mixed, stay
//                   (visible when values differ)
std::unique_ptr<QStandardItemModel> MakeSource(const QStringList& rows)
{
    auto model = std::make_unique<QStandardItemModel>();
    QString category;
    for (const QString& description : rows) {
        const QString kind = description.section(QLatin1Char(':'), 0, 0);
        const QString rest = description.section(QLatin1Char(':'), 1);
        const QString name = rest.section(QLatin1Char('/'), 0, 0);
        const QStringList flags
            = rest.section(QLatin1Char('/'), 1).split(QLatin1Char(','), Qt::SkipEmptyParts);
        auto* item = new QStandardItem(name);
        item->setData(name, nameRole);
        if (kind == QLatin1String("C")) {
            category = name;
            item->setData(c_categoryType, typeRole);
            item->setData(category, categoryRole);
        } else if (kind.startsWith(QLatin1Char('S'))) {
            item->setData(c_subcategoryType, typeRole);
            item->setData(kind.mid(1).toInt(), valueRole);
            item->setData(category, categoryRole);
        } else {
            item->setData(3, typeRole);
            item->setData(category, categoryRole);
            item->setData(!flags.contains(QLatin1String("adv")), isBasicRole);
            item->setData(flags.contains(QLatin1String("mixed")), mixedRole);
            item->setData(flags.contains(QLatin1String("stay")), visibleWhenValuesDifferRole);
        }
        model->appendRow(item);
    }
    return model;
}

QString VisibleNames(const QAbstractItemModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.push_back(model.index(row, 0).data(nameRole).toString());
    return names.join(QLatin1Char(' '));
}

} // namespace

class tst_PropertiesProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void filtersRows_data();
    void filtersRows();
    void collapsingTwiceThenExpandingOnceExpands();
    void withoutSharedListNothingCollapses();
    void basicModeFiltersAgainOnlyOnChange();
    void flagsAndEditsReachTheSource();
    void withoutSourceEverythingIsRejected();
};

void tst_PropertiesProxyModel::filtersRows_data()
{
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("collapsed");
    QTest::addColumn<bool>("basicMode");
    QTest::addColumn<QString>("expected");

    QTest::newRow("category followed by a category is hidden")
        << QStringList { "C:A", "C:B", "P:b" } << QStringList() << true << "B b";
    QTest::newRow("category at the end is hidden")
        << QStringList { "C:A", "P:a", "C:B" } << QStringList() << true << "A a";
    QTest::newRow("category of mixed properties only is hidden")
        << QStringList { "C:A", "P:a/mixed", "P:c/mixed", "C:B", "P:b" } << QStringList() << true << "B b";
    QTest::newRow("a mixed property that stays brings its category back")
        << QStringList { "C:A", "P:a/mixed", "P:c/mixed,stay", "C:B", "P:b" } << QStringList() << true
        << "A c B b";
    QTest::newRow("collapsed category keeps its header only")
        << QStringList { "C:A", "P:a", "S1:s", "P:a2", "C:B", "P:b" } << QStringList { "A" } << true
        << "A B b";
    QTest::newRow("collapsed category with nothing available is hidden")
        << QStringList { "C:A", "P:a/adv", "C:B", "P:b" } << QStringList { "A" } << true << "B b";
    QTest::newRow("basic mode hides advanced properties and their category")
        << QStringList { "C:A", "P:a/adv", "C:B", "P:b", "P:b2/adv" } << QStringList() << true << "B b";
    QTest::newRow("advanced mode shows them") << QStringList { "C:A", "P:a/adv", "C:B", "P:b", "P:b2/adv" }
                                              << QStringList() << false << "A a B b b2";
    QTest::newRow("subcategory holding a deeper one with a visible property is shown")
        << QStringList { "C:A", "S1:s", "S2:t", "P:a" } << QStringList() << true << "A s t a";
    QTest::newRow("subcategory followed by one of the same level is hidden")
        << QStringList { "C:A", "S1:s", "S1:t", "P:a" } << QStringList() << true << "A t a";
    QTest::newRow("subcategory ends at a shallower one")
        << QStringList { "C:A", "S2:s", "S1:t", "P:a" } << QStringList() << true << "A t a";
    QTest::newRow("subcategory of advanced properties is hidden in basic mode")
        << QStringList { "C:A", "P:a", "S1:s", "P:x/adv" } << QStringList() << true << "A a";
    QTest::newRow("subcategory ends at the next category")
        << QStringList { "C:A", "S1:s", "C:B", "P:b" } << QStringList() << true << "B b";
    QTest::newRow("property without category is never collapsed")
        << QStringList { "P:free", "C:A", "P:a" } << QStringList { "" } << true << "free A a";
    QTest::newRow("collapse compares names case-sensitively")
        << QStringList { "C:A", "P:a" } << QStringList { "a" } << true << "A a";
}

void tst_PropertiesProxyModel::filtersRows()
{
    QFETCH(QStringList, rows);
    QFETCH(QStringList, collapsed);
    QFETCH(bool, basicMode);
    QFETCH(QString, expected);

    auto source = MakeSource(rows);
    auto shared = std::make_shared<std::vector<QString>>(collapsed.begin(), collapsed.end());
    PropertiesProxyModel proxy(nullptr, shared);
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.SetInBasicMode(basicMode);
    proxy.setSourceModel(source.get());

    QCOMPARE(VisibleNames(proxy), expected);
}

void tst_PropertiesProxyModel::collapsingTwiceThenExpandingOnceExpands()
{
    auto source = MakeSource({ "C:A", "P:a", "C:B", "P:b" });
    auto shared = std::make_shared<std::vector<QString>>();
    PropertiesProxyModel proxy(nullptr, shared);
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(source.get());

    proxy.filterForCategory("A", true);
    proxy.filterForCategory("A", true);
    QCOMPARE(shared->size(), 2u);
    QVERIFY(proxy.isCategoryCollapsed("A"));
    QCOMPARE(VisibleNames(proxy), "A B b");

    proxy.filterForCategory("A", false);
    QVERIFY(shared->empty());
    QVERIFY(!proxy.isCategoryCollapsed("A"));
    QCOMPARE(VisibleNames(proxy), "A a B b");
}

void tst_PropertiesProxyModel::withoutSharedListNothingCollapses()
{
    auto source = MakeSource({ "C:A", "P:a" });
    PropertiesProxyModel proxy;
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(source.get());
    QSignalSpy removed(&proxy, &QAbstractItemModel::rowsRemoved);
    QVERIFY(removed.isValid());

    proxy.filterForCategory("A", true);
    proxy.UpdateCollapsedGroupsStates();

    QVERIFY(!proxy.isCategoryCollapsed("A"));
    QCOMPARE(removed.count(), 0);
    QCOMPARE(VisibleNames(proxy), "A a");
}

void tst_PropertiesProxyModel::basicModeFiltersAgainOnlyOnChange()
{
    auto source = MakeSource({ "C:A", "P:a", "P:x/adv" });
    PropertiesProxyModel proxy;
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(source.get());
    QSignalSpy inserted(&proxy, &QAbstractItemModel::rowsInserted);
    QVERIFY(inserted.isValid());

    proxy.SetInBasicMode(true);
    QCOMPARE(inserted.count(), 0);
    proxy.SetInBasicMode(false);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(VisibleNames(proxy), "A a x");
}

void tst_PropertiesProxyModel::flagsAndEditsReachTheSource()
{
    auto source = MakeSource({ "C:A", "P:hidden/adv", "P:a" });
    source->item(2)->setFlags(Qt::ItemIsEnabled);
    PropertiesProxyModel proxy;
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(source.get());

    const QModelIndex a = proxy.index(1, 0);
    QCOMPARE(a.data(nameRole).toString(), "a");
    QCOMPARE(proxy.flags(a), Qt::ItemIsEnabled);

    QVERIFY(proxy.setData(a, 42, valueRole));
    QCOMPARE(source->item(2)->data(valueRole).toInt(), 42);
    QVERIFY(!source->item(1)->data(valueRole).isValid());
}

void tst_PropertiesProxyModel::withoutSourceEverythingIsRejected()
{
    PropertiesProxyModel proxy;
    QCOMPARE(proxy.rowCount(), 0);
    QCOMPARE(proxy.flags(QModelIndex()), Qt::NoItemFlags);
    QVERIFY(!proxy.setData(QModelIndex(), 1, valueRole));
    QTest::ignoreMessage(QtWarningMsg, "SetValue: the proxy's source is not a PropertiesModel");
    QVERIFY(!proxy.SetValue(1, "uuid", 0));
}

QTEST_GUILESS_MAIN(tst_PropertiesProxyModel)
#include "tst_propertiesproxymodel.moc"
