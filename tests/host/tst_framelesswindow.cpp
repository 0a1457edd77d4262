#include "qtextensions/FramelessWindow.h"

#include <QtTest>

using Orvo::UI::QtExtensions::FramelessWindow;

class tst_FramelessWindow : public QObject
{
    Q_OBJECT

private slots:
    void shouldBeFramelessAndTransparent();
    void shouldReportPointerMovesAndReleasesItsItemsNeverSawPressed();
};

void tst_FramelessWindow::shouldBeFramelessAndTransparent()
{
    FramelessWindow window;
    QVERIFY(window.flags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(window.color(), QColor(Qt::transparent));
}

void tst_FramelessWindow::shouldReportPointerMovesAndReleasesItsItemsNeverSawPressed()
{
    // Given a shown window (a gesture that began elsewhere continues over it)
    FramelessWindow window;
    window.setGeometry(100, 100, 200, 200);
    window.setGrabsPointer(true);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSignalSpy moved(&window, &FramelessWindow::pointerMoved);
    QSignalSpy released(&window, &FramelessWindow::pointerReleased);
    QVERIFY(moved.isValid());
    QVERIFY(released.isValid());

    // When the pointer moves over it and the button comes up
    QTest::mouseMove(&window, QPoint(30, 40));
    QTest::mouseMove(&window, QPoint(50, 60));
    QTest::mouseRelease(&window, Qt::RightButton, {}, QPoint(50, 60));

    // Then it reports both, in window coordinates
    QCOMPARE(moved.count(), 2);
    QCOMPARE(moved.last().at(0).toPointF(), QPointF(50, 60));
    QCOMPARE(released.count(), 1);
    QCOMPARE(released.last().at(1).toInt(), static_cast<int>(Qt::RightButton));
}

QTEST_MAIN(tst_FramelessWindow)
#include "tst_framelesswindow.moc"
