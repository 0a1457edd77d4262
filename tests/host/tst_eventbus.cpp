#include "framework/EventBus.h"

#include <QtTest>

#include <optional>
#include <thread>

using namespace Orvo::Kernel::Framework;

namespace {
struct ValueEvent
{
    int value = 0;
};
struct OtherEvent
{
};
} // namespace

class tst_EventBus : public QObject
{
    Q_OBJECT

private slots:
    void shouldDeliverOnlyToSubscribersOfTheEventType()
    {
        EventBus bus;
        QList<int> values;
        int others = 0;
        auto valueConnection = bus.Subscribe<ValueEvent>([&](const ValueEvent& e) { values << e.value; });
        auto otherConnection = bus.Subscribe<OtherEvent>([&](const OtherEvent&) { ++others; });
        bus.Post(ValueEvent { 7 });
        bus.Post(OtherEvent {});
        bus.Post(ValueEvent { 8 });
        QCOMPARE(values, (QList<int> { 7, 8 }));
        QCOMPARE(others, 1);
    }

    void shouldUnsubscribeWhenTheConnectionIsDestroyed()
    {
        EventBus bus;
        int calls = 0;
        {
            auto connection = bus.Subscribe<ValueEvent>([&](const ValueEvent&) { ++calls; });
            bus.Post(ValueEvent {});
            QCOMPARE(bus.SubscriberCount<ValueEvent>(), std::size_t(1));
        }
        bus.Post(ValueEvent {});
        QCOMPARE(calls, 1);
        QCOMPARE(bus.SubscriberCount<ValueEvent>(), std::size_t(0));
    }

    void shouldKeepTheSubscriptionAliveAcrossMoves()
    {
        EventBus bus;
        int calls = 0;
        EventConnection kept;
        {
            auto connection = bus.Subscribe<ValueEvent>([&](const ValueEvent&) { ++calls; });
            kept = std::move(connection);
            QVERIFY(!connection.IsConnected());
        }
        QVERIFY(kept.IsConnected());
        bus.Post(ValueEvent {});
        QCOMPARE(calls, 1);
        kept = EventConnection();
        bus.Post(ValueEvent {});
        QCOMPARE(calls, 1);
    }

    void shouldOutliveTheBus()
    {
        EventConnection connection;
        {
            EventBus bus;
            connection = bus.Subscribe<ValueEvent>([](const ValueEvent&) {});
        }
        QVERIFY(!connection.IsConnected());
        connection.Disconnect(); // harmless
    }

    void shouldLetHandlersUnsubscribeDuringDispatch()
    {
        EventBus bus;
        QStringList log;
        std::optional<EventConnection> second;
        auto first = bus.Subscribe<ValueEvent>([&](const ValueEvent&) {
            log << "first";
            second.reset(); // removes a handler that has not run yet
        });
        second = bus.Subscribe<ValueEvent>([&](const ValueEvent&) { log << "second"; });
        std::optional<EventConnection> self;
        self = bus.Subscribe<ValueEvent>([&](const ValueEvent&) {
            log << "self";
            self.reset(); // removes itself while running
        });
        bus.Post(ValueEvent {});
        bus.Post(ValueEvent {});
        QCOMPARE(log, (QStringList { "first", "self", "first" }));
    }

    void shouldNotCallHandlersAddedDuringDispatch()
    {
        EventBus bus;
        int late = 0;
        std::vector<EventConnection> added;
        auto connection = bus.Subscribe<ValueEvent>([&](const ValueEvent&) {
            added.push_back(bus.Subscribe<ValueEvent>([&](const ValueEvent&) { ++late; }));
        });
        bus.Post(ValueEvent {});
        QCOMPARE(late, 0);
        bus.Post(ValueEvent {});
        QCOMPARE(late, 1);
    }

    void shouldDeliverPostsFromOtherThreadsOnTheBusThread()
    {
        EventBus bus;
        QList<Qt::HANDLE> threads;
        QList<int> values;
        auto connection = bus.Subscribe<ValueEvent>([&](const ValueEvent& e) {
            threads << QThread::currentThreadId();
            values << e.value;
        });
        std::thread([&bus] {
            bus.Post(ValueEvent { 1 });
            bus.Post(ValueEvent { 2 });
        }).join();
        QVERIFY(values.isEmpty());
        QTRY_COMPARE(values, (QList<int> { 1, 2 }));
        QCOMPARE(threads.first(), QThread::currentThreadId());
    }
};

QTEST_GUILESS_MAIN(tst_EventBus)
#include "tst_eventbus.moc"
