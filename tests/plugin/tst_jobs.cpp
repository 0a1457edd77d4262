#include "plugin/jobs/Jobs.h"
#include "plugin/jobs/RenderingJobs.h"
#include "plugin/jobs/UiJobs.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

#include <memory>
#include <stdexcept>
#include <thread>

using namespace Orvo::UI::UIComponents;

namespace {

// A queue whose owner performs it by hand, counting the requests it receives.
class ManualJobs : public Jobs
{
public:
    using Jobs::Jobs;
    using Jobs::Perform;
    int requests = 0;

protected:
    void RequestPerform() override { ++requests; }
};

class ExposedUiJobs : public UiJobs
{
public:
    using UiJobs::Perform;
    using UiJobs::UiJobs;
};

} // namespace

class tst_Jobs : public QObject
{
    Q_OBJECT

private slots:
    void shouldRunABatchInOrderAfterOneRequest()
    {
        ManualJobs jobs;
        QStringList log;
        for (const char* name : { "a", "b", "c" })
            jobs.Schedule([&log, name] { log << QString::fromLatin1(name); });
        QCOMPARE(jobs.requests, 1);
        QVERIFY(log.isEmpty());
        jobs.Perform();
        QCOMPARE(log, (QStringList { "a", "b", "c" }));
        QCOMPARE(jobs.PendingCount(), std::size_t(0));

        jobs.Schedule([&log] { log << "d"; });
        QCOMPARE(jobs.requests, 2); // a new batch asks again
    }

    void shouldDoNothingWhenPerformingAnEmptyQueue()
    {
        ManualJobs jobs;
        jobs.Perform();
        QCOMPARE(jobs.requests, 0);
        QCOMPARE(jobs.PendingCount(), std::size_t(0));
    }

    void shouldRunAtOnceOnTheOwnerAheadOfThePendingCalls()
    {
        ManualJobs jobs;
        QStringList log;
        jobs.Schedule([&log] { log << "pending"; });
        jobs.ScheduleOrRun([&log] { log << "immediate"; });
        QCOMPARE(log, QStringList { "immediate" });
        jobs.Perform();
        QCOMPARE(log, (QStringList { "immediate", "pending" }));
        QCOMPARE(jobs.requests, 1);
    }

    void shouldScheduleFromAnotherThreadLikeSchedule()
    {
        ManualJobs jobs;
        int runs = 0;
        std::thread other([&] {
            QVERIFY(!jobs.IsThisThread());
            jobs.ScheduleOrRun([&runs] { ++runs; });
            jobs.ScheduleOrRun([&runs] { ++runs; });
        });
        other.join();
        QCOMPARE(runs, 0);
        QCOMPARE(jobs.requests, 1);
        jobs.Perform();
        QCOMPARE(runs, 2);
    }

    void shouldTreatAQueueOwnedByAnotherThreadAsForeign()
    {
        std::thread::id otherId;
        std::thread([&otherId] { otherId = std::this_thread::get_id(); }).join();
        ManualJobs jobs(otherId);
        int runs = 0;
        jobs.ScheduleOrRun([&runs] { ++runs; });
        QCOMPARE(runs, 0);
        QCOMPARE(jobs.PendingCount(), std::size_t(1));
    }

    void shouldRunCopiedCallsInBothQueues()
    {
        ManualJobs original;
        int runs = 0;
        original.Schedule([&runs] { ++runs; });
        original.Schedule([&runs] { ++runs; });
        ManualJobs copy(original);
        copy.Perform();
        QCOMPARE(runs, 2);
        original.Perform();
        QCOMPARE(runs, 4);
    }

    void shouldDropCallsScheduledWhilePerforming()
    {
        ManualJobs jobs;
        int lateRuns = 0;
        jobs.Schedule([&] { jobs.Schedule([&lateRuns] { ++lateRuns; }); });
        jobs.Perform();
        QCOMPARE(lateRuns, 0);
        QCOMPARE(jobs.PendingCount(), std::size_t(0));
        QCOMPARE(jobs.requests, 1);
    }

    void shouldKeepTheBatchPendingWhenACallThrows()
    {
        ManualJobs jobs;
        int firstRuns = 0;
        bool fail = true;
        jobs.Schedule([&firstRuns] { ++firstRuns; });
        jobs.Schedule([&fail] {
            if (fail)
                throw std::runtime_error("boom");
        });
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, jobs.Perform());
        QCOMPARE(firstRuns, 1);
        QCOMPARE(jobs.PendingCount(), std::size_t(2));
        QCOMPARE(jobs.requests, 1);
        fail = false;
        jobs.Perform();
        QCOMPARE(firstRuns, 2); // the call that had run runs again
        QCOMPARE(jobs.PendingCount(), std::size_t(0));
    }

    void shouldSurviveACallThatDestroysItsQueue()
    {
        auto jobs = std::make_unique<ManualJobs>();
        bool after = false;
        jobs->Schedule([&jobs] { jobs.reset(); });
        jobs->Schedule([&after] { after = true; });
        jobs->Perform();
        QVERIFY(!jobs);
        QVERIFY(after); // the rest of the batch still runs: it was taken out of the queue first
    }

    void shouldPerformUiJobsFromTheContextEventLoop()
    {
        QObject context;
        ExposedUiJobs jobs(&context);
        QList<Qt::HANDLE> threads;
        std::thread other([&] {
            for (int i = 0; i < 3; ++i)
                jobs.Schedule([&threads] { threads << QThread::currentThreadId(); });
        });
        other.join();
        QVERIFY(threads.isEmpty());
        QTRY_COMPARE(threads.size(), 3);
        for (auto id : threads)
            QCOMPARE(id, QThread::currentThreadId());
    }

    void shouldKeepTheBatchWhenTheContextDiesFirst()
    {
        auto context = std::make_unique<QObject>();
        ExposedUiJobs jobs(context.get());
        int runs = 0;
        jobs.Schedule([&runs] { ++runs; });
        context.reset();
        QCoreApplication::processEvents();
        QCOMPARE(runs, 0);
        QCOMPARE(jobs.PendingCount(), std::size_t(1));
    }

    void shouldIgnoreAPostedRequestOfADestroyedQueue()
    {
        QObject context;
        int runs = 0;
        {
            ExposedUiJobs jobs(&context);
            jobs.Schedule([&runs] { ++runs; });
        }
        QCoreApplication::processEvents();
        QCOMPARE(runs, 0);
    }

    void shouldChooseTheRenderStageByReleaseState()
    {
        QQuickItem item;
        RenderingJobs jobs(&item);
        QCOMPARE(jobs.CurrentStage(), QQuickWindow::BeforeSynchronizingStage);
        jobs.SetReleased(true);
        QCOMPARE(jobs.CurrentStage(), QQuickWindow::NoStage);
    }

    void shouldRunRenderingJobsInTheWindowRenderLoop_data()
    {
        QTest::addColumn<bool>("released");
        // The test's render loop runs on this thread, the queue's owner: another thread plays
        // the GUI thread that feeds a render thread's queue.
        QTest::newRow("before release: at the next synchronisation") << false;
        // A job without a stage runs at once on the thread that hands it over when the render
        // loop has no thread of its own, so here only the owner may feed the released queue.
        QTest::newRow("released: as soon as the render loop is free") << true;
    }

    void shouldRunRenderingJobsInTheWindowRenderLoop()
    {
        QFETCH(bool, released);
        QQuickWindow window;
        window.resize(100, 100);
        QQuickItem item(window.contentItem());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        RenderingJobs jobs(&item);
        jobs.SetReleased(released);
        std::atomic<int> runs = 0;
        const auto scheduleTwo = [&jobs, &runs] {
            jobs.Schedule([&runs] { ++runs; });
            jobs.Schedule([&runs] { ++runs; });
        };
        if (released)
            scheduleTwo();
        else
            std::thread(scheduleTwo).join();
        window.update();
        QTRY_COMPARE(runs.load(), 2);
        QCOMPARE(jobs.PendingCount(), std::size_t(0));
    }
};

QTEST_MAIN(tst_Jobs)
#include "tst_jobs.moc"
