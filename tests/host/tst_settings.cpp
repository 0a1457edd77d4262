#include "EventRecorder.h"
#include "datamodel/SettingChangedEvent.h"
#include "datamodel/Settings.h"
#include "framework/EventBus.h"
#include "kernel/PathText.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <limits>

using Orvo::UI::DataModel::SettingChangedEvent;
using Orvo::UI::DataModel::Settings;

class tst_Settings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void shouldKeepValuesForTheNextSession();
    void shouldAcceptOnlyValuesOfTheSetting_data();
    void shouldAcceptOnlyValuesOfTheSetting();
    void shouldGiveTheDefaultForAHandEditedValue();
    void shouldAnnounceRealChangesOnly();

private:
    std::filesystem::path File() const
    {
        return Orvo::Kernel::Directories::ToPath(m_directory.filePath("Settings.ini"));
    }

    QTemporaryDir m_directory;
};

void tst_Settings::init()
{
    QFile::remove(m_directory.filePath("Settings.ini"));
}

void tst_Settings::shouldKeepValuesForTheNextSession()
{
    {
        Settings settings(File());
        QVERIFY(settings.SetValue(Settings::c_rotationSensitivity, 0.8));
        QVERIFY(settings.SetValue(Settings::c_zoomFollowCameraDirection, true));
        QVERIFY(settings.SetValue(Settings::c_rendererType, 3));
    }

    const Settings next(File());
    QCOMPARE(next.GetRotationSensitivity(0.4), 0.8);
    QCOMPARE(next.GetZoomFollowCameraDirection(false), true);
    QCOMPARE(next.GetRendererType(1), 3);
    QCOMPARE(next.GetObjectPickingRadius(6.0), 6.0); // never set: the caller's default
}

void tst_Settings::shouldAcceptOnlyValuesOfTheSetting_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("accepted");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("a sensitivity") << Settings::c_rotationSensitivity << QVariant(0.5) << true;
    QTest::newRow("a sensitivity of zero would freeze the camera")
        << Settings::c_rotationSensitivity << QVariant(0.0) << false;
    QTest::newRow("a negative sensitivity") << Settings::c_rotationSensitivity << QVariant(-1.0) << false;
    QTest::newRow("not a number") << Settings::c_rotationSensitivity << QVariant(nan) << false;
    QTest::newRow("text that is no number")
        << Settings::c_zoomSensitivity << QVariant(QStringLiteral("fast")) << false;
    QTest::newRow("a zoom step past the target") << Settings::c_zoomSensitivity << QVariant(0.95) << false;
    QTest::newRow("a picking radius of zero") << Settings::c_objectPickingRadius << QVariant(0.0) << true;
    QTest::newRow("a number for a yes or no")
        << Settings::c_zoomFollowCameraDirection << QVariant(2.5) << false;
    QTest::newRow("yes or no as text")
        << Settings::c_zoomFollowCameraDirection << QVariant(QStringLiteral("true")) << true;
    QTest::newRow("a renderer that exists") << Settings::c_rendererType << QVariant(4) << true;
    QTest::newRow("a renderer that does not") << Settings::c_rendererType << QVariant(5) << false;
    QTest::newRow("half a renderer") << Settings::c_rendererType << QVariant(1.5) << false;
    QTest::newRow("a unit symbol") << Settings::c_lengthUnit << QVariant(QStringLiteral("mm")) << true;
    QTest::newRow("a number for a name") << Settings::c_accountName << QVariant(12) << false;
    QTest::newRow("a name longer than any name")
        << Settings::c_accountName << QVariant(QString(300, QLatin1Char('x'))) << false;
    QTest::newRow("a setting that does not exist")
        << QStringLiteral("Interaction/Unknown") << QVariant(1) << false;
}

void tst_Settings::shouldAcceptOnlyValuesOfTheSetting()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(bool, accepted);
    Settings settings(File());
    if (!accepted)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(".*"));

    QCOMPARE(settings.SetValue(key, value), accepted);
    QCOMPARE(settings.Value(key).isValid(), accepted);
}

void tst_Settings::shouldGiveTheDefaultForAHandEditedValue()
{
    QFile file(m_directory.filePath("Settings.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Interaction]\nRotationSensitivity=-3\nZoomNearestLimit=0.5\n");
    file.close();
    const Settings settings(File());

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("RotationSensitivity.*not acceptable"));
    QCOMPARE(settings.GetRotationSensitivity(0.4), 0.4);
    QCOMPARE(settings.GetZoomNearestLimit(0.25), 0.5);
}

void tst_Settings::shouldAnnounceRealChangesOnly()
{
    auto bus = std::make_shared<Orvo::Kernel::Framework::EventBus>();
    EventRecorder<SettingChangedEvent> changes(*bus);
    Settings settings(File(), bus);

    settings.SetValue(Settings::c_objectPickingRadius, 8.0);
    settings.SetValue(Settings::c_objectPickingRadius, 8.0);
    QCOMPARE(changes.Count(), 1u);
    QCOMPARE(changes.Last().key, Settings::c_objectPickingRadius);

    settings.Reset(Settings::c_objectPickingRadius);
    settings.Reset(Settings::c_objectPickingRadius);
    QCOMPARE(changes.Count(), 2u);
    QCOMPARE(settings.GetObjectPickingRadius(6.0), 6.0);
}

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_settings.moc"
