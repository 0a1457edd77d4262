#include "qtextensions/FramelessWindow.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

using Orvo::UI::QtExtensions::FramelessWindow;

class tst_FramelessWindow : public QObject
{
    Q_OBJECT

private slots:
    void shouldBeFramelessAndTransparent();
    void shouldOpenADeclaredVisibleWindowAtItsDeclaredSize();
    void shouldReportPointerMovesAndReleasesItsItemsNeverSawPressed();
    void shouldShowOnlyItsMaskPolygonsWhenMasked_data();
    void shouldShowOnlyItsMaskPolygonsWhenMasked();
};

void tst_FramelessWindow::shouldBeFramelessAndTransparent()
{
    FramelessWindow window;
    QVERIFY(window.flags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(window.color(), QColor(Qt::transparent));
}

void tst_FramelessWindow::shouldOpenADeclaredVisibleWindowAtItsDeclaredSize()
{
    // Given a declaration that makes the window visible before it sets its size
    qmlRegisterType<FramelessWindow>("FramelessWindowTest", 1, 0, "FramelessWindow");
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import FramelessWindowTest\n"
                      "FramelessWindow { visible: true; width: 123; height: 45 }",
                      QUrl());
    QSize sizeWhenShown;

    // When it is created
    std::unique_ptr<QObject> object(component.beginCreate(engine.rootContext()));
    QVERIFY2(object, qPrintable(component.errorString()));
    auto* window = qobject_cast<FramelessWindow*>(object.get());
    QVERIFY(window);
    QVERIFY(!window->isVisible());
    QObject::connect(window, &QWindow::visibleChanged, window, [&sizeWhenShown, window](bool visible) {
        if (visible)
            sizeWhenShown = window->size();
    });
    component.completeCreate();

    // Then it opens once, with the declared size
    QVERIFY(window->isVisible());
    QCOMPARE(sizeWhenShown, QSize(123, 45));
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

void tst_FramelessWindow::shouldShowOnlyItsMaskPolygonsWhenMasked_data()
{
    QTest::addColumn<FramelessWindow::MaskPolicy>("policy");
    QTest::addColumn<bool>("masked");
    // Tests run offscreen, where windows are always blended: the fallback is not needed there.
    QTest::newRow("always") << FramelessWindow::MaskAlways << true;
    QTest::newRow("only where transparency comes out black") << FramelessWindow::MaskWhenOpaque << false;
    QTest::newRow("never") << FramelessWindow::MaskNever << false;
}

void tst_FramelessWindow::shouldShowOnlyItsMaskPolygonsWhenMasked()
{
    QFETCH(FramelessWindow::MaskPolicy, policy);
    QFETCH(bool, masked);
    FramelessWindow window;
    window.setGeometry(100, 100, 200, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(window.isTranslucent());
    QSignalSpy maskedChanges(&window, &FramelessWindow::maskedChanged);
    QVERIFY(maskedChanges.isValid());

    // Given a square given as points and a triangle given as QML point objects
    window.setMaskPolicy(policy);
    const QVariantList square { QPointF(10, 10), QPointF(50, 10), QPointF(50, 50), QPointF(10, 50) };
    const QVariantList triangle { QVariantMap { { "x", 100 }, { "y", 100 } },
                                  QVariantMap { { "x", 190 }, { "y", 100 } },
                                  QVariantMap { { "x", 100 }, { "y", 190 } } };
    window.setMaskPolygons({ square, triangle });

    // Then the window shows only the polygons when masked, everything otherwise
    QCOMPARE(window.isMasked(), masked);
    QCOMPARE(maskedChanges.count(), masked ? 1 : 0);
    QVERIFY(window.isShownAt(QPointF(30, 30)));
    QVERIFY(window.isShownAt(QPointF(110, 110)));
    QCOMPARE(window.isShownAt(QPointF(5, 150)), !masked);
    QCOMPARE(window.isShownAt(QPointF(180, 180)), !masked);

    // And an empty list of polygons lifts the mask
    window.setMaskPolygons({});
    QVERIFY(!window.isMasked());
    QVERIFY(window.isShownAt(QPointF(5, 150)));
}

QTEST_MAIN(tst_FramelessWindow)
#include "tst_framelesswindow.moc"
