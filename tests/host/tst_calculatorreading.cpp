#include "TestHost.h"
#include "framework/CalculatorReading.h"
#include "framework/CalculatorUnits.h"

#include <QtTest>

#include <cmath>

using namespace Orvo::Kernel::Framework;

Q_DECLARE_METATYPE(UnitDimension)

// Expressions typed into fields with units: the value in the field's unit, or the plain reason
// why there is none.
class tst_CalculatorReading : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_catalog = m_host.StartServices(); }

    void shouldReadAnExpressionInTheFieldsUnit_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QString>("fieldUnit");
        QTest::addColumn<double>("value"); // NaN: refused with message
        QTest::addColumn<QString>("message");
        const double refused = std::nan("");
        // clang-format off
        QTest::newRow("no units: read in the field's unit") << "2*150" << "mm" << 300.0 << "";
        QTest::newRow("same dimension converts") << "30cm" << "mm" << 300.0 << "";
        QTest::newRow("unit after a parenthesis") << "(1+2) cm" << "mm" << 30.0 << "";
        QTest::newRow("degrees stay degrees") << "45deg" << "\u00B0" << 45.0 << "";
        QTest::newRow("radians into a degree field") << "(pi/4) rad" << "\u00B0" << 45.0 << "";
        QTest::newRow("angle inside a length") << "3m*cos(60deg)" << "m" << 1.5 << "";
        QTest::newRow("a sine is a plain number") << "sin(30deg)+1" << "m" << 1.5 << "";
        QTest::newRow("a ratio is a plain number") << "1kN/1N" << "mm" << 1000.0 << "";
        QTest::newRow("a sine into a degree field") << "2*sin(30deg)" << "\u00B0" << 1.0 << "";
        QTest::newRow("force times length is a moment") << "5kN*2m" << "kNm" << 10.0 << "";
        QTest::newRow("force over length into a line load") << "10kN/2m" << "kN/m" << 5.0 << "";
        QTest::newRow("line load written as its unit") << "5kN/m" << "kN/m" << 5.0 << "";
        QTest::newRow("stress into a compound field unit") << "12MPa" << "kN/m\u00B2" << 12000.0 << "";
        QTest::newRow("root of an area is a length") << "sqrt((2m)^2)" << "m" << 2.0 << "";
        QTest::newRow("plain number in an unknown unit") << "5" << "pcs" << 5.0 << "";
        QTest::newRow("zero of mixed units fits anywhere") << "0kN*1m" << "mm" << 0.0 << "";
        QTest::newRow("a force in a length field")
            << "5kN" << "m" << refused << "kN is a force; this field takes a length";
        QTest::newRow("a length in an angle field")
            << "1m" << "\u00B0" << refused << "m is a length; this field takes an angle";
        QTest::newRow("an angle in a length field")
            << "30deg" << "m" << refused << "deg is an angle; this field takes a length";
        QTest::newRow("a length in a unitless field")
            << "5m" << "pcs" << refused << "m is a length; this field takes a number";
        QTest::newRow("an angle in a unitless field")
            << "30deg" << "" << refused << "deg is an angle; this field takes a number";
        QTest::newRow("a zero angle is still an angle")
            << "0deg" << "m" << refused << "deg is an angle; this field takes a length";
        QTest::newRow("a zero length is still a length")
            << "5m-5m" << "kN" << refused << "m is a length; this field takes a force";
        QTest::newRow("a moment in a length field")
            << "5kN*2m" << "m" << refused << "The expression gives a moment; this field takes a length";
        QTest::newRow("a length added to a force")
            << "1m + 1kN" << "m" << refused << "These units do not fit together: m, kN";
        QTest::newRow("a length inside a sine")
            << "sin(2m)" << "m" << refused << "These units do not fit together: m";
        QTest::newRow("invalid") << "2+" << "m" << refused << "Invalid expression";
        QTest::newRow("too long to read on every keystroke")
            << QString(1001, u'1') << "m" << refused << "The expression is longer than 1000 characters";
        // clang-format on
    }

    void shouldReadAnExpressionInTheFieldsUnit()
    {
        QFETCH(QString, expression);
        QFETCH(QString, fieldUnit);
        QFETCH(double, value);
        QFETCH(QString, message);
        const CalculatorReading reading
            = CalculatorReading::Evaluate(expression.toStdWString(), fieldUnit.toStdWString());
        QCOMPARE(QString::fromStdWString(reading.message), message);
        QCOMPARE(reading.valid, !std::isnan(value));
        if (reading.valid)
            QVERIFY2(std::fabs(reading.value - value) <= 1e-9 * std::max(1.0, std::fabs(value)),
                     qPrintable(QString::number(reading.value, 'g', 17)));
        else
            QVERIFY(std::isnan(reading.value));
    }

    void shouldParseFieldUnits_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<bool>("known");
        QTest::addColumn<double>("factor");
        QTest::addColumn<UnitDimension>("dimension");
        QTest::addColumn<bool>("angle");
        // clang-format off
        QTest::newRow("none") << "" << true << 1.0 << CalculatorUnits::c_number << false;
        QTest::newRow("symbol of the table") << "kN" << true << 1e3 << CalculatorUnits::c_force << false;
        QTest::newRow("degree sign") << "\u00B0" << true << M_PI / 180 << CalculatorUnits::c_number << true;
        QTest::newRow("quotient with superscript") << "kN/m\u00B2" << true << 1e3 << CalculatorUnits::c_stress << false;
        QTest::newRow("per radian is no angle") << "kNm/rad" << true << 1e3 << CalculatorUnits::c_moment << false;
        QTest::newRow("caret exponent") << "cm^4" << true << 1e-8 << UnitDimension { 4, 0 } << false;
        QTest::newRow("product") << "kN\u00B7m" << true << 1e3 << CalculatorUnits::c_moment << false;
        QTest::newRow("weight per volume") << "kN/m\u00B3" << true << 1e3 << UnitDimension { -3, 1 } << false;
        QTest::newRow("unknown symbol") << "pcs" << false << 0.0 << UnitDimension {} << false;
        QTest::newRow("dangling quotient") << "kN/" << false << 0.0 << UnitDimension {} << false;
        QTest::newRow("exponent no digit") << "m^x" << false << 0.0 << UnitDimension {} << false;
        // clang-format on
    }

    void shouldParseFieldUnits()
    {
        QFETCH(QString, unit);
        QFETCH(bool, known);
        QFETCH(double, factor);
        QFETCH(UnitDimension, dimension);
        QFETCH(bool, angle);
        const auto parsed = CalculatorUnits::ParseFieldUnit(unit.toStdWString());
        QCOMPARE(parsed.has_value(), known);
        if (!known)
            return;
        QVERIFY(std::fabs(parsed->factor - factor) <= 1e-12 * factor);
        QVERIFY(parsed->dimension == dimension);
        QCOMPARE(parsed->angle, angle);
    }

    // Every unit of the table is typeable and scales a value to its SI base unit.
    void shouldKnowEveryUnitOfItsTable()
    {
        for (const CalculatorUnit& unit : CalculatorUnits::c_units) {
            const QString symbol = QString::fromStdWString(std::wstring(unit.symbol));
            const CalculatorReading reading
                = CalculatorReading::Evaluate(L"2" + std::wstring(unit.symbol), std::wstring(unit.symbol));
            QVERIFY2(reading.valid, qPrintable(symbol));
            QVERIFY2(std::fabs(reading.value - 2.0) < 1e-12, qPrintable(symbol));
        }
    }

private:
    TestHost m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;
};

QTEST_GUILESS_MAIN(tst_CalculatorReading)
#include "tst_calculatorreading.moc"
