#include "valueentry/IntegerValidator.h"
#include "valueentry/RealValidator.h"

#include <QSignalSpy>
#include <QtTest>

using Orvo::UI::UIComponents::IntegerValidator;
using Orvo::UI::UIComponents::RealValidator;

class tst_Validators : public QObject
{
    Q_OBJECT

private slots:
    void shouldValidate_data();
    void shouldValidate();
    void realShouldAcceptOnlyValuesWithinItsBounds_data();
    void realShouldAcceptOnlyValuesWithinItsBounds();
    void realShouldNotifyBoundsAndDecimalsOnEverySet();
    void shouldNotifyExpressionAllowedOnlyFromTheIntegerValidator();
};

void tst_Validators::shouldValidate_data()
{
    QTest::addColumn<bool>("integer");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("expressionAllowed");
    QTest::addColumn<QVariant>("decimals");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("state");

    const QVariant none;
    for (const bool integer : { false, true }) {
        const QString kind = integer ? QStringLiteral("integer: ") : QStringLiteral("real: ");
        auto row = [&kind](const char* tag) -> QTestData& {
            return QTest::newRow(qPrintable(kind + QLatin1String(tag)));
        };
        row("equals sign alone waits for more")
            << integer << "en_US" << true << none << "=" << QValidator::Intermediate;
        row("expression let through")
            << integer << "en_US" << true << none << "=2*3" << QValidator::Acceptable;
        row("junk expression let through too")
            << integer << "en_US" << true << none << "=((x" << QValidator::Acceptable;
        row("empty text follows the number rules")
            << integer << "en_US" << true << none << "" << QValidator::Intermediate;
        row("expression refused when not allowed")
            << integer << "en_US" << false << none << "=1" << QValidator::Invalid;
        row("equals sign refused when not allowed")
            << integer << "en_US" << false << none << "=" << QValidator::Invalid;
        row("word") << integer << "en_US" << true << none << "abc" << QValidator::Invalid;
    }
    QTest::newRow("real: decimal comma in German")
        << false << "de_DE" << false << none << "1,5" << QValidator::Acceptable;
    QTest::newRow("real: decimal point in German")
        << false << "de_DE" << false << none << "1.5" << QValidator::Acceptable;
    QTest::newRow("real: too many decimals")
        << false << "en_US" << false << QVariant(2) << "1.234" << QValidator::Invalid;
    QTest::newRow("real: undefined decimals, no limit")
        << false << "en_US" << false << none << "1.23456789012" << QValidator::Acceptable;
    QTest::newRow("real: non-numeric decimals, no limit")
        << false << "en_US" << false << QVariant(QStringLiteral("many")) << "1.23456789"
        << QValidator::Acceptable;
    QTest::newRow("integer: fraction") << true << "en_US" << false << none << "1.5" << QValidator::Invalid;
}

void tst_Validators::shouldValidate()
{
    QFETCH(bool, integer);
    QFETCH(QString, locale);
    QFETCH(bool, expressionAllowed);
    QFETCH(QVariant, decimals);
    QFETCH(QString, input);
    QFETCH(QValidator::State, state);

    // The validators take the default locale when they are created.
    const QLocale previous;
    QLocale::setDefault(QLocale(locale));
    IntegerValidator integerValidator;
    RealValidator realValidator;
    QLocale::setDefault(previous);

    integerValidator.setExpressionAllowed(expressionAllowed);
    realValidator.setExpressionAllowed(expressionAllowed);
    realValidator.setDecimals(decimals);
    QValidator& validator = integer ? static_cast<QValidator&>(integerValidator) : realValidator;

    int pos = 0;
    QCOMPARE(validator.validate(input, pos), state);
    const bool acceptable = integer ? integerValidator.acceptable(input) : realValidator.acceptable(input);
    QCOMPARE(acceptable, state == QValidator::Acceptable);
}

void tst_Validators::realShouldAcceptOnlyValuesWithinItsBounds_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("acceptable");
    // A decimal point is read in every locale; the bounds hold however the number is written.
    QTest::newRow("C: below bottom") << "C" << "0.5" << false;
    QTest::newRow("C: above top") << "C" << "10.5" << false;
    QTest::newRow("C: within") << "C" << "5.5" << true;
    QTest::newRow("C: the bounds themselves") << "C" << "10" << true;
    QTest::newRow("German: below bottom") << "de_DE" << "0,5" << false;
    QTest::newRow("German: above top") << "de_DE" << "10,5" << false;
    QTest::newRow("German: below bottom with a point") << "de_DE" << "0.5" << false;
    QTest::newRow("German: above top with a point") << "de_DE" << "10.5" << false;
    QTest::newRow("German: within") << "de_DE" << "5,5" << true;
    QTest::newRow("German: within with a point") << "de_DE" << "5.5" << true;
}

void tst_Validators::realShouldAcceptOnlyValuesWithinItsBounds()
{
    QFETCH(QString, locale);
    QFETCH(QString, input);
    QFETCH(bool, acceptable);
    const QLocale previous;
    QLocale::setDefault(QLocale(locale));
    RealValidator validator;
    QLocale::setDefault(previous);
    validator.setBottom(1.0);
    validator.setTop(10.0);
    QCOMPARE(validator.acceptable(input), acceptable);
}

void tst_Validators::realShouldNotifyBoundsAndDecimalsOnEverySet()
{
    RealValidator validator;
    QSignalSpy bottomSpy(&validator, &RealValidator::bottomChanged);
    QSignalSpy topSpy(&validator, &RealValidator::topChanged);
    QSignalSpy decimalsSpy(&validator, &RealValidator::decimalsChanged);
    QVERIFY(bottomSpy.isValid() && topSpy.isValid() && decimalsSpy.isValid());

    validator.setBottom(validator.bottom());
    validator.setBottom(1.0);
    validator.setTop(validator.top());
    validator.setDecimals(validator.decimals());
    validator.setDecimals(QVariant());

    QCOMPARE(bottomSpy.count(), 2);
    QCOMPARE(topSpy.count(), 1);
    QCOMPARE(decimalsSpy.count(), 2);
    QCOMPARE(validator.decimals(), QVariant::fromValue(1000u));
}

void tst_Validators::shouldNotifyExpressionAllowedOnlyFromTheIntegerValidator()
{
    RealValidator real;
    IntegerValidator integer;
    QSignalSpy realSpy(&real, &RealValidator::expressionAllowedChanged);
    QSignalSpy integerSpy(&integer, &IntegerValidator::expressionAllowedChanged);
    QVERIFY(realSpy.isValid() && integerSpy.isValid());

    for (const bool allowed : { false, true, true, false }) {
        real.setExpressionAllowed(allowed);
        integer.setExpressionAllowed(allowed);
    }

    QCOMPARE(realSpy.count(), 0);
    QCOMPARE(integerSpy.count(), 2);
}

QTEST_GUILESS_MAIN(tst_Validators)
#include "tst_validators.moc"
