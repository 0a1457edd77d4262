#include "valueentry/MixedValues.h"

#include <QtTest>

#include <limits>

using Orvo::UI::UIComponents::MixedValues;
using Values = std::vector<MixedValues::Value>;

Q_DECLARE_METATYPE(Values)

class tst_MixedValues : public QObject
{
    Q_OBJECT

private slots:
    void shouldKeepOnlyDistinctValues_data();
    void shouldKeepOnlyDistinctValues();
    void shouldMergeAnotherSetInItsOrder();
    void shouldForgetTheLastValueCompletely();
    void shouldHandTheValuesToQmlInFirstSeenOrder();
};

void tst_MixedValues::shouldKeepOnlyDistinctValues_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<QList<bool>>("added");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("same double twice") << Values { 1.0, 1.0 } << QList<bool> { true, false };
    QTest::newRow("NaN is never a duplicate") << Values { nan, nan } << QList<bool> { true, true };
    QTest::newRow("bool, integer and double of one stay apart")
        << Values { true, MixedValues::Integer(1), 1.0 } << QList<bool> { true, true, true };
    QTest::newRow("doubles compare exactly") << Values { 0.1 + 0.2, 0.3 } << QList<bool> { true, true };
    QTest::newRow("signed zeros are one value") << Values { 0.0, -0.0 } << QList<bool> { true, false };
    QTest::newRow("strings are case-sensitive")
        << Values { QStringLiteral("Steel"), QStringLiteral("steel"), QStringLiteral("Steel") }
        << QList<bool> { true, true, false };
    QTest::newRow("actions compare by value")
        << Values { MixedValues::Action { 7 }, MixedValues::Action { 7 }, MixedValues::Integer(7) }
        << QList<bool> { true, false, true };
}

void tst_MixedValues::shouldKeepOnlyDistinctValues()
{
    QFETCH(Values, values);
    QFETCH(QList<bool>, added);

    MixedValues mixed;
    QList<bool> actual;
    for (const auto& value : values)
        actual.append(mixed.AddUnique(value));
    QCOMPARE(actual, added);
    QCOMPARE(mixed.GetCount(), std::size_t(added.count(true)));
}

void tst_MixedValues::shouldMergeAnotherSetInItsOrder()
{
    // Given ours holding c, and other holding [b, c, a]
    MixedValues ours;
    ours.AddUnique(QStringLiteral("c"));
    MixedValues other;
    for (const char* text : { "b", "c", "a" })
        other.AddUnique(QString::fromLatin1(text));

    // Then merging adds b and a, in other's order, and a second merge adds nothing
    QCOMPARE(ours.AddUnique(other), 2u);
    QCOMPARE(ours.GetVariantList(),
             (QVariantList { QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a") }));
    QCOMPARE(ours.AddUnique(other), 0u);
}

void tst_MixedValues::shouldForgetTheLastValueCompletely()
{
    MixedValues mixed;
    QVERIFY(!mixed.RemoveLast());

    mixed.AddUnique(true);
    mixed.AddUnique(2.5);
    QCOMPARE(mixed.GetVariantList().size(), 2);
    QVERIFY(mixed.RemoveLast());

    // The cached list and the duplicate test both forgot it.
    QCOMPARE(mixed.GetVariantList(), QVariantList { true });
    QVERIFY(mixed.AddUnique(2.5));
    QVERIFY(!mixed.AddUnique(true));
}

void tst_MixedValues::shouldHandTheValuesToQmlInFirstSeenOrder()
{
    MixedValues mixed;
    QVERIFY(mixed.GetVariantList().isEmpty());
    mixed.AddUnique(2.5);
    QCOMPARE(mixed.GetVariantList(), QVariantList { 2.5 });
    // A list handed out before does not hide values added after it
    for (const auto& value :
         Values { MixedValues::Integer(-4), QStringLiteral("S355"), false, 2.5, MixedValues::Action { 12 } })
        mixed.AddUnique(value);

    const QVariantList list = mixed.GetVariantList();
    QCOMPARE(list.size(), 5);
    QCOMPARE(list.at(0), QVariant(2.5));
    QCOMPARE(list.at(1), QVariant(-4));
    QCOMPARE(list.at(1).typeId(), QMetaType::Int);
    QCOMPARE(list.at(2), QVariant(QStringLiteral("S355")));
    QCOMPARE(list.at(3), QVariant(false));
    QCOMPARE(list.at(4).toMap().value(QString::fromLatin1(MixedValues::c_actionKey)), QVariant(12));
}

QTEST_GUILESS_MAIN(tst_MixedValues)
#include "tst_mixedvalues.moc"
