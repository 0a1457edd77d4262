#include "notifications/NotificationsButtonsSelectionModel.h"
#include "notifications/NotificationsFilterModel.h"
#include "notifications/NotificationsModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::UI::UIComponents;
using Severity = NotificationsModel::Severity;

namespace {

// The titles of a model's rows, top to bottom.
QString Describe(const QAbstractItemModel& model)
{
    QStringList titles;
    for (int row = 0; row < model.rowCount(); ++row)
        titles << model.index(row, 0).data(NotificationsModel::TitleRole).toString();
    return titles.join(QLatin1Char(','));
}

} // namespace

class tst_NotificationsModel : public QObject
{
    Q_OBJECT

    // A centre with a clock the test moves by hand, watched by model testers.
    struct Centre
    {
        NotificationsModel model;
        NotificationsButtonsSelectionModel buttons;
        NotificationsFilterModel filtered;
        NotificationsFilterModel toasts;
        QAbstractItemModelTester modelTester { &model,
                                               QAbstractItemModelTester::FailureReportingMode::QtTest };
        QAbstractItemModelTester filteredTester { &filtered,
                                                  QAbstractItemModelTester::FailureReportingMode::QtTest };
        QAbstractItemModelTester toastsTester { &toasts,
                                                QAbstractItemModelTester::FailureReportingMode::QtTest };
        QDateTime now { QDate(2026, 3, 2), QTime(9, 0) };

        Centre()
        {
            model.SetClock([this] { return now; });
            filtered.setSourceModel(&model);
            filtered.setSelectionModel(&buttons);
            toasts.setSourceModel(&model);
            toasts.setToastsOnly(true);
        }
        void Advance(int milliseconds) { now = now.addMSecs(milliseconds); }
    };

private slots:
    void shouldListNewestFirstAndCountUnread()
    {
        // Given an empty centre
        Centre centre;
        QSignalSpy unread(&centre.model, &NotificationsModel::unreadCountChanged);
        QVERIFY(unread.isValid());

        // When three messages come in and the middle one is read
        centre.model.Add(NotificationsModel::Information, "a", "");
        centre.Advance(1000);
        const int second = centre.model.Add(NotificationsModel::Warning, "b", "");
        centre.model.Add(NotificationsModel::Error, "c", "");
        centre.model.markRead(centre.model.RowOf(second));

        // Then the newest is on top, stamped by the clock, and two are unread
        QCOMPARE(Describe(centre.model), "c,b,a");
        QCOMPARE(centre.model.index(2).data(NotificationsModel::TimeRole).toDateTime(),
                 QDateTime(QDate(2026, 3, 2), QTime(9, 0)));
        QCOMPARE(centre.model.unreadCount(), 2);
        QCOMPARE(unread.count(), 4);

        // Marking a read message again says nothing
        centre.model.markRead(centre.model.RowOf(second));
        QCOMPARE(unread.count(), 4);
        centre.model.markAllRead();
        QCOMPARE(centre.model.unreadCount(), 0);
    }

    void shouldFilterBySeverityButtons_data()
    {
        QTest::addColumn<QList<int>>("toggled");
        QTest::addColumn<QString>("expected");

        QTest::newRow("no button: everything") << QList<int> {} << "error,warning,done,info";
        QTest::newRow("errors only") << QList<int> { NotificationsModel::Error } << "error";
        QTest::newRow("errors and warnings")
            << QList<int> { NotificationsModel::Warning, NotificationsModel::Error } << "error,warning";
        QTest::newRow("a button pressed twice is off again")
            << QList<int> { NotificationsModel::Error, NotificationsModel::Success,
                            NotificationsModel::Error }
            << "done";
        QTest::newRow("every button") << QList<int> { 0, 1, 2, 3 } << "error,warning,done,info";
        QTest::newRow("not a severity: ignored")
            << QList<int> { 7, NotificationsModel::Information } << "info";
    }

    void shouldFilterBySeverityButtons()
    {
        QFETCH(QList<int>, toggled);
        QFETCH(QString, expected);
        Centre centre;
        centre.model.Add(NotificationsModel::Information, "info", "");
        centre.model.Add(NotificationsModel::Success, "done", "");
        centre.model.Add(NotificationsModel::Warning, "warning", "");
        centre.model.Add(NotificationsModel::Error, "error", "");

        for (int severity : toggled) {
            if (severity > NotificationsModel::Error)
                QTest::ignoreMessage(QtWarningMsg, "No severity 7 to filter by");
            centre.buttons.toggle(severity);
        }

        QCOMPARE(Describe(centre.filtered), expected);
        // The centre's list narrows; the model keeps every message.
        QCOMPARE(centre.model.rowCount(), 4);
        QCOMPARE(centre.filtered.count(), int(expected.count(QLatin1Char(',')) + 1));
    }

    void shouldShowButtonsCheckedAsSelected()
    {
        Centre centre;
        QSignalSpy changed(&centre.buttons, &NotificationsButtonsSelectionModel::selectionChanged);
        centre.buttons.toggle(NotificationsModel::Warning);

        QCOMPARE(changed.count(), 1);
        QStringList checked;
        for (const QVariant& button : centre.buttons.buttons()) {
            if (button.toMap()["checked"].toBool())
                checked << button.toMap()["text"].toString();
        }
        QCOMPARE(checked, QStringList { "Warnings" });
        centre.buttons.clear();
        QVERIFY(centre.buttons.selected().isEmpty());
    }

    void shouldExpireToastsWhenTheirTimeIsUp_data()
    {
        QTest::addColumn<int>("elapsed");
        QTest::addColumn<QString>("toasts");

        // "old" came 2 s before "new"; both last 5 s.
        QTest::newRow("both young") << 0 << "new,old";
        QTest::newRow("just before the first expires") << 2999 << "new,old";
        QTest::newRow("first exactly at its end") << 3000 << "new";
        QTest::newRow("both gone") << 5000 << "";
    }

    void shouldExpireToastsWhenTheirTimeIsUp()
    {
        QFETCH(int, elapsed);
        QFETCH(QString, toasts);
        Centre centre;
        centre.model.setToastDuration(5000);
        centre.model.Add(NotificationsModel::Information, "old", "");
        centre.Advance(2000);
        centre.model.Add(NotificationsModel::Warning, "new", "");

        centre.Advance(elapsed);
        centre.model.ExpireToasts();

        QCOMPARE(Describe(centre.toasts), toasts);
        // An expired toast stays in the centre.
        QCOMPARE(Describe(centre.model), "new,old");
    }

    void shouldExpireToastsByItsTimer()
    {
        // The real clock: a short duration, and the event loop runs until the toast is gone.
        NotificationsModel model;
        NotificationsFilterModel toasts;
        QAbstractItemModelTester tester { &toasts, QAbstractItemModelTester::FailureReportingMode::QtTest };
        toasts.setSourceModel(&model);
        toasts.setToastsOnly(true);
        model.setToastDuration(20);

        model.Add(NotificationsModel::Success, "saved", "");
        QCOMPARE(toasts.rowCount(), 1);
        QTRY_COMPARE(toasts.rowCount(), 0);
        QCOMPARE(model.rowCount(), 1);
    }

    void shouldDismissAToastAndClearAll()
    {
        Centre centre;
        centre.model.Add(NotificationsModel::Information, "a", "");
        centre.model.Add(NotificationsModel::Error, "b", "");
        QSignalSpy count(&centre.model, &NotificationsModel::countChanged);

        centre.model.dismissToast(0);
        QCOMPARE(Describe(centre.toasts), "a");

        centre.model.clearAll();
        QCOMPARE(centre.model.rowCount(), 0);
        QCOMPARE(centre.toasts.rowCount(), 0);
        QCOMPARE(centre.model.unreadCount(), 0);
        QCOMPARE(count.count(), 1);
        // Rows that are not there are ignored.
        centre.model.remove(0);
        centre.model.markRead(-1);
        centre.model.dismissToast(3);
    }

    void shouldDropTheOldestBeyondTheLimit()
    {
        Centre centre;
        for (int number = 0; number <= NotificationsModel::c_maximumCount; ++number)
            centre.model.Add(NotificationsModel::Information, QString::number(number), "");

        QCOMPARE(centre.model.rowCount(), NotificationsModel::c_maximumCount);
        QCOMPARE(centre.model.index(0).data(NotificationsModel::TitleRole).toString(),
                 QString::number(NotificationsModel::c_maximumCount));
        QCOMPARE(
            centre.model.index(centre.model.rowCount() - 1).data(NotificationsModel::TitleRole).toString(),
            "1");
    }
};

QTEST_GUILESS_MAIN(tst_NotificationsModel)
#include "tst_notificationsmodel.moc"
