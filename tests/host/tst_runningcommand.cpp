#include "commands/RunningCommand.h"
#include "events/RunningCommandEvents.h"
#include "framework/EventBus.h"

#include <QTest>
#include <cmath>
#include <limits>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::Events;

class tst_RunningCommand : public QObject
{
    Q_OBJECT

private slots:
    void shouldTakeOnlyInputsThatFit_data()
    {
        QTest::addColumn<int>("valueCount");
        QTest::addColumn<QList<double>>("values");
        QTest::addColumn<QList<double>>("offered"); // empty: refused
        const double nan = std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("a point") << 3 << QList<double> { 1, 2, 3 } << QList<double> { 1, 2, 3 };
        QTest::newRow("a point in the plan") << 3 << QList<double> { 1, 2 } << QList<double> { 1, 2, 0 };
        QTest::newRow("too many") << 3 << QList<double> { 1, 2, 3, 4 } << QList<double> {};
        QTest::newRow("none") << 3 << QList<double> {} << QList<double> {};
        QTest::newRow("not a number") << 3 << QList<double> { 1, nan, 3 } << QList<double> {};
        QTest::newRow("a distance") << 1 << QList<double> { 2.5 } << QList<double> { 2.5 };
        QTest::newRow("a vector of two needs both") << 2 << QList<double> { 2.5 } << QList<double> {};
    }

    void shouldTakeOnlyInputsThatFit()
    {
        QFETCH(int, valueCount);
        QFETCH(QList<double>, values);
        QFETCH(QList<double>, offered);
        auto bus = std::make_shared<EventBus>();
        std::vector<std::vector<double>> received;
        auto connection = bus->Subscribe<CommandInputOffered>([&](const CommandInputOffered& event) {
            QVERIFY(event.GetCommandUuid() == L"cmd");
            received.push_back(event.GetValues());
        });
        RunningCommand running(bus);
        running.Start(L"cmd", L"UI_PROMPT", valueCount);
        const std::vector<double> input(values.cbegin(), values.cend());
        QCOMPARE(running.Offer(input), !offered.isEmpty());
        if (offered.isEmpty()) {
            QVERIFY(received.empty());
        } else {
            QCOMPARE(received.size(), std::size_t(1));
            QCOMPARE(received.front(), std::vector<double>(offered.cbegin(), offered.cend()));
        }
    }

    void shouldAnnounceStartAndFinishOnce()
    {
        auto bus = std::make_shared<EventBus>();
        std::vector<std::wstring> changes;
        auto connection = bus->Subscribe<RunningCommandChanged>(
            [&](const RunningCommandChanged& event) { changes.push_back(event.GetCommandUuid()); });
        RunningCommand running(bus);
        QVERIFY(!running.Offer({ 1, 2, 3 }));
        running.Finish();
        running.Start(L"a", L"UI_PROMPT");
        running.SetPrompt(L"UI_NEXT", 3);
        QVERIFY(running.Prompt() == L"UI_NEXT");
        running.Finish();
        running.Finish();
        QCOMPARE(changes, (std::vector<std::wstring> { L"a", L"a", L"" }));
        QVERIFY(!running.IsRunning());
        QVERIFY(!running.Offer({ 1, 2, 3 }));
    }
};

QTEST_MAIN(tst_RunningCommand)
#include "tst_runningcommand.moc"
