#include "valueentry/MixedValues.h"

#include <QtTest>

#include <limits>

using Orvo::UI::UIComponents::MixedValues;
using Value = MixedValues::Value;
using Values = std::vector<Value>;

Q_DECLARE_METATYPE(Values)

namespace {

constexpr double c_nan = std::numeric_limits<double>::quiet_NaN();

QList<bool> AddAll(MixedValues& mixed, const Values& values)
{
    QList<bool> added;
    for (const Value& value : values)
        added.append(mixed.AddUnique(value));
    return added;
}

} // namespace

class tst_MixedValues : public QObject
{
    Q_OBJECT

private slots:
    void shouldKeepOnlyDistinctValues_data();
    void shouldKeepOnlyDistinctValues();
    void shouldMergeAnotherSetInItsOrder();
    void shouldForgetTheLastValueCompletely_data();
    void shouldForgetTheLastValueCompletely();
    void shouldRefuseRemovingFromAnEmptySet();
    void shouldHandTheValuesToQmlInFirstSeenOrder();
    void shouldRebuildTheQmlListAfterAChange();
    void shouldCopyIndependently();
};

void tst_MixedValues::shouldKeepOnlyDistinctValues_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<QList<bool>>("added");
    QTest::addColumn<int>("count");

    QTest::newRow("same double twice") << Values { 1.0, 1.0 } << QList<bool> { true, false } << 1;
    QTest::newRow("NaN is never a duplicate") << Values { c_nan, c_nan } << QList<bool> { true, true } << 2;
    QTest::newRow("bool, integer and double of one stay apart")
        << Values { true, MixedValues::Integer(1), 1.0 } << QList<bool> { true, true, true } << 3;
    QTest::newRow("doubles compare exactly") << Values { 0.1 + 0.2, 0.3 } << QList<bool> { true, true } << 2;
    QTest::newRow("signed zeros are one value") << Values { 0.0, -0.0 } << QList<bool> { true, false } << 1;
    QTest::newRow("strings are case-sensitive")
        << Values { QStringLiteral("Steel"), QStringLiteral("steel"), QStringLiteral("Steel") }
        << QList<bool> { true, true, false } << 2;
    QTest::newRow("actions compare by value")
        << Values { MixedValues::Action { 7 }, MixedValues::Action { 7 }, MixedValues::Action { 8 } }
        << QList<bool> { true, false, true } << 2;
    QTest::newRow("an action is not an integer")
        << Values { MixedValues::Action { 3 }, MixedValues::Integer(3) } << QList<bool> { true, true } << 2;
}

void tst_MixedValues::shouldKeepOnlyDistinctValues()
{
    QFETCH(Values, values);
    QFETCH(QList<bool>, added);
    QFETCH(int, count);

    MixedValues mixed;
    QCOMPARE(AddAll(mixed, values), added);
    QCOMPARE(mixed.GetCount(), std::size_t(count));
}

void tst_MixedValues::shouldMergeAnotherSetInItsOrder()
{
    // Given a set holding c, and another holding [b, c, a]
    MixedValues ours;
    ours.AddUnique(QStringLiteral("c"));
    MixedValues other;
    AddAll(other, { QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("a") });

    // When merging, then only b and a are new and they follow other's order
    QCOMPARE(ours.AddUnique(other), 2u);
    QCOMPARE(ours.GetVariantList(),
             (QVariantList { QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a") }));
    QCOMPARE(ours.AddUnique(other), 0u);
}

void tst_MixedValues::shouldForgetTheLastValueCompletely_data()
{
    QTest::addColumn<Value>("removed");
    QTest::newRow("double") << Value(2.5);
    QTest::newRow("string") << Value(QStringLiteral("S235"));
}

void tst_MixedValues::shouldForgetTheLastValueCompletely()
{
    QFETCH(Value, removed);
    MixedValues mixed;
    mixed.AddUnique(true);
    mixed.AddUnique(removed);

    QVERIFY(mixed.RemoveLast());
    QCOMPARE(mixed.GetCount(), std::size_t(1));
    // It left the duplicate test as well, so it is new again.
    QVERIFY(mixed.AddUnique(removed));
    QCOMPARE(mixed.GetCount(), std::size_t(2));
    QVERIFY(!mixed.AddUnique(true));
}

void tst_MixedValues::shouldRefuseRemovingFromAnEmptySet()
{
    MixedValues mixed;
    QVERIFY(!mixed.RemoveLast());
    QCOMPARE(mixed.GetCount(), std::size_t(0));
    QVERIFY(mixed.GetVariantList().isEmpty());
}

void tst_MixedValues::shouldHandTheValuesToQmlInFirstSeenOrder()
{
    MixedValues mixed;
    AddAll(mixed,
           { 2.5, MixedValues::Integer(-4), QStringLiteral("S355"), false, 2.5, MixedValues::Action { 12 } });

    const QVariantList list = mixed.GetVariantList();
    QCOMPARE(list.size(), 5);
    QCOMPARE(list.at(0).typeId(), QMetaType::Double);
    QCOMPARE(list.at(0).toDouble(), 2.5);
    QCOMPARE(list.at(1).typeId(), QMetaType::Int);
    QCOMPARE(list.at(1).toInt(), -4);
    QCOMPARE(list.at(2).toString(), QStringLiteral("S355"));
    QCOMPARE(list.at(3).typeId(), QMetaType::Bool);
    QCOMPARE(list.at(4).toMap().value(QString::fromLatin1(MixedValues::c_actionKey)).toInt(), 12);
}

void tst_MixedValues::shouldRebuildTheQmlListAfterAChange()
{
    MixedValues mixed;
    mixed.AddUnique(1.0);
    QCOMPARE(mixed.GetVariantList().size(), 1);

    mixed.AddUnique(2.0);
    QCOMPARE(mixed.GetVariantList(), (QVariantList { 1.0, 2.0 }));
    mixed.RemoveLast();
    QCOMPARE(mixed.GetVariantList(), (QVariantList { 1.0 }));
}

void tst_MixedValues::shouldCopyIndependently()
{
    MixedValues original;
    original.AddUnique(1.0);
    original.GetVariantList();

    MixedValues copy = original;
    QVERIFY(copy.AddUnique(2.0));
    QVERIFY(!copy.AddUnique(1.0));

    QCOMPARE(original.GetCount(), std::size_t(1));
    QCOMPARE(original.GetVariantList(), (QVariantList { 1.0 }));
    QCOMPARE(copy.GetVariantList(), (QVariantList { 1.0, 2.0 }));
}

QTEST_GUILESS_MAIN(tst_MixedValues)
#include "tst_mixedvalues.moc"
