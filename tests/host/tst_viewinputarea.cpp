#include "EventRecorder.h"
#include "TestHost.h"
#include "events/ShowMarkingMenuEvent.h"
#include "qtextensions/ViewInputArea.h"

#include <QQuickWindow>
#include <QtTest>

using namespace Orvo::Kernel::Framework;
using Orvo::UI::Events::ShowMarkingMenuEvent;
using Orvo::UI::QtExtensions::ViewInputArea;

class tst_ViewInputArea : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void shouldRequestTheMenuWhileTheSecondaryButtonIsHeld();
    void shouldIgnoreTheOtherButtons_data();
    void shouldIgnoreTheOtherButtons();

private:
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QQuickWindow> m_window;
    ViewInputArea* m_area = nullptr;
};

void tst_ViewInputArea::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->StartServices();
    m_window = std::make_unique<QQuickWindow>();
    m_window->setGeometry(40, 30, 300, 200);
    m_area = new ViewInputArea(m_window->contentItem());
    m_area->setPosition(QPointF(20, 10));
    m_area->setSize(QSizeF(200, 150));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_ViewInputArea::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_ViewInputArea::shouldRequestTheMenuWhileTheSecondaryButtonIsHeld()
{
    EventRecorder<ShowMarkingMenuEvent> requests(*ServiceCatalog::Global()->Get<EventBus>());
    QSignalSpy holding(m_area, &ViewInputArea::holdingChanged);
    QVERIFY(holding.isValid());
    const QPoint pressed(70, 80);
    const QPointF expected = m_window->mapToGlobal(QPointF(pressed));

    QTest::mousePress(m_window.get(), Qt::RightButton, {}, pressed);
    QCOMPARE(requests.Count(), 1u);
    QVERIFY(requests.Last().GetShow());
    QCOMPARE(requests.Last().GetX(), expected.x());
    QCOMPARE(requests.Last().GetY(), expected.y());
    QVERIFY(m_area->holding());

    QTest::mouseRelease(m_window.get(), Qt::RightButton, {}, QPoint(90, 85));
    QCOMPARE(requests.Count(), 2u);
    QVERIFY(!requests.Last().GetShow());
    QVERIFY(!m_area->holding());
    QCOMPARE(holding.count(), 2);
}

void tst_ViewInputArea::shouldIgnoreTheOtherButtons_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("position");
    QTest::newRow("primary button") << Qt::LeftButton << QPoint(70, 80);
    QTest::newRow("middle button") << Qt::MiddleButton << QPoint(70, 80);
    QTest::newRow("secondary outside the view") << Qt::RightButton << QPoint(260, 190);
}

void tst_ViewInputArea::shouldIgnoreTheOtherButtons()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, position);
    EventRecorder<ShowMarkingMenuEvent> requests(*ServiceCatalog::Global()->Get<EventBus>());
    QTest::mouseClick(m_window.get(), button, {}, position);
    QCOMPARE(requests.Count(), 0u);
}

QTEST_MAIN(tst_ViewInputArea)
#include "tst_viewinputarea.moc"
