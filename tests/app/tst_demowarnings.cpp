#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

// The demo shows every page without a word on its error output: a QML warning there is a page
// that binds to something that is not there, or a type it does not get.
class tst_DemoWarnings : public QObject
{
    Q_OBJECT

private slots:
    void shouldShowEachPageWithoutWarnings_data()
    {
        QTest::addColumn<QString>("page");
        for (const char* page : { "model", "overview", "valueentry", "markingmenu", "properties", "tables",
                                  "analysis", "shortcuts", "report" })
            QTest::newRow(page) << QString::fromLatin1(page);
    }

    void shouldShowEachPageWithoutWarnings()
    {
        QFETCH(QString, page);
        QTemporaryDir directory;
        QProcess demo;
        // Every message, whatever category or level, so that none hides behind a logging rule.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QT_LOGGING_RULES"));
        environment.insert(QStringLiteral("QT_LOGGING_RULES"),
                           QStringLiteral("qt.qml.typeregistration.warning=false"));
        // A runtime directory of its own, private as Qt wants it.
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), directory.path());
        demo.setProcessEnvironment(environment);
        demo.start(qEnvironmentVariable("QTC_DEMO_EXE"),
                   { QStringLiteral("--page"), page, QStringLiteral("--screenshot"),
                     directory.filePath(QStringLiteral("page.png")) });
        QVERIFY(demo.waitForFinished(60000));
        QCOMPARE(demo.exitCode(), 0);
        QString errors = QString::fromLocal8Bit(demo.readAllStandardError());
        // Panels announce their native half on the host's debugger output as they are made: a
        // trace, not a fault.
        errors.remove(QRegularExpression(QStringLiteral("^orvo\\.debug: Cpp \\w+ created\\.\\n?"),
                                         QRegularExpression::MultilineOption));
        errors = errors.trimmed();
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
    }
};

QTEST_GUILESS_MAIN(tst_DemoWarnings)
#include "tst_demowarnings.moc"
