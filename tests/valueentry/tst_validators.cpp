#include "valueentry/IntegerValidator.h"
#include "valueentry/RealValidator.h"

#include <QSignalSpy>
#include <QtTest>

#include <limits>

using Orvo::UI::UIComponents::IntegerValidator;
using Orvo::UI::UIComponents::RealValidator;

namespace {

constexpr double c_infinity = std::numeric_limits<double>::infinity();

// The validators take the default locale when they are created.
class DefaultLocale
{
public:
    explicit DefaultLocale(const QString& name)
        : m_previous(QLocale())
    {
        QLocale::setDefault(QLocale(name));
    }
    ~DefaultLocale() { QLocale::setDefault(m_previous); }

private:
    QLocale m_previous;
};

} // namespace

class tst_Validators : public QObject
{
    Q_OBJECT

private slots:
    void realShouldValidate_data();
    void realShouldValidate();
    void realShouldNotifyBoundsAndDecimalsOnEverySet();
    void realShouldNeverNotifyExpressionAllowed();
    void integerShouldValidate_data();
    void integerShouldValidate();
    void integerShouldNotifyExpressionAllowedOnlyOnChange();
    void acceptableShouldMeanAcceptable_data();
    void acceptableShouldMeanAcceptable();
};

void tst_Validators::realShouldValidate_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("expressionAllowed");
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("top");
    QTest::addColumn<QVariant>("decimals");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("state");

    const QVariant unset;
    QTest::newRow("equals sign alone waits for more")
        << "en_US" << true << -c_infinity << c_infinity << unset << "=" << QValidator::Intermediate;
    QTest::newRow("expression let through")
        << "en_US" << true << -c_infinity << c_infinity << unset << "=1+2" << QValidator::Acceptable;
    QTest::newRow("junk expression let through too")
        << "en_US" << true << 0.0 << 1.0 << QVariant(0) << "=((x" << QValidator::Acceptable;
    QTest::newRow("empty text follows the number rules")
        << "en_US" << true << -c_infinity << c_infinity << unset << "" << QValidator::Intermediate;
    QTest::newRow("expression refused when not allowed")
        << "en_US" << false << -c_infinity << c_infinity << unset << "=1" << QValidator::Invalid;
    QTest::newRow("equals sign refused when not allowed")
        << "en_US" << false << -c_infinity << c_infinity << unset << "=" << QValidator::Invalid;
    QTest::newRow("decimal comma in German")
        << "de_DE" << false << -c_infinity << c_infinity << unset << "1,5" << QValidator::Acceptable;
    QTest::newRow("decimal point in German")
        << "de_DE" << false << -c_infinity << c_infinity << unset << "1.5" << QValidator::Acceptable;
    QTest::newRow("decimal point in English")
        << "en_US" << false << -c_infinity << c_infinity << unset << "-1.5" << QValidator::Acceptable;
    QTest::newRow("word") << "en_US" << false << -c_infinity << c_infinity << unset << "abc"
                          << QValidator::Invalid;
    QTest::newRow("too many decimals")
        << "en_US" << false << -c_infinity << c_infinity << QVariant(2) << "1.234" << QValidator::Invalid;
    QTest::newRow("decimals undefined means no limit") << "en_US" << false << -c_infinity << c_infinity
                                                       << unset << "1.23456789012" << QValidator::Acceptable;
    QTest::newRow("decimals not a number means no limit")
        << "en_US" << false << -c_infinity << c_infinity << QVariant(QStringLiteral("many")) << "1.23456789"
        << QValidator::Acceptable;
    QTest::newRow("within bounds") << "en_US" << false << 0.0 << 10.0 << unset << "7.5"
                                   << QValidator::Acceptable;
    QTest::newRow("below bottom") << "en_US" << false << 0.0 << 10.0 << unset << "-1" << QValidator::Invalid;
}

void tst_Validators::realShouldValidate()
{
    QFETCH(QString, locale);
    QFETCH(bool, expressionAllowed);
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(QVariant, decimals);
    QFETCH(QString, input);
    QFETCH(QValidator::State, state);

    DefaultLocale defaultLocale(locale);
    RealValidator validator;
    validator.setExpressionAllowed(expressionAllowed);
    validator.setBottom(bottom);
    validator.setTop(top);
    validator.setDecimals(decimals);

    int pos = 0;
    QCOMPARE(validator.validate(input, pos), state);
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
    QCOMPARE(validator.bottom(), 1.0);
    QCOMPARE(validator.decimals(), QVariant::fromValue(1000u));
}

void tst_Validators::realShouldNeverNotifyExpressionAllowed()
{
    RealValidator validator;
    QSignalSpy spy(&validator, &RealValidator::expressionAllowedChanged);
    QVERIFY(spy.isValid());

    validator.setExpressionAllowed(true);
    validator.setExpressionAllowed(false);
    validator.setExpressionAllowed(true);

    QCOMPARE(spy.count(), 0);
    QVERIFY(validator.expressionAllowed());
}

void tst_Validators::integerShouldValidate_data()
{
    QTest::addColumn<bool>("expressionAllowed");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("state");

    QTest::newRow("equals sign alone waits for more") << true << "=" << QValidator::Intermediate;
    QTest::newRow("expression let through") << true << "=2*3" << QValidator::Acceptable;
    QTest::newRow("expression refused when not allowed") << false << "=2*3" << QValidator::Invalid;
    QTest::newRow("empty text follows the number rules") << true << "" << QValidator::Intermediate;
    QTest::newRow("within bounds") << true << "42" << QValidator::Acceptable;
    QTest::newRow("above top") << false << "1000" << QValidator::Invalid;
    QTest::newRow("fraction") << false << "1.5" << QValidator::Invalid;
}

void tst_Validators::integerShouldValidate()
{
    QFETCH(bool, expressionAllowed);
    QFETCH(QString, input);
    QFETCH(QValidator::State, state);

    IntegerValidator validator;
    validator.setRange(0, 100);
    validator.setExpressionAllowed(expressionAllowed);
    int pos = 0;
    QCOMPARE(validator.validate(input, pos), state);
}

void tst_Validators::integerShouldNotifyExpressionAllowedOnlyOnChange()
{
    IntegerValidator validator;
    QSignalSpy spy(&validator, &IntegerValidator::expressionAllowedChanged);
    QVERIFY(spy.isValid());

    validator.setExpressionAllowed(false);
    validator.setExpressionAllowed(true);
    validator.setExpressionAllowed(true);
    validator.setExpressionAllowed(false);

    QCOMPARE(spy.count(), 2);
}

void tst_Validators::acceptableShouldMeanAcceptable_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("acceptable");

    QTest::newRow("equals sign alone") << "=" << false;
    QTest::newRow("equals sign and digit") << "=1" << true;
    QTest::newRow("number") << "5" << true;
    QTest::newRow("minus sign alone") << "-" << false;
}

void tst_Validators::acceptableShouldMeanAcceptable()
{
    QFETCH(QString, input);
    QFETCH(bool, acceptable);

    RealValidator real;
    real.setExpressionAllowed(true);
    IntegerValidator integer;
    integer.setExpressionAllowed(true);

    QCOMPARE(real.acceptable(input), acceptable);
    QCOMPARE(integer.acceptable(input), acceptable);
}

QTEST_GUILESS_MAIN(tst_Validators)
#include "tst_validators.moc"
