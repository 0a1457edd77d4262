#include "framework/Calculator.h"

#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <memory>
#include <thread>
#include <vector>

using Orvo::Kernel::Framework::Calculator;

namespace {

constexpr double c_pi = 3.14159265358979323846;

bool Evaluate(const QString& expression, double& value)
{
    return Calculator::Evaluate(expression.toStdWString(), value);
}

bool CloseTo(double actual, double expected)
{
    return std::fabs(actual - expected) <= 1e-12 * std::max(1.0, std::fabs(expected));
}

// A random arithmetic expression and its value, computed here without any parser, for an
// independent check of the calculator on many shapes of input.
class ExpressionGenerator
{
public:
    explicit ExpressionGenerator(quint32 seed)
        : m_random(seed)
    { }

    struct Expression
    {
        QString text;
        double value;
    };

    Expression Next(int depth)
    {
        if (depth == 0 || m_random.bounded(4) == 0)
            return Number();
        Expression left = Next(depth - 1);
        switch (m_random.bounded(6)) {
        case 0:
            return Binary(left, '+', Next(depth - 1));
        case 1:
            return Binary(left, '-', Next(depth - 1));
        case 2:
            return Binary(left, '*', Next(depth - 1));
        case 3:
            return Binary(left, '/', Next(depth - 1));
        case 4: {
            // Small integer powers keep the values finite.
            const int exponent = static_cast<int>(m_random.bounded(4));
            return { QStringLiteral("(%1)^%2").arg(left.text).arg(exponent), std::pow(left.value, exponent) };
        }
        default:
            return { QStringLiteral("-(%1)").arg(left.text), -left.value };
        }
    }

private:
    Expression Binary(const Expression& left, char operation, const Expression& right)
    {
        double value = 0;
        switch (operation) {
        case '+':
            value = left.value + right.value;
            break;
        case '-':
            value = left.value - right.value;
            break;
        case '*':
            value = left.value * right.value;
            break;
        default:
            value = left.value / right.value;
        }
        // Spaces around operators vary, as people type them.
        const QString space = m_random.bounded(2) ? QStringLiteral(" ") : QString();
        return { QStringLiteral("(%1)%2%3%2(%4)").arg(left.text, space, QChar(operation), right.text),
                 value };
    }

    Expression Number()
    {
        const int whole = static_cast<int>(m_random.bounded(1000));
        const int hundredths = static_cast<int>(m_random.bounded(100));
        const QChar mark = m_random.bounded(2) ? QLatin1Char('.') : QLatin1Char(',');
        return { QStringLiteral("%1%2%3").arg(whole).arg(mark).arg(hundredths, 2, 10, QLatin1Char('0')),
                 whole + hundredths / 100.0 };
    }

    QRandomGenerator m_random;
};

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

    QTest::newRow("plain number") << "12.5" << 12.5;
    QTest::newRow("plain number with blanks and sign") << "  -3 " << -3.0;
    QTest::newRow("exponent") << "1,5e3" << 1500.0;
    QTest::newRow("product before sum") << "2+3*4" << 14.0;
    QTest::newRow("parentheses first") << "(2+3)*4" << 20.0;
    QTest::newRow("division left to right") << "12/3/2" << 2.0;
    QTest::newRow("subtraction left to right") << "10-4-3" << 3.0;
    QTest::newRow("power before product") << "2*3^2" << 18.0;
    QTest::newRow("power right-associative") << "2^3^2" << 512.0;
    QTest::newRow("power before unary minus") << "-2^2" << -4.0;
    QTest::newRow("negative exponent") << "2^-1" << 0.5;
    QTest::newRow("unary minus after operator") << "2*-3" << -6.0;
    QTest::newRow("unary minus of parenthesis") << "-(3-5)" << 2.0;
    QTest::newRow("decimal point") << "0.25*4" << 1.0;
    QTest::newRow("decimal comma") << "0,25*4" << 1.0;
    QTest::newRow("both decimal marks") << "1,5+1.5" << 3.0;
    QTest::newRow("leading decimal mark") << ".5+,5" << 1.0;
    QTest::newRow("arguments separated by semicolon") << "max(1,5;2;0,5)" << 2.0;
    QTest::newRow("millimetres") << "2*500mm" << 1.0;
    QTest::newRow("unit after a blank") << "250 cm" << 2.5;
    QTest::newRow("decimetres and kilometres") << "5dm+1km" << 1000.5;
    QTest::newRow("metres") << "3m" << 3.0;
    QTest::newRow("unit after parenthesis") << "(1+2)mm" << 0.003;
    QTest::newRow("kilonewtons") << "1,5kN+20N" << 1520.0;
    QTest::newRow("meganewtons") << "2MN" << 2e6;
    QTest::newRow("pressures") << "1GPa+2MPa+3kPa+4Pa" << 1002003004.0;
    QTest::newRow("degrees") << "sin(30deg)" << 0.5;
    QTest::newRow("degree sign") << "cos(60\u00B0)" << 0.5;
    QTest::newRow("radians") << "2rad" << 2.0;
    QTest::newRow("mixed units and functions") << "sin(30deg)+500mm" << 1.0;
    QTest::newRow("pi") << "pi/2" << c_pi / 2;
    QTest::newRow("e") << "ln(e^2)" << 2.0;
    QTest::newRow("tan") << "tan(45deg)" << 1.0;
    QTest::newRow("asin") << "asin(1)" << c_pi / 2;
    QTest::newRow("acos") << "acos(-1)" << c_pi;
    QTest::newRow("atan") << "atan(1)*4" << c_pi;
    QTest::newRow("sqrt") << "sqrt(16)" << 4.0;
    QTest::newRow("abs") << "abs(-7,5)" << 7.5;
    QTest::newRow("exp") << "exp(0)" << 1.0;
    QTest::newRow("log is base 10") << "log(1000)" << 3.0;
    QTest::newRow("round half away from zero") << "round(2.5)+round(-2.5)" << 0.0;
    QTest::newRow("floor") << "floor(-1.5)" << -2.0;
    QTest::newRow("ceil") << "ceil(1.2)" << 2.0;
    QTest::newRow("min of one") << "min(4)" << 4.0;
    QTest::newRow("min") << "min(3;-1;2)" << -1.0;
}

void tst_Calculator::shouldEvaluate()
{
    QFETCH(QString, expression);
    QFETCH(double, expected);

    double value = 0;
    QVERIFY(Evaluate(expression, value));
    QVERIFY2(CloseTo(value, expected), qPrintable(QString::number(value, 'g', 17)));
}

void tst_Calculator::shouldReject_data()
{
    QTest::addColumn<QString>("expression");

    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "   ";
    QTest::newRow("word") << "abc";
    QTest::newRow("dangling operator") << "1+";
    QTest::newRow("open parenthesis") << "(1+2";
    QTest::newRow("surplus parenthesis") << "1+2)";
    QTest::newRow("two numbers") << "2 3";
    QTest::newRow("two decimal marks") << "1.2.3";
    QTest::newRow("several results") << "1;2";
    QTest::newRow("comparison") << "1<2";
    QTest::newRow("conditional") << "1?2:3";
    QTest::newRow("assignment") << "x=3";
    QTest::newRow("unknown unit") << "5mmm";
    QTest::newRow("unit alone") << "mm";
    QTest::newRow("unknown function") << "sinh(1)";
    QTest::newRow("function without parentheses") << "sin 30";
    QTest::newRow("missing argument") << "min()";
    QTest::newRow("string literal") << "\"1\"";
    QTest::newRow("foreign character") << "1\u00D72";
    QTest::newRow("division by zero") << "1/0";
    QTest::newRow("root of negative") << "sqrt(-1)";
    QTest::newRow("logarithm of zero") << "ln(0)";
    QTest::newRow("overflow") << "10^400";
    QTest::newRow("number out of range") << "1e400";
    QTest::newRow("arcsine out of domain") << "asin(2)";
}

void tst_Calculator::shouldReject()
{
    QFETCH(QString, expression);

    double value = 42;
    QVERIFY(!Evaluate(expression, value));
    QCOMPARE(value, 42.0);
}

void tst_Calculator::shouldAgreeWithAReferenceOnGeneratedExpressions()
{
    ExpressionGenerator generator(20240611);
    int checked = 0;
    for (int i = 0; i < 1000; ++i) {
        const auto expression = generator.Next(4);
        double value = 0;
        const bool ok = Evaluate(expression.text, value);
        if (!std::isfinite(expression.value)) {
            QVERIFY2(!ok, qPrintable(expression.text));
            continue;
        }
        QVERIFY2(ok, qPrintable(expression.text));
        const double tolerance = 1e-9 * std::max(1.0, std::fabs(expression.value));
        QVERIFY2(std::fabs(value - expression.value) <= tolerance,
                 qPrintable(QStringLiteral("%1 = %2, expected %3")
                                .arg(expression.text)
                                .arg(value, 0, 'g', 17)
                                .arg(expression.value, 0, 'g', 17)));
        ++checked;
    }
    QVERIFY(checked > 900);
}

void tst_Calculator::shouldEvaluateOnSeveralThreadsAtOnce()
{
    constexpr int threadCount = 4;
    std::vector<int> failures(threadCount, 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < threadCount; ++t) {
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
    QCOMPARE(failures, std::vector<int>(threadCount, 0));
}

QTEST_GUILESS_MAIN(tst_Calculator)
#include "tst_calculator.moc"
