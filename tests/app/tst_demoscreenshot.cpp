#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

// The demo's --screenshot mode is how a machine without a display shows what a person would
// see, so it must render the real window, not an empty surface.
class tst_DemoScreenshot : public QObject
{
    Q_OBJECT

    static int DistinctColours(const QImage& image)
    {
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); y += 4) {
            for (int x = 0; x < image.width(); x += 4)
                colours.insert(image.pixel(x, y));
        }
        return colours.size();
    }

private slots:
    void shouldWriteANonBlankPngOfEachPage_data()
    {
        QTest::addColumn<QString>("page");
        QTest::newRow("first page") << QString();
        QTest::newRow("overview") << QStringLiteral("overview");
        QTest::newRow("keyboard shortcuts") << QStringLiteral("shortcuts");
    }

    void shouldWriteANonBlankPngOfEachPage()
    {
        QFETCH(QString, page);
        QTemporaryDir directory;
        const QString file = directory.filePath(QStringLiteral("demo.png"));
        QStringList arguments { QStringLiteral("--screenshot"), file };
        if (!page.isEmpty())
            arguments << QStringLiteral("--page") << page;
        QProcess demo;
        demo.setProcessChannelMode(QProcess::ForwardedChannels);
        demo.start(qEnvironmentVariable("QTC_DEMO_EXE"), arguments);
        QVERIFY(demo.waitForFinished(60000));
        QCOMPARE(demo.exitStatus(), QProcess::NormalExit);
        QCOMPARE(demo.exitCode(), 0);

        const QImage image(file);
        QVERIFY(!image.isNull());
        QCOMPARE(image.size(), QSize(1280, 800));
        QVERIFY2(DistinctColours(image) > 8, "the screenshot is blank");
    }

    void shouldRejectAScreenshotOptionWithoutFile()
    {
        QProcess demo;
        demo.start(qEnvironmentVariable("QTC_DEMO_EXE"), { QStringLiteral("--screenshot") });
        QVERIFY(demo.waitForFinished(60000));
        QCOMPARE(demo.exitCode(), 2);
    }
};

QTEST_GUILESS_MAIN(tst_DemoScreenshot)
#include "tst_demoscreenshot.moc"
