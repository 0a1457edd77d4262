#include "EventRecorder.h"
#include "TestHost.h"
#include "events/MessageBoxVisibleChanged.h"
#include "qtextensions/MessageBoxService.h"
#include "qtextensions/MessageBoxTracker.h"
#include "qtextensions/ShellQmlContext.h"

#include <QQmlEngine>
#include <QtTest>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::QtExtensions;
using Orvo::UI::Events::MessageBoxVisibleChanged;

namespace {

QString Describe(const EventRecorder<MessageBoxVisibleChanged>& recorder)
{
    QStringList texts;
    for (const auto& event : recorder.Events())
        texts << (event.GetVisible() ? QStringLiteral("shown") : QStringLiteral("hidden"));
    return texts.join(QLatin1Char(' '));
}

} // namespace

class tst_ShellServices : public QObject
{
    Q_OBJECT

private slots:
    void serviceShouldAnnounceOnlyTheFirstAndTheLastBox();
    void serviceShouldIgnoreACloseWithoutABox();
    void trackerShouldReportItsBoxWhileShown();
    void trackerDestroyedWhileShownShouldCloseItsBox();
    void shellContextShouldForgetADestroyedContext();
};

void tst_ShellServices::serviceShouldAnnounceOnlyTheFirstAndTheLastBox()
{
    // Given a box opened from another box
    auto eventbus = std::make_shared<EventBus>();
    EventRecorder<MessageBoxVisibleChanged> changes(*eventbus);
    MessageBoxService service(eventbus);

    service.MessageBoxShown();
    service.MessageBoxShown();
    QCOMPARE(service.VisibleCount(), 2);
    service.MessageBoxHidden();
    // Then the application still shows a box after the inner one closed
    QVERIFY(service.IsMessageBoxVisible());
    QCOMPARE(Describe(changes), QStringLiteral("shown"));

    service.MessageBoxHidden();
    QVERIFY(!service.IsMessageBoxVisible());
    QCOMPARE(Describe(changes), QStringLiteral("shown hidden"));
}

void tst_ShellServices::serviceShouldIgnoreACloseWithoutABox()
{
    auto eventbus = std::make_shared<EventBus>();
    EventRecorder<MessageBoxVisibleChanged> changes(*eventbus);
    MessageBoxService service(eventbus);

    QTest::ignoreMessage(QtDebugMsg, "A message box reported closing, but none is shown");
    service.MessageBoxHidden();
    service.MessageBoxShown();

    // The stray close must not have cancelled the box that is really open
    QVERIFY(service.IsMessageBoxVisible());
    QCOMPARE(Describe(changes), QStringLiteral("shown"));
}

void tst_ShellServices::trackerShouldReportItsBoxWhileShown()
{
    TestHost host;
    auto catalog = host.StartServices();
    EventRecorder<MessageBoxVisibleChanged> changes(*catalog->Get<EventBus>());
    MessageBoxTracker tracker;
    QSignalSpy shownChanged(&tracker, &MessageBoxTracker::shownChanged);
    QVERIFY(shownChanged.isValid());

    tracker.setShown(true);
    tracker.setShown(true);
    QVERIFY(catalog->Get<MessageBoxService>()->IsMessageBoxVisible());
    tracker.setShown(false);

    QCOMPARE(shownChanged.count(), 2);
    QCOMPARE(Describe(changes), QStringLiteral("shown hidden"));
}

void tst_ShellServices::trackerDestroyedWhileShownShouldCloseItsBox()
{
    TestHost host;
    auto catalog = host.StartServices();
    EventRecorder<MessageBoxVisibleChanged> changes(*catalog->Get<EventBus>());

    auto tracker = std::make_unique<MessageBoxTracker>();
    tracker->setShown(true);
    tracker.reset();

    QVERIFY(!catalog->Get<MessageBoxService>()->IsMessageBoxVisible());
    QCOMPARE(Describe(changes), QStringLiteral("shown hidden"));
}

void tst_ShellServices::shellContextShouldForgetADestroyedContext()
{
    ShellQmlContext shell;
    {
        QQmlEngine engine;
        shell.SetContext(engine.rootContext());
        QCOMPARE(shell.GetContext(), engine.rootContext());
    }
    QCOMPARE(shell.GetContext(), nullptr);
}

QTEST_MAIN(tst_ShellServices)
#include "tst_shellservices.moc"
