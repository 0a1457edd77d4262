#include "basiccomponents/NumberFormatSettings.h"
#include "framework/ServiceCatalog.h"
#include "valueentry/InlineCalculator.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

using Orvo::UI::UIComponents::InlineCalculator;

namespace {

// One QSignalSpy per notifier of the calculator, so that a test states exactly which ones fired.
class NotifierSpies
{
public:
    explicit NotifierSpies(InlineCalculator& calculator)
    {
        const QMetaObject& meta = InlineCalculator::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            if (method.methodType() == QMetaMethod::Signal)
                m_spies.emplace_back(
                    method.name().chopped(int(qstrlen("Changed"))),
                    std::make_unique<QSignalSpy>(&calculator, ("2" + method.methodSignature()).constData()));
        }
    }

    // "name=count" of every notifier that fired, in declaration order.
    QString Fired() const
    {
        QStringList fired;
        for (const auto& [name, spy] : m_spies) {
            if (!spy->isEmpty())
                fired.append(QStringLiteral("%1=%2").arg(QString::fromLatin1(name)).arg(spy->count()));
        }
        return fired.join(QLatin1Char(' '));
    }

private:
    std::vector<std::pair<QByteArray, std::unique_ptr<QSignalSpy>>> m_spies;
};

// The outputs in one line, "valid result [multipleValids] [multipleResults]", so that rows stay
// short and NaN compares equal to NaN.
QString Outputs(const InlineCalculator& calculator)
{
    QStringList valids;
    for (const bool valid : calculator.getMultipleValids())
        valids.append(valid ? QStringLiteral("1") : QStringLiteral("0"));
    QStringList results;
    for (const double result : calculator.getMultipleResults())
        results.append(QString::number(result));
    return QStringLiteral("%1 %2 [%3] [%4]")
        .arg(calculator.isValid() ? QStringLiteral("valid") : QStringLiteral("invalid"))
        .arg(calculator.getResult())
        .arg(valids.join(QLatin1Char(' ')), results.join(QLatin1Char(' ')));
}

} // namespace

class tst_InlineCalculator : public QObject
{
    Q_OBJECT

private slots:
    void shouldEvaluate_data();
    void shouldEvaluate();
    void shouldReEmitNaNForEveryInvalidEvaluation();
    void shouldEvaluateASameExpressionOnlyOnce();
    void shouldApplyAModeChangeOnlyWithTheNextExpression();
    void shouldReEvaluateOnSeparatorsOnlyInMultipleMode();
    void shouldFormatWithTheHostNumberSettings();
};

void tst_InlineCalculator::shouldEvaluate_data()
{
    QTest::addColumn<bool>("multiple");
    QTest::addColumn<QStringList>("separators");
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outputs");

    const QStringList spotlight { QStringLiteral(";"), QStringLiteral(" ") };
    QTest::newRow("single: units") << false << spotlight << "sin(30deg)+500mm"
                                   << "valid 1 [1] [1]";
    QTest::newRow("single: passed untrimmed") << false << spotlight << " 1 + 1 "
                                              << "valid 2 [1] [2]";
    QTest::newRow("single: separators mean nothing") << false << spotlight << "1 2"
                                                     << "invalid nan [0] [nan]";
    QTest::newRow("single: empty") << false << spotlight << ""
                                   << "invalid nan [0] [nan]";
    QTest::newRow("multiple: space and semicolon") << true << spotlight << "1+1 2*3;4"
                                                   << "valid 2 [1 1 1] [2 6 4]";
    QTest::newRow("multiple: one invalid part") << true << spotlight << "1+1;;x"
                                                << "invalid 2 [1 0] [2 nan]";
    QTest::newRow("multiple: runs of blanks collapse") << true << spotlight << "  1    2 "
                                                       << "valid 1 [1 1] [1 2]";
    QTest::newRow("multiple: only separators") << true << spotlight << " ; ;  ; "
                                               << "invalid nan [] []";
    QTest::newRow("multiple: empty") << true << spotlight << ""
                                     << "invalid nan [] []";
    QTest::newRow("multiple: semicolon splits without separators") << true << QStringList {} << "1 2;3"
                                                                   << "invalid nan [0 1] [nan 3]";
    QTest::newRow("multiple: separator of several characters")
        << true << QStringList { QStringLiteral("//") } << "1//2+2"
        << "valid 1 [1 1] [1 4]";
    QTest::newRow("multiple: parts keep their blanks")
        << true << QStringList { QStringLiteral("|") } << "1 | 2mm"
        << "valid 1 [1 1] [1 0.002]";
    QTest::newRow("multiple: empty separator ignored")
        << true << QStringList { QString(), QStringLiteral(" ") } << "12 3"
        << "valid 12 [1 1] [12 3]";

    // What is evaluated per keystroke is bounded: parts together as long as one expression may be,
    // each charged 16 characters more for its parse.
    const QString part = QStringLiteral("1") + QStringLiteral("+1").repeated(55); // 111 characters
    const QStringList eightParts(8, part);
    const QString eightValids = QStringList(8, QStringLiteral("1")).join(QLatin1Char(' '));
    const QString eightResults = QStringList(8, QStringLiteral("56")).join(QLatin1Char(' '));
    QTest::newRow("multiple: parts within the length evaluated")
        << true << spotlight << eightParts.join(QLatin1Char(';'))
        << QStringLiteral("valid 56 [%1] [%2]").arg(eightValids, eightResults);
    QTest::newRow("multiple: parts beyond the length counted, not evaluated")
        << true << spotlight
        << (eightParts + QStringList { part, QStringLiteral("1") }).join(QLatin1Char(' '))
        << QStringLiteral("invalid 56 [%1 0 0] [%2 nan nan]").arg(eightValids, eightResults);
    const QString longest = QStringLiteral("1") + QStringLiteral("+1").repeated(499); // 999 characters
    QTest::newRow("multiple: the longest expression is one value")
        << true << spotlight << longest << "valid 500 [1] [500]";
}

void tst_InlineCalculator::shouldEvaluate()
{
    QFETCH(bool, multiple);
    QFETCH(QStringList, separators);
    QFETCH(QString, expression);
    QFETCH(QString, outputs);

    InlineCalculator calculator;
    calculator.setMultipleEnabled(multiple);
    calculator.setSeparators(separators);
    calculator.setExpression(QStringLiteral("0"));
    calculator.setExpression(expression);
    QCOMPARE(Outputs(calculator), outputs);
}

void tst_InlineCalculator::shouldReEmitNaNForEveryInvalidEvaluation()
{
    // Given a calculator whose result is NaN from the start
    InlineCalculator calculator;
    NotifierSpies spies(calculator);

    // When an invalid expression and then the empty expression are evaluated
    calculator.setExpression(QStringLiteral("x"));
    calculator.setExpression(QString());

    // Then each evaluation announced its NaN result, while valid never changed and the list
    // [NaN] compared equal to itself (QList compares doubles bitwise)
    QCOMPARE(spies.Fired(), QStringLiteral("expression=2 result=2 multipleValids=1 multipleResults=1"));
    QCOMPARE(Outputs(calculator), QStringLiteral("invalid nan [0] [nan]"));
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
    InlineCalculator calculator;
    calculator.setExpression(QStringLiteral("1;2"));

    NotifierSpies spies(calculator);
    calculator.setMultipleEnabled(true);
    QCOMPARE(spies.Fired(), QStringLiteral("multipleEnabled=1"));
    QCOMPARE(Outputs(calculator), QStringLiteral("invalid nan [0] [nan]"));

    calculator.setExpression(QStringLiteral("1;3"));
    QCOMPARE(Outputs(calculator), QStringLiteral("valid 1 [1 1] [1 3]"));
}

void tst_InlineCalculator::shouldReEvaluateOnSeparatorsOnlyInMultipleMode()
{
    InlineCalculator calculator;
    calculator.setExpression(QStringLiteral("1 2"));
    {
        NotifierSpies spies(calculator);
        calculator.setSeparators({ QStringLiteral(" ") });
        QCOMPARE(spies.Fired(), QStringLiteral("separators=1"));
    }

    calculator.setMultipleEnabled(true);
    calculator.setSeparators({ QStringLiteral(" "), QStringLiteral(";") });
    QCOMPARE(Outputs(calculator), QStringLiteral("valid 1 [1 1] [1 2]"));
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
