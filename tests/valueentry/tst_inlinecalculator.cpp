#include "basiccomponents/NumberFormatSettings.h"
#include "framework/ServiceCatalog.h"
#include "valueentry/InlineCalculator.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <memory>

using Orvo::UI::UIComponents::InlineCalculator;

namespace {

// Every notifier of the calculator, so a test can state which ones fired.
struct NotifierSpies
{
    explicit NotifierSpies(InlineCalculator& calculator)
        : multipleEnabled(&calculator, &InlineCalculator::multipleEnabledChanged)
        , separators(&calculator, &InlineCalculator::separatorsChanged)
        , expression(&calculator, &InlineCalculator::expressionChanged)
        , valid(&calculator, &InlineCalculator::validChanged)
        , result(&calculator, &InlineCalculator::resultChanged)
        , multipleValids(&calculator, &InlineCalculator::multipleValidsChanged)
        , multipleResults(&calculator, &InlineCalculator::multipleResultsChanged)
    { }

    // "name=count" of every notifier that fired, in declaration order.
    QString Fired() const
    {
        QStringList fired;
        const std::pair<const char*, const QSignalSpy*> spies[] = {
            { "multipleEnabled", &multipleEnabled },
            { "separators", &separators },
            { "expression", &expression },
            { "valid", &valid },
            { "result", &result },
            { "multipleValids", &multipleValids },
            { "multipleResults", &multipleResults },
        };
        for (const auto& [name, spy] : spies) {
            if (spy->count() > 0)
                fired.append(QStringLiteral("%1=%2").arg(QLatin1String(name)).arg(spy->count()));
        }
        return fired.join(QLatin1Char(' '));
    }

    QSignalSpy multipleEnabled;
    QSignalSpy separators;
    QSignalSpy expression;
    QSignalSpy valid;
    QSignalSpy result;
    QSignalSpy multipleValids;
    QSignalSpy multipleResults;
};

// Results as text, so that NaN compares equal to NaN in test expectations.
QString Describe(const QList<double>& results)
{
    QStringList texts;
    for (const double result : results)
        texts.append(std::isnan(result) ? QStringLiteral("nan") : QString::number(result));
    return texts.join(QLatin1Char(' '));
}

QString Describe(double result)
{
    return Describe(QList<double> { result });
}

} // namespace

class tst_InlineCalculator : public QObject
{
    Q_OBJECT

private slots:
    void shouldEvaluateOneValue_data();
    void shouldEvaluateOneValue();
    void shouldReEmitNaNForEveryInvalidEvaluation();
    void shouldEvaluateEachPartInMultipleMode_data();
    void shouldEvaluateEachPartInMultipleMode();
    void shouldEvaluateASameExpressionOnlyOnce();
    void shouldApplyAModeChangeOnlyWithTheNextExpression();
    void shouldReEvaluateOnSeparatorsOnlyInMultipleMode();
    void shouldFormatWithTheHostNumberSettings();
};

void tst_InlineCalculator::shouldEvaluateOneValue_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("result");

    QTest::newRow("arithmetic") << "2*(3+4)/5" << true << "2.8";
    QTest::newRow("units") << "sin(30deg)+500mm" << true << "1";
    QTest::newRow("passed untrimmed") << " 1 + 1 " << true << "2";
    QTest::newRow("junk") << "2+" << false << "nan";
    QTest::newRow("several values are not one") << "1;2" << false << "nan";
}

void tst_InlineCalculator::shouldEvaluateOneValue()
{
    QFETCH(QString, expression);
    QFETCH(bool, valid);
    QFETCH(QString, result);

    InlineCalculator calculator;
    NotifierSpies spies(calculator);
    calculator.setExpression(expression);

    QCOMPARE(calculator.isValid(), valid);
    QCOMPARE(Describe(calculator.getResult()), result);
    QCOMPARE(calculator.getMultipleValids(), QList<bool> { valid });
    QCOMPARE(Describe(calculator.getMultipleResults()), result);
    QCOMPARE(spies.expression.count(), 1);
    QCOMPARE(spies.valid.count(), valid ? 1 : 0);
}

void tst_InlineCalculator::shouldReEmitNaNForEveryInvalidEvaluation()
{
    // Given a calculator whose result is NaN from the start
    InlineCalculator calculator;
    NotifierSpies spies(calculator);
    QVERIFY(std::isnan(calculator.getResult()));

    // When an invalid expression and then the empty expression are evaluated
    calculator.setExpression(QStringLiteral("x"));
    calculator.setExpression(QString());

    // Then each evaluation announced its NaN result, while valid never changed and the list
    // [NaN] compared equal to itself (QList compares doubles bitwise)
    QCOMPARE(spies.Fired(), QStringLiteral("expression=2 result=2 multipleValids=1 multipleResults=1"));
    QVERIFY(!calculator.isValid());
    QCOMPARE(calculator.getMultipleValids(), QList<bool> { false });
    QCOMPARE(Describe(calculator.getMultipleResults()), QStringLiteral("nan"));
}

void tst_InlineCalculator::shouldEvaluateEachPartInMultipleMode_data()
{
    QTest::addColumn<QStringList>("separators");
    QTest::addColumn<QString>("expression");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QList<bool>>("valids");
    QTest::addColumn<QString>("results");

    const QStringList spotlight { QStringLiteral(";"), QStringLiteral(" ") };
    QTest::newRow("space and semicolon")
        << spotlight << "1+1 2*3;4" << true << "2" << QList<bool> { true, true, true } << "2 6 4";
    QTest::newRow("one invalid part")
        << spotlight << "1+1;;x" << false << "2" << QList<bool> { true, false } << "2 nan";
    QTest::newRow("runs of blanks collapse")
        << spotlight << "  1    2 " << true << "1" << QList<bool> { true, true } << "1 2";
    QTest::newRow("only separators") << spotlight << " ; ;  ; " << false << "nan" << QList<bool> {} << "";
    QTest::newRow("empty expression") << spotlight << "" << false << "nan" << QList<bool> {} << "";
    QTest::newRow("no separators: semicolon still splits")
        << QStringList {} << "1 2;3" << false << "nan" << QList<bool> { false, true } << "nan 3";
    QTest::newRow("separator of several characters") << QStringList { QStringLiteral("//") } << "1//2+2"
                                                     << true << "1" << QList<bool> { true, true } << "1 4";
    QTest::newRow("parts keep their blanks") << QStringList { QStringLiteral("|") } << "1 | 2mm" << true
                                             << "1" << QList<bool> { true, true } << "1 0.002";
    QTest::newRow("empty separator ignored") << QStringList { QString(), QStringLiteral(" ") } << "12 3"
                                             << true << "12" << QList<bool> { true, true } << "12 3";
}

void tst_InlineCalculator::shouldEvaluateEachPartInMultipleMode()
{
    QFETCH(QStringList, separators);
    QFETCH(QString, expression);
    QFETCH(bool, valid);
    QFETCH(QString, result);
    QFETCH(QList<bool>, valids);
    QFETCH(QString, results);

    InlineCalculator calculator;
    calculator.setMultipleEnabled(true);
    calculator.setSeparators(separators);
    calculator.setExpression(QStringLiteral("0"));
    calculator.setExpression(expression);

    QCOMPARE(calculator.isValid(), valid);
    QCOMPARE(Describe(calculator.getResult()), result);
    QCOMPARE(calculator.getMultipleValids(), valids);
    QCOMPARE(Describe(calculator.getMultipleResults()), results);
}

void tst_InlineCalculator::shouldEvaluateASameExpressionOnlyOnce()
{
    InlineCalculator calculator;
    NotifierSpies spies(calculator);

    calculator.setExpression(QStringLiteral("x"));
    calculator.setExpression(QStringLiteral("x"));

    // A second evaluation would have re-emitted the NaN result.
    QCOMPARE(spies.Fired(), QStringLiteral("expression=1 result=1 multipleValids=1 multipleResults=1"));
}

void tst_InlineCalculator::shouldApplyAModeChangeOnlyWithTheNextExpression()
{
    // Given "1;2" evaluated as one value (which it is not)
    InlineCalculator calculator;
    calculator.setExpression(QStringLiteral("1;2"));
    QVERIFY(!calculator.isValid());

    // When switching to multiple mode, then nothing is re-evaluated
    NotifierSpies spies(calculator);
    calculator.setMultipleEnabled(true);
    QCOMPARE(spies.Fired(), QStringLiteral("multipleEnabled=1"));
    QVERIFY(!calculator.isValid());

    // When the expression changes, then it is split
    calculator.setExpression(QStringLiteral("1;3"));
    QVERIFY(calculator.isValid());
    QCOMPARE(Describe(calculator.getMultipleResults()), QStringLiteral("1 3"));
}

void tst_InlineCalculator::shouldReEvaluateOnSeparatorsOnlyInMultipleMode()
{
    InlineCalculator calculator;
    calculator.setExpression(QStringLiteral("1 2"));
    QVERIFY(!calculator.isValid());

    {
        NotifierSpies spies(calculator);
        calculator.setSeparators({ QStringLiteral(" ") });
        QCOMPARE(spies.Fired(), QStringLiteral("separators=1"));
    }

    calculator.setMultipleEnabled(true);
    calculator.setSeparators({ QStringLiteral(" "), QStringLiteral(";") });
    QVERIFY(calculator.isValid());
    QCOMPARE(Describe(calculator.getMultipleResults()), QStringLiteral("1 2"));
}

void tst_InlineCalculator::shouldFormatWithTheHostNumberSettings()
{
    using Orvo::UI::BasicComponents::NumberFormatSettings;
    auto settings = Orvo::Kernel::Framework::ServiceCatalog::Global()->Get<NumberFormatSettings>();
    QVERIFY(settings);
    settings->SetLocale(QLocale(QLocale::German, QLocale::Germany));
    settings->SetEditDecimals(3);

    InlineCalculator calculator;
    QCOMPARE(calculator.formatValue(1.0 / 3.0), QStringLiteral("0,333"));
    QCOMPARE(calculator.formatValue(2.5), QStringLiteral("2,5"));

    settings->UseApplicationLocale();
    settings->SetEditDecimals(NumberFormatSettings::c_defaultEditDecimals);
}

QTEST_GUILESS_MAIN(tst_InlineCalculator)
#include "tst_inlinecalculator.moc"
