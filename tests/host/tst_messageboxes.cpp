#include "EventRecorder.h"
#include "TestHost.h"
#include "events/MessageBoxVisibleChanged.h"
#include "qtextensions/MessageBoxService.h"
#include "qtextensions/MessageBoxTracker.h"

#include <QtTest>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::QtExtensions;
using Orvo::UI::Events::MessageBoxVisibleChanged;

// The host knows whether a message box is up, however boxes stack and however they go.
class tst_MessageBoxes : public QObject
{
    Q_OBJECT

    static QString Describe(const EventRecorder<MessageBoxVisibleChanged>& recorder)
    {
        QStringList texts;
        for (const auto& event : recorder.Events())
            texts << (event.GetVisible() ? QStringLiteral("shown") : QStringLiteral("hidden"));
        return texts.join(QLatin1Char(' '));
    }

private slots:
    void serviceShouldAnnounceOnlyTheFirstAndTheLastBox()
    {
        auto eventbus = std::make_shared<EventBus>();
        EventRecorder<MessageBoxVisibleChanged> changes(*eventbus);
        MessageBoxService service(eventbus);

        // A stray close must not cancel a box that opens later
        QTest::ignoreMessage(QtDebugMsg, "A message box reported closing, but none is shown");
        service.MessageBoxHidden();
        // A box opened from another box
        service.MessageBoxShown();
        service.MessageBoxShown();
        service.MessageBoxHidden();
        QVERIFY(service.IsMessageBoxVisible());
        QCOMPARE(Describe(changes), QStringLiteral("shown"));

        service.MessageBoxHidden();
        QVERIFY(!service.IsMessageBoxVisible());
        QCOMPARE(Describe(changes), QStringLiteral("shown hidden"));
    }

    void trackerShouldReportItsBoxUntilItGoes()
    {
        TestHost host;
        auto catalog = host.StartServices();
        EventRecorder<MessageBoxVisibleChanged> changes(*catalog->Get<EventBus>());
        auto tracker = std::make_unique<MessageBoxTracker>();
        QSignalSpy shownChanged(tracker.get(), &MessageBoxTracker::shownChanged);

        tracker->setShown(true);
        tracker->setShown(true);
        tracker->setShown(false);
        QCOMPARE(shownChanged.count(), 2);
        QCOMPARE(Describe(changes), QStringLiteral("shown hidden"));

        // Destroyed while its box is shown: the box is closed for the host
        tracker->setShown(true);
        tracker.reset();
        QVERIFY(!catalog->Get<MessageBoxService>()->IsMessageBoxVisible());
        QCOMPARE(Describe(changes), QStringLiteral("shown hidden shown hidden"));
    }
};

QTEST_GUILESS_MAIN(tst_MessageBoxes)
#include "tst_messageboxes.moc"
