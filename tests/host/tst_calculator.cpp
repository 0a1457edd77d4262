#include "framework/Calculator.h"

#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <thread>
#include <vector>

using Orvo::Kernel::Framework::Calculator;

namespace {

constexpr double c_pi = 3.14159265358979323846;

bool CloseTo(double actual, double expected, double relative = 1e-12)
{
    return std::fabs(actual - expected) <= relative * std::max(1.0, std::fabs(expected));
}

struct Generated
{
    QString text;
    double value;
};

// A random arithmetic expression and its value computed without any parser, for an independent
// check of operators, precedence (everything is parenthesised), blanks and both decimal marks.
Generated Generate(QRandomGenerator& random, int depth)
{
    if (depth == 0 || random.bounded(4) == 0) {
        const int whole = static_cast<int>(random.bounded(1000));
        const int hundredths = static_cast<int>(random.bounded(100));
        const QChar mark = random.bounded(2) ? QLatin1Char('.') : QLatin1Char(',');
        return { QStringLiteral("%1%2%3").arg(whole).arg(mark).arg(hundredths, 2, 10, QLatin1Char('0')),
                 whole + hundredths / 100.0 };
    }
    const Generated left = Generate(random, depth - 1);
    const int operation = static_cast<int>(random.bounded(6));
    if (operation == 4) {
        const int exponent = static_cast<int>(random.bounded(4)); // small powers stay finite
        return { QStringLiteral("(%1)^%2").arg(left.text).arg(exponent), std::pow(left.value, exponent) };
    }
    if (operation == 5)
        return { QStringLiteral("-(%1)").arg(left.text), -left.value };

    const Generated right = Generate(random, depth - 1);
    const double values[] = { left.value + right.value, left.value - right.value, left.value * right.value,
                              left.value / right.value };
    const QString space = random.bounded(2) ? QStringLiteral(" ") : QString();
    return { QStringLiteral("(%1)%2%3%2(%4)").arg(left.text, space, QChar("+-*/"[operation]), right.text),
             values[operation] };
}

} // namespace

class tst_Calculator : public QObject
{
    Q_OBJECT

private slots:
    void shouldEvaluate_data();
    void shouldEvaluate();
    void shouldReject_data();
    void shouldReject();
    void shouldAgreeWithAReferenceOnGeneratedExpressions();
    void shouldEvaluateOnSeveralThreadsAtOnce();
};

void tst_Calculator::shouldEvaluate_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<double>("expected");

    QTest::newRow("plain number with blanks and sign") << "  -12.5 " << -12.5;
    QTest::newRow("exponent") << "1,5e3" << 1500.0;
    QTest::newRow("product before sum") << "2+3*4" << 14.0;
    QTest::newRow("parentheses first") << "(2+3)*4" << 20.0;
    QTest::newRow("left to right") << "12/3/2 + 10-4-3" << 5.0;
    QTest::newRow("power before product") << "2*3^2" << 18.0;
    QTest::newRow("power right-associative") << "2^3^2" << 512.0;
    QTest::newRow("power before unary minus") << "-2^2" << -4.0;
    QTest::newRow("unary minus after operators") << "2^-1 * -(3-5)" << 1.0;
    QTest::newRow("both decimal marks") << "1,5+1.5+.5" << 3.5;
    QTest::newRow("arguments separated by semicolon") << "max(1,5;2;0,5)" << 2.0;
    QTest::newRow("millimetres") << "2*500mm" << 1.0;
    QTest::newRow("lengths, unit after a blank") << "250 cm + 5dm + 1km" << 1003.0;
    QTest::newRow("unit after parenthesis") << "(1+2)mm" << 0.003;
    QTest::newRow("forces") << "1,5kN+20N+2MN" << 2001520.0;
    QTest::newRow("pressures") << "1GPa+2MPa+3kPa+4Pa" << 1002003004.0;
    QTest::newRow("degrees") << "sin(30deg)" << 0.5;
    QTest::newRow("degree sign and radians") << "cos(60\u00B0) + 2rad" << 2.5;
    QTest::newRow("constants") << "ln(e^2) + pi" << 2 + c_pi;
    QTest::newRow("trigonometry") << "tan(45deg) + asin(1) + acos(-1) + atan(1)" << 1 + 1.75 * c_pi;
    QTest::newRow("roots and powers") << "sqrt(16) + abs(-7,5) + exp(0)" << 12.5;
    QTest::newRow("log is base 10") << "log(1000)" << 3.0;
    QTest::newRow("rounding, halves away from zero")
        << "round(2.5)*10 + round(-2.5) + floor(-1.5) + ceil(1.2)" << 27.0;
    QTest::newRow("min of one, min of several") << "min(4) + min(3;-1;2)" << 3.0;
    // Evaluated on every keystroke, so the length is bounded; up to the bound everything is read.
    QTest::newRow("the longest expression read")
        << (QStringLiteral(" 1") + QStringLiteral("+1").repeated(499)) << 500.0;
}

void tst_Calculator::shouldEvaluate()
{
    QFETCH(QString, expression);
    QFETCH(double, expected);

    double value = 0;
    QVERIFY(Calculator::Evaluate(expression.toStdWString(), value));
    QVERIFY2(CloseTo(value, expected), qPrintable(QString::number(value, 'g', 17)));
}

void tst_Calculator::shouldReject_data()
{
    QTest::addColumn<QString>("expression");

    for (const char* junk : { "", "   ", "abc", "1+", "(1+2", "1+2)", "2 3", "1.2.3", "1;2", "1<2", "1?2:3",
                              "x=3", "5mmm", "mm", "sinh(1)", "sin 30", "min()", "\"1\"", "1\u00D72" })
        QTest::newRow(qPrintable(QStringLiteral("junk: ") + QString::fromUtf8(junk)))
            << QString::fromUtf8(junk);
    for (const char* notFinite : { "1/0", "sqrt(-1)", "ln(0)", "10^400", "1e400", "asin(2)" })
        QTest::newRow(qPrintable(QStringLiteral("not finite: ") + QLatin1String(notFinite)))
            << QString::fromLatin1(notFinite);
    QTest::newRow("one character too long to read on a keystroke")
        << (QStringLiteral("  1") + QStringLiteral("+1").repeated(499));
    QTest::newRow("a 4 KB paste") << (QStringLiteral("1") + QStringLiteral("+1").repeated(2048));
}

void tst_Calculator::shouldReject()
{
    QFETCH(QString, expression);

    double value = 42;
    QVERIFY(!Calculator::Evaluate(expression.toStdWString(), value));
    QCOMPARE(value, 42.0);
}

void tst_Calculator::shouldAgreeWithAReferenceOnGeneratedExpressions()
{
    QRandomGenerator random(20240611);
    for (int i = 0; i < 1000; ++i) {
        const Generated expression = Generate(random, 4);
        double value = 0;
        const bool ok = Calculator::Evaluate(expression.text.toStdWString(), value);
        const QString message = QStringLiteral("%1 = %2, expected %3")
                                    .arg(expression.text)
                                    .arg(value, 0, 'g', 17)
                                    .arg(expression.value, 0, 'g', 17);
        QVERIFY2(ok == std::isfinite(expression.value), qPrintable(message));
        if (ok)
            QVERIFY2(CloseTo(value, expression.value, 1e-9), qPrintable(message));
    }
}

void tst_Calculator::shouldEvaluateOnSeveralThreadsAtOnce()
{
    std::vector<int> failures(4, 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([t, &failures] {
            for (int i = 0; i < 500; ++i) {
                double value = 0;
                const std::wstring expression = std::to_wstring(t) + L"+" + std::to_wstring(i) + L"*2mm";
                if (!Calculator::Evaluate(expression, value) || !CloseTo(value, t + i * 0.002))
                    ++failures[t];
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(failures, std::vector<int>(4, 0));
}

QTEST_GUILESS_MAIN(tst_Calculator)
#include "tst_calculator.moc"
