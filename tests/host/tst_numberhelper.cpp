#include "EventRecorder.h"
#include "TestHost.h"
#include "basiccomponents/NumberFormatSettings.h"
#include "basiccomponents/NumberHelper.h"
#include "events/NumberFormatChanged.h"
#include "framework/EventBus.h"

#include <QtTest>

#include <limits>

using Orvo::UI::BasicComponents::NumberFormatSettings;
using Orvo::UI::BasicComponents::NumberHelper;

class tst_NumberHelper : public QObject
{
    Q_OBJECT

private slots:
    void shouldWriteEditText_data();
    void shouldWriteEditText();
    void shouldReadEditText_data();
    void shouldReadEditText();
    void shouldTakeTheHostSettingsAndAnnounceTheirChanges();
};

void tst_NumberHelper::shouldWriteEditText_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("point") << "en_US" << 6 << -12.125 << "-12.125";
    QTest::newRow("comma, no group separators") << "de_DE" << 6 << 1234567.25 << "1234567,25";
    QTest::newRow("whole number has no decimal mark") << "en_US" << 3 << 1000.0 << "1000";
    QTest::newRow("limited decimals") << "en_US" << 4 << 1.0 / 3.0 << "0.3333";
    QTest::newRow("rounding error hidden") << "en_US" << 6 << 0.1 + 0.2 << "0.3";
    QTest::newRow("tiny negative is zero") << "en_US" << 6 << -1e-9 << "0";
    QTest::newRow("NaN has no text") << "en_US" << 6 << std::numeric_limits<double>::quiet_NaN() << "";
    QTest::newRow("infinity has no text") << "en_US" << 6 << std::numeric_limits<double>::infinity() << "";
}

void tst_NumberHelper::shouldWriteEditText()
{
    QFETCH(QString, locale);
    QFETCH(int, decimals);
    QFETCH(double, value);
    QFETCH(QString, expected);

    NumberHelper helper;
    helper.setLocale(QLocale(locale));
    helper.setDecimals(decimals);
    const QString text = helper.toEditValue(value);
    QCOMPARE(text, expected);
    if (!text.isEmpty()) // and reads it back
        QCOMPARE(helper.fromEditValue(text), QLocale(locale).toDouble(text));
}

void tst_NumberHelper::shouldReadEditText_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("expected");

    QTest::newRow("comma in German") << "de_DE"
                                     << "1,5" << true << 1.5;
    QTest::newRow("point in German falls back to C") << "de_DE"
                                                     << "1.5" << true << 1.5;
    QTest::newRow("blanks and exponent") << "en_US"
                                         << "  -2.5e3 " << true << -2500.0;
    QTest::newRow("comma in English, as the calculator reads it") << "en_US"
                                                                  << "1,5" << true << 1.5;
    QTest::newRow("German group separator refused") << "de_DE"
                                                    << "1.234,5" << false << 0.0;
    QTest::newRow("group separator refused") << "en_US"
                                             << "1,500.5" << false << 0.0;
    QTest::newRow("empty") << "en_US"
                           << "" << false << 0.0;
    QTest::newRow("trailing junk") << "en_US"
                                   << "12kg" << false << 0.0;
    QTest::newRow("infinity refused") << "en_US"
                                      << "inf" << false << 0.0;
    QTest::newRow("NaN refused") << "en_US"
                                 << "nan" << false << 0.0;
}

void tst_NumberHelper::shouldReadEditText()
{
    QFETCH(QString, locale);
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(double, expected);

    NumberHelper helper;
    helper.setLocale(QLocale(locale));
    bool parsed = !ok;
    QCOMPARE(helper.fromEditValue(text, &parsed), expected);
    QCOMPARE(parsed, ok);
}

void tst_NumberHelper::shouldTakeTheHostSettingsAndAnnounceTheirChanges()
{
    TestHost host;
    const auto catalog = host.StartServices();
    const auto settings = catalog->Get<NumberFormatSettings>();
    EventRecorder<Orvo::UI::Events::NumberFormatChanged> changes(
        *catalog->Get<Orvo::Kernel::Framework::EventBus>());

    settings->SetDecimalMark(NumberFormatSettings::DecimalMark::Comma);
    settings->SetDecimalMark(NumberFormatSettings::DecimalMark::Comma);
    settings->SetEditDecimals(2);
    QCOMPARE(changes.Count(), 2u);
    QCOMPARE(settings->GetDecimalMark(), NumberFormatSettings::DecimalMark::Comma);

    const NumberHelper helper;
    QCOMPARE(helper.decimalMark(), QStringLiteral(","));
    QCOMPARE(helper.toEditValue(-1234.567), QStringLiteral("-1234,57"));
    QCOMPARE(helper.fromEditValue(QStringLiteral("1.5")), 1.5);

    settings->SetDecimalMark(NumberFormatSettings::DecimalMark::Point);
    QCOMPARE(NumberHelper().toEditValue(-1234.567), QStringLiteral("-1234.57"));
    QCOMPARE(changes.Count(), 3u);
}

QTEST_GUILESS_MAIN(tst_NumberHelper)
#include "tst_numberhelper.moc"
