#include "basiccomponents/NumberFormatSettings.h"
#include "basiccomponents/NumberHelper.h"
#include "framework/ServiceCatalog.h"

#include <QSignalSpy>
#include <QtTest>

#include <limits>

using Orvo::Kernel::Framework::ServiceCatalog;
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
    void shouldReadBackWhatItWrote_data();
    void shouldReadBackWhatItWrote();
    void shouldFollowTheHostNumberSettings();
    void shouldNotifyOnlyRealDecimalChanges();
};

void tst_NumberHelper::shouldWriteEditText_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("point") << "en_US" << 6 << 1.5 << "1.5";
    QTest::newRow("comma") << "de_DE" << 6 << 1.5 << "1,5";
    QTest::newRow("no group separators") << "de_DE" << 6 << 1234567.25 << "1234567,25";
    QTest::newRow("whole number has no decimal mark") << "en_US" << 6 << 2.0 << "2";
    QTest::newRow("limited decimals") << "en_US" << 4 << 1.0 / 3.0 << "0.3333";
    QTest::newRow("rounding error hidden") << "en_US" << 6 << 0.1 + 0.2 << "0.3";
    QTest::newRow("negative") << "en_US" << 6 << -12.125 << "-12.125";
    QTest::newRow("tiny negative is zero") << "en_US" << 6 << -1e-9 << "0";
    QTest::newRow("no decimals") << "en_US" << 0 << 7.25 << "7";
    QTest::newRow("zeros before the point stay") << "en_US" << 3 << 1000.0 << "1000";
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
    QCOMPARE(helper.toEditValue(value), expected);
}

void tst_NumberHelper::shouldReadEditText_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("expected");

    QTest::newRow("point in English") << "en_US"
                                      << "1.5" << true << 1.5;
    QTest::newRow("comma in German") << "de_DE"
                                     << "1,5" << true << 1.5;
    QTest::newRow("point in German falls back to C") << "de_DE"
                                                     << "1.5" << true << 1.5;
    QTest::newRow("blanks around") << "en_US"
                                   << "  -2.25 " << true << -2.25;
    QTest::newRow("exponent") << "en_US"
                              << "1e3" << true << 1000.0;
    QTest::newRow("group separator refused") << "en_US"
                                             << "1,500.5" << false << 0.0;
    QTest::newRow("empty") << "en_US"
                           << "" << false << 0.0;
    QTest::newRow("word") << "en_US"
                          << "abc" << false << 0.0;
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

void tst_NumberHelper::shouldReadBackWhatItWrote_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("English") << "en_US";
    QTest::newRow("German") << "de_DE";
    QTest::newRow("French") << "fr_FR";
    QTest::newRow("Swiss German") << "de_CH";
}

void tst_NumberHelper::shouldReadBackWhatItWrote()
{
    QFETCH(QString, locale);
    NumberHelper helper;
    helper.setLocale(QLocale(locale));
    for (const double value : { 0.0, -0.5, 1234567.125, 3.14159, -98765.4321, 1e-6 }) {
        bool ok = false;
        QCOMPARE(helper.fromEditValue(helper.toEditValue(value), &ok), value);
        QVERIFY(ok);
    }
}

void tst_NumberHelper::shouldFollowTheHostNumberSettings()
{
    auto settings = ServiceCatalog::Global()->Get<NumberFormatSettings>();
    QVERIFY(settings);
    settings->SetLocale(QLocale(QLocale::German, QLocale::Germany));
    settings->SetEditDecimals(2);

    NumberHelper helper;
    QCOMPARE(helper.decimals(), 2);
    QCOMPARE(helper.toEditValue(2.345), QStringLiteral("2,35"));

    settings->UseApplicationLocale();
    settings->SetEditDecimals(NumberFormatSettings::c_defaultEditDecimals);
    QCOMPARE(NumberHelper().locale(), QLocale());
}

void tst_NumberHelper::shouldNotifyOnlyRealDecimalChanges()
{
    NumberHelper helper;
    QSignalSpy spy(&helper, &NumberHelper::decimalsChanged);
    QVERIFY(spy.isValid());

    helper.setDecimals(3);
    helper.setDecimals(3);
    QCOMPARE(spy.count(), 1);
    helper.setDecimals(99);
    QCOMPARE(helper.decimals(), NumberFormatSettings::c_maximumEditDecimals);
    QCOMPARE(spy.count(), 2);
}

QTEST_GUILESS_MAIN(tst_NumberHelper)
#include "tst_numberhelper.moc"
