#include "EventRecorder.h"
#include "framework/IdleEventSource.h"
#include "framework/OnIdleEvent.h"

#include <QEventLoop>
#include <QTimer>
#include <QtTest>

using namespace Orvo::Kernel::Framework;

namespace {

// Runs an event loop until it has been idle once after `work` pending events were handled.
void RunLoopFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

class tst_IdleEventSource : public QObject
{
    Q_OBJECT

private slots:
    void shouldPostWhenTheLoopRunsOutOfWork();
    void shouldNotReportTheTurnsOfANestedLoop();
    void shouldStopWithTheSourceOrTheBus();
};

void tst_IdleEventSource::shouldPostWhenTheLoopRunsOutOfWork()
{
    auto eventbus = std::make_shared<EventBus>();
    IdleEventSource source(eventbus);
    QVERIFY(source.IsAttached());
    EventRecorder<OnIdleEvent> idle(*eventbus);

    // Nothing is pending: the loop waits at once, and again after the quit timer's event.
    RunLoopFor(20);
    QVERIFY(idle.Count() >= 1);

    // Every batch of work ends in an idle turn.
    const auto before = idle.Count();
    QEventLoop loop;
    int steps = 0;
    QTimer step;
    QObject::connect(&step, &QTimer::timeout, &loop, [&]() {
        if (++steps == 3)
            loop.quit();
    });
    step.start(5);
    loop.exec();
    QVERIFY(idle.Count() >= before + 2);
}

void tst_IdleEventSource::shouldNotReportTheTurnsOfANestedLoop()
{
    auto eventbus = std::make_shared<EventBus>();
    IdleEventSource source(eventbus);
    int delivered = 0;
    int deliveredDuringNestedLoop = 0;
    bool inNestedLoop = false;
    auto connection = eventbus->Subscribe<OnIdleEvent>([&](const OnIdleEvent&) {
        if (inNestedLoop) {
            ++deliveredDuringNestedLoop;
            return;
        }
        if (++delivered == 1) {
            // A handler that shows a modal dialog runs a loop of its own.
            inNestedLoop = true;
            RunLoopFor(20);
            inNestedLoop = false;
        }
    });
    RunLoopFor(40);
    QVERIFY(delivered >= 1);
    QCOMPARE(deliveredDuringNestedLoop, 0);
}

void tst_IdleEventSource::shouldStopWithTheSourceOrTheBus()
{
    auto eventbus = std::make_shared<EventBus>();
    EventRecorder<OnIdleEvent> idle(*eventbus);
    {
        IdleEventSource source(eventbus);
    }
    RunLoopFor(10);
    QCOMPARE(idle.Count(), 0u);

    auto shortLived = std::make_shared<EventBus>();
    IdleEventSource orphan(shortLived);
    shortLived.reset();
    RunLoopFor(10); // posting to a bus that is gone is a quiet no-op
}

QTEST_GUILESS_MAIN(tst_IdleEventSource)
#include "tst_idleeventsource.moc"
