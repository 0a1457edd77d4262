#include "EventRecorder.h"
#include "ViewportFixture.h"
#include "events/ShowMarkingMenuEvent.h"
#include "graphic/GraphicTypes.h"
#include "graphic/RenderTarget.h"
#include "model/ObjectIds.h"

#include <QSGImageNode>
#include <QSGTexture>
#include <QtTest>
#include <thread>
#include <tuple>

using namespace Orvo;
using Kernel::Model::ObjectKind;
using UI::UIComponents::Viewport;

namespace {

constexpr int c_software = int(Graphic::RendererType::Software);

bool OpenGLExpected()
{
    return qEnvironmentVariableIsSet("QTC_EXPECT_OPENGL");
}

// The two kinds of renderer the item treats differently: a frame copied from an image, and the
// engine's own OpenGL texture shown as it is.
void AddRendererRows(const char* suffix = "")
{
    QTest::addColumn<int>("rendererType");
    QTest::addColumn<bool>("needsOpenGL");
    QTest::addRow("software%s", suffix) << int(Graphic::RendererType::Software) << false;
    QTest::addRow("OpenGL%s", suffix) << int(Graphic::RendererType::OpenGL) << true;
}

// Where the window cannot render with OpenGL (offscreen), the OpenGL rows have nothing to test;
// on an X server with Mesa they must run.
#define SKIP_UNLESS_RENDERABLE(fixture, needsOpenGL)                                                         \
    do {                                                                                                     \
        QVERIFY(QTest::qWaitForWindowExposed((fixture).window.get()));                                       \
        if ((needsOpenGL) && !(fixture).IsOpenGLWindow()) {                                                  \
            if (OpenGLExpected())                                                                            \
                QFAIL("The window does not render with OpenGL");                                             \
            QSKIP("OpenGL renderers need a window that renders with OpenGL (run under xvfb-run)");           \
        }                                                                                                    \
    } while (false)

// How many pixels of the frame are far from both ends of the background gradient.
int DrawnPixels(const QImage& frame)
{
    int drawn = 0;
    const QImage image = frame.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2) {
            const QColor color = image.pixelColor(x, y);
            if (color.lightness() < 120)
                ++drawn;
        }
    }
    return drawn;
}

std::vector<Kernel::Model::ObjectId> OfKind(const std::vector<Kernel::Model::ObjectId>& ids, ObjectKind kind)
{
    std::vector<Kernel::Model::ObjectId> found;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(found),
                 [kind](Kernel::Model::ObjectId id) { return Kernel::Model::KindOf(id) == kind; });
    return found;
}

} // namespace

class tst_Viewport : public QObject
{
    Q_OBJECT

private slots:
    void shouldHaveNoViewportIdBeforeItsFirstFrame();
    void shouldTimeRedraws_data();
    void shouldTimeRedraws();
    void shouldTimeRedrawsAskedForOnAnotherThread_data();
    void shouldTimeRedrawsAskedForOnAnotherThread();
    void shouldFollowAMoveWithACompleteFrame();
    void shouldSelectByRectangle_data();
    void shouldSelectByRectangle();
    void shouldSignalEachStepOfADrag_data();
    void shouldSignalEachStepOfADrag();
    void shouldLeaveAPressItDoesNotUse_data();
    void shouldLeaveAPressItDoesNotUse();
    void shouldPickWithinThePickingRadius_data();
    void shouldPickWithinThePickingRadius();
    void shouldInitialiseAZeroSizedItemButNeverDraw_data();
    void shouldInitialiseAZeroSizedItemButNeverDraw();
    void shouldInitialiseAgainWithANewQueueAfterRelease_data();
    void shouldInitialiseAgainWithANewQueueAfterRelease();
    void shouldReleaseWhenTheWindowCloses_data();
    void shouldReleaseWhenTheWindowCloses();
    void shouldShowTheModel_data();
    void shouldShowTheModel();
    void shouldSizeTheTextureAfterAResize_data();
    void shouldSizeTheTextureAfterAResize();
};

void tst_Viewport::shouldHaveNoViewportIdBeforeItsFirstFrame()
{
    // Given a view not yet in a window
    Viewport detached;
    QCOMPARE(detached.viewportId(), -1);
    QVERIFY(!detached.Initialized());

    // When one is shown and has drawn a frame
    ViewportFixture fixture(c_software);
    fixture.Frame();

    // Then it has an id that reaches it through the graphics service
    QVERIFY(fixture.viewport->viewportId() != -1);
    QCOMPARE(fixture.Graphics()->FindViewport(fixture.viewport->viewportId()),
             static_cast<Graphic::InteractiveViewport*>(fixture.viewport));
}

void tst_Viewport::shouldTimeRedraws_data()
{
    QTest::addColumn<int>("pending");
    QTest::addColumn<int>("msec");
    QTest::addColumn<bool>("active");
    QTest::addColumn<int>("longest");
    QTest::addColumn<int>("shortest");
    QTest::newRow("none stops a pending timer") << 500 << -1 << false << 0 << 0;
    QTest::newRow("zero starts it at once") << 500 << 0 << true << 0 << 0;
    QTest::newRow("a due time already past starts it at once") << -1 << -40 << true << 0 << 0;
    QTest::newRow("a later time replaces an earlier one") << 20 << 300 << true << 300 << 250;
}

void tst_Viewport::shouldTimeRedraws()
{
    QFETCH(int, pending);
    QFETCH(int, msec);
    QFETCH(bool, active);
    QFETCH(int, longest);
    QFETCH(int, shortest);
    Viewport viewport;

    viewport.ScheduleRedraw(pending);
    viewport.ScheduleRedraw(msec);

    QCOMPARE(viewport.RedrawTimer().isActive(), active);
    if (active) {
        QVERIFY(viewport.RedrawTimer().interval() <= longest);
        QVERIFY(viewport.RedrawTimer().interval() >= shortest);
    }
}

void tst_Viewport::shouldTimeRedrawsAskedForOnAnotherThread_data()
{
    QTest::addColumn<int>("pending");
    QTest::addColumn<int>("msec");
    QTest::addColumn<int>("guiBusyMs");
    QTest::addColumn<bool>("active");
    QTest::addColumn<int>("longest");
    QTest::addColumn<int>("shortest");
    QTest::newRow("a later time") << -1 << 400 << 0 << true << 400 << 300;
    // The due time is counted from the request, not from when the GUI thread gets to it.
    QTest::newRow("a due time that passed while the GUI thread was busy")
        << -1 << 20 << 120 << true << 0 << 0;
    QTest::newRow("what is left of a due time") << -1 << 400 << 150 << true << 250 << 100;
    QTest::newRow("none stops a pending timer") << 500 << -1 << 0 << false << 0 << 0;
}

void tst_Viewport::shouldTimeRedrawsAskedForOnAnotherThread()
{
    QFETCH(int, pending);
    QFETCH(int, msec);
    QFETCH(int, guiBusyMs);
    QFETCH(bool, active);
    QFETCH(int, longest);
    QFETCH(int, shortest);
    Viewport viewport;
    viewport.ScheduleRedraw(pending);
    const bool wasActive = viewport.RedrawTimer().isActive();

    // The GUI thread waits while the other thread asks, as it does while the render thread
    // synchronises.
    std::thread engineThread([&viewport, msec]() { viewport.ScheduleRedraw(msec); });
    engineThread.join();
    QThread::msleep(guiBusyMs);

    QVERIFY2(viewport.RedrawTimer().isActive() == wasActive, "the timer belongs to the GUI thread");
    // The request waits in the GUI thread's queue: run it, and nothing else.
    QCoreApplication::sendPostedEvents(&viewport, QEvent::MetaCall);
    QCOMPARE(viewport.RedrawTimer().isActive(), active);
    if (active) {
        QVERIFY2(viewport.RedrawTimer().interval() <= longest,
                 qPrintable(QString::number(viewport.RedrawTimer().interval())));
        QVERIFY2(viewport.RedrawTimer().interval() >= shortest,
                 qPrintable(QString::number(viewport.RedrawTimer().interval())));
    }
}

void tst_Viewport::shouldFollowAMoveWithACompleteFrame()
{
    ViewportFixture fixture(c_software);
    fixture.Frame();
    QVERIFY(fixture.viewport->WasLastFrameComplete());

    // When the wheel zooms
    QWheelEvent wheel(QPointF(200, 150), fixture.window->mapToGlobal(QPointF(200, 150)), QPoint(),
                      QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QGuiApplication::sendEvent(fixture.window.get(), &wheel);

    // Then the frames that follow at once leave details out, and a complete one comes later
    QVERIFY(fixture.viewport->RedrawTimer().isActive());
    QVERIFY(fixture.viewport->RedrawTimer().interval()
            <= Graphic::InteractiveViewport::c_completeFrameDelayMs);
    QVERIFY(fixture.viewport->RedrawTimer().interval()
            > Graphic::InteractiveViewport::c_completeFrameDelayMs / 2);
    fixture.Frame();
    QVERIFY(!fixture.viewport->WasLastFrameComplete());
    QTRY_VERIFY(fixture.viewport->WasLastFrameComplete());
}

void tst_Viewport::shouldSelectByRectangle_data()
{
    QTest::addColumn<bool>("wholeModel");
    QTest::addColumn<bool>("leftwards");
    QTest::addColumn<bool>("memberSelected");
    QTest::newRow("rightwards over the whole model") << true << false << true;
    QTest::newRow("leftwards over the whole model") << true << true << true;
    QTest::newRow("rightwards across a member takes only what lies inside") << false << false << false;
    QTest::newRow("leftwards across a member takes what it touches") << false << true << true;
}

void tst_Viewport::shouldSelectByRectangle()
{
    QFETCH(bool, wholeModel);
    QFETCH(bool, leftwards);
    QFETCH(bool, memberSelected);
    ViewportFixture fixture(c_software);
    fixture.Frame();
    Viewport* viewport = fixture.viewport;
    const auto& scene = viewport->Scene();
    const auto& member = scene.Members().front();
    const QVector3D middle
        = (scene.NodePositions()[member.startNode] + scene.NodePositions()[member.endNode]) / 2;
    const QPoint centre = fixture.OnScreen(middle);
    QPoint from = wholeModel ? QPoint(2, 2) : centre - QPoint(5, 5);
    QPoint to = wholeModel ? QPoint(398, 298) : centre + QPoint(5, 5);
    if (leftwards)
        std::swap(from, to);
    QSignalSpy display(viewport, &Viewport::displaySelectingRectChanged);
    QSignalSpy rectangle(viewport, &Viewport::selectingRectChanged);
    QVERIFY(display.isValid() && rectangle.isValid());

    QTest::mousePress(fixture.window.get(), Qt::LeftButton, {}, from);
    QCOMPARE(rectangle.count(), 1);
    QCOMPARE(display.count(), 0);
    QVERIFY(!viewport->displaySelectingRect());

    QTest::mouseMove(fixture.window.get(), from + QPoint(1, 1));
    QCOMPARE(display.count(), 0); // not a drag yet
    QTest::mouseMove(fixture.window.get(), to);
    QVERIFY(viewport->displaySelectingRect());
    QCOMPARE(display.count(), 1);
    // The far corner, not a size: the band's side depends on it.
    QCOMPARE(viewport->selectingRect(), QRect(from.x(), from.y(), to.x(), to.y()));

    QTest::mouseRelease(fixture.window.get(), Qt::LeftButton, {}, to);
    QVERIFY(!viewport->displaySelectingRect());
    QCOMPARE(display.count(), 2);
    const auto selection = fixture.Model()->Selection();
    const auto memberId = scene.MemberId(0);
    QCOMPARE(std::find(selection.begin(), selection.end(), memberId) != selection.end(), memberSelected);
    if (wholeModel) {
        QCOMPARE(OfKind(selection, ObjectKind::Member).size(), scene.Members().size());
        QCOMPARE(OfKind(selection, ObjectKind::Node).size(), scene.NodePositions().size());
    }
}

void tst_Viewport::shouldSignalEachStepOfADrag_data()
{
    QTest::addColumn<int>("rendererType");
    QTest::addColumn<bool>("needsOpenGL");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("selecting");
    for (const auto& [name, type, needsOpenGL] :
         { std::tuple("software", Graphic::RendererType::Software, false),
           std::tuple("OpenGL", Graphic::RendererType::OpenGL, true) }) {
        QTest::addRow("%s, primary button: a rubber band", name)
            << int(type) << needsOpenGL << Qt::LeftButton << true;
        QTest::addRow("%s, middle button: the camera turns", name)
            << int(type) << needsOpenGL << Qt::MiddleButton << false;
    }
}

void tst_Viewport::shouldSignalEachStepOfADrag()
{
    QFETCH(int, rendererType);
    QFETCH(bool, needsOpenGL);
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, selecting);
    ViewportFixture fixture(rendererType);
    SKIP_UNLESS_RENDERABLE(fixture, needsOpenGL);
    fixture.Frame();
    Viewport* viewport = fixture.viewport;
    QSignalSpy display(viewport, &Viewport::displaySelectingRectChanged);
    QSignalSpy rectangle(viewport, &Viewport::selectingRectChanged);
    QVERIFY(display.isValid() && rectangle.isValid());
    const QPoint from(100, 80);
    const QPoint to(260, 200);

    // A used press tells QML the rectangle may have changed, whatever the button
    QTest::mousePress(fixture.window.get(), button, {}, from);
    QCOMPARE(rectangle.count(), 1);
    QCOMPARE(display.count(), 0);

    // Moves tell of the rectangle only while it is being drawn
    for (int step = 1; step <= 4; ++step) {
        QTest::mouseMove(fixture.window.get(), from + (to - from) * step / 4);
        fixture.Frame();
    }
    QCOMPARE(viewport->displaySelectingRect(), selecting);
    QCOMPARE(display.count(), selecting ? 1 : 0);
    if (selecting) {
        QVERIFY(rectangle.count() > 1);
        QCOMPARE(viewport->selectingRect(), QRect(from.x(), from.y(), to.x(), to.y()));
    } else {
        QCOMPARE(rectangle.count(), 1);
        QVERIFY(viewport->IsTransforming());
    }

    // The release hides the band and tells QML once more
    const int rectangleBefore = rectangle.count();
    QTest::mouseRelease(fixture.window.get(), button, {}, to);
    QVERIFY(!viewport->displaySelectingRect());
    QCOMPARE(display.count(), selecting ? 2 : 0);
    QCOMPARE(rectangle.count(), rectangleBefore + 1);
    QVERIFY(!viewport->IsTransforming());
}

void tst_Viewport::shouldLeaveAPressItDoesNotUse_data()
{
    AddRendererRows();
}

void tst_Viewport::shouldLeaveAPressItDoesNotUse()
{
    QFETCH(int, rendererType);
    QFETCH(bool, needsOpenGL);
    ViewportFixture fixture(rendererType);
    SKIP_UNLESS_RENDERABLE(fixture, needsOpenGL);
    fixture.Frame();
    auto bus = Kernel::Framework::ServiceCatalog::Global()->Get<Kernel::Framework::EventBus>();
    EventRecorder<UI::Events::ShowMarkingMenuEvent> menuRequests(*bus);
    QSignalSpy display(fixture.viewport, &Viewport::displaySelectingRectChanged);
    QSignalSpy rectangle(fixture.viewport, &Viewport::selectingRectChanged);
    const auto selectionBefore = fixture.Model()->Selection();

    // The secondary button is not the view's: it reaches the area beneath (the marking menu).
    QTest::mousePress(fixture.window.get(), Qt::RightButton, {}, QPoint(200, 150));
    QCOMPARE(menuRequests.Count(), 1u);
    QVERIFY(fixture.inputArea->holding());
    QCOMPARE(display.count(), 0);
    QCOMPARE(rectangle.count(), 0);
    QVERIFY(!fixture.viewport->IsTransforming());
    QTest::mouseMove(fixture.window.get(), QPoint(240, 190));
    QTest::mouseRelease(fixture.window.get(), Qt::RightButton, {}, QPoint(240, 190));
    QCOMPARE(display.count(), 0);
    QCOMPARE(rectangle.count(), 0);
    QVERIFY(fixture.Model()->Selection() == selectionBefore);

    // The middle button is the view's: it turns the camera, nothing beneath hears of it.
    menuRequests.Clear();
    QTest::mousePress(fixture.window.get(), Qt::MiddleButton, {}, QPoint(200, 150));
    QVERIFY(fixture.viewport->IsTransforming());
    QTest::mouseRelease(fixture.window.get(), Qt::MiddleButton, {}, QPoint(200, 150));
    QCOMPARE(menuRequests.Count(), 0u);
}

void tst_Viewport::shouldPickWithinThePickingRadius_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<bool>("picked");
    QTest::newRow("a radius that reaches the node") << 12.0 << true;
    QTest::newRow("a radius that falls short of it") << 2.0 << false;
}

void tst_Viewport::shouldPickWithinThePickingRadius()
{
    QFETCH(double, radius);
    QFETCH(bool, picked);
    ViewportFixture fixture(c_software);
    auto settings = Kernel::Framework::ServiceCatalog::Global()->Get<UI::DataModel::Settings>();
    QVERIFY(settings->SetValue(UI::DataModel::Settings::c_objectPickingRadius, radius));
    fixture.Frame();
    const auto& scene = fixture.viewport->Scene();
    // The highest node: nothing else is drawn near it.
    std::uint32_t top = 0;
    for (std::uint32_t i = 0; i < scene.NodePositions().size(); ++i) {
        if (scene.NodePositions()[i].z() > scene.NodePositions()[top].z())
            top = i;
    }
    const QPoint node = fixture.OnScreen(scene.NodePositions()[top]);

    QTest::mouseClick(fixture.window.get(), Qt::LeftButton, {}, node + QPoint(0, -8));

    const auto selection = fixture.Model()->Selection();
    QCOMPARE(!selection.empty(), picked);
    if (picked)
        QCOMPARE(selection.front(), scene.NodeId(top));
}

void tst_Viewport::shouldInitialiseAZeroSizedItemButNeverDraw_data()
{
    QTest::addColumn<int>("rendererType");
    QTest::addColumn<bool>("needsOpenGL");
    QTest::addColumn<QSize>("size");
    for (const auto& [name, type, needsOpenGL] :
         { std::tuple("software", Graphic::RendererType::Software, false),
           std::tuple("OpenGL", Graphic::RendererType::OpenGL, true) }) {
        QTest::addRow("%s, no size", name) << int(type) << needsOpenGL << QSize(0, 0);
        QTest::addRow("%s, no height", name) << int(type) << needsOpenGL << QSize(300, 0);
    }
}

void tst_Viewport::shouldInitialiseAZeroSizedItemButNeverDraw()
{
    QFETCH(int, rendererType);
    QFETCH(bool, needsOpenGL);
    QFETCH(QSize, size);
    ViewportFixture fixture(rendererType, size);
    SKIP_UNLESS_RENDERABLE(fixture, needsOpenGL);
    fixture.Frame();

    QTRY_VERIFY(fixture.viewport->Initialized());
    QVERIFY(fixture.viewport->viewportId() != -1);
    QCOMPARE(fixture.viewport->GetRenderView().GetSize(), size);
    // No frame: the node keeps its placeholder and has no area.
    QVERIFY(fixture.viewport->GetRenderView().GetImage().isNull());
    QCOMPARE(fixture.viewport->GetRenderView().GetNativeTexture(), 0u);
    QCOMPARE(fixture.viewport->ImageNode()->texture()->textureSize(), QSize(1, 1));
    QVERIFY(fixture.viewport->ImageNode()->rect().isEmpty());

    // Given a size, it draws
    fixture.viewport->setSize(QSizeF(ViewportFixture::c_windowSize));
    QVERIFY(DrawnPixels(fixture.Frame()) > 0);
    QCOMPARE(fixture.viewport->ImageNode()->rect(),
             QRectF(QPointF(0, 0), QSizeF(ViewportFixture::c_windowSize)));
}

void tst_Viewport::shouldInitialiseAgainWithANewQueueAfterRelease_data()
{
    AddRendererRows();
}

void tst_Viewport::shouldInitialiseAgainWithANewQueueAfterRelease()
{
    QFETCH(int, rendererType);
    QFETCH(bool, needsOpenGL);
    ViewportFixture fixture(rendererType);
    SKIP_UNLESS_RENDERABLE(fixture, needsOpenGL);
    fixture.Frame();
    Viewport* viewport = fixture.viewport;
    const int firstId = viewport->viewportId();
    QVERIFY(firstId != -1);
    // The first frame's announcement may still be on its way from the render thread.
    QCoreApplication::sendPostedEvents(viewport, QEvent::MetaCall);
    std::vector<int> ids;
    QObject::connect(viewport, &Viewport::viewportIdChanged, viewport,
                     [&ids, viewport]() { ids.push_back(viewport->viewportId()); });

    viewport->releaseResources();

    // The release runs on the render thread; the view, still on screen, comes back with its
    // next frame.
    QTRY_VERIFY(!fixture.Graphics()->FindViewport(firstId));
    fixture.Frame();
    QTRY_VERIFY(viewport->Initialized() && viewport->viewportId() != -1);
    QVERIFY(viewport->viewportId() != firstId);
    QTRY_COMPARE(ids.size(), 2u);
    QCOMPARE(ids.front(), -1);
    QCOMPARE(ids.back(), viewport->viewportId());
    // A queue of its own, not released like the last one.
    QVERIFY(viewport->RenderingQueue());
    QCOMPARE(viewport->RenderingQueue()->CurrentStage(), QQuickWindow::BeforeSynchronizingStage);
    QVERIFY(DrawnPixels(fixture.Frame()) > 200);

    // And it can be released again through the new queue
    const int secondId = viewport->viewportId();
    viewport->releaseResources();
    QTRY_VERIFY(!fixture.Graphics()->FindViewport(secondId));
}

void tst_Viewport::shouldReleaseWhenTheWindowCloses_data()
{
    AddRendererRows();
}

void tst_Viewport::shouldReleaseWhenTheWindowCloses()
{
    QFETCH(int, rendererType);
    QFETCH(bool, needsOpenGL);
    ViewportFixture fixture(rendererType);
    SKIP_UNLESS_RENDERABLE(fixture, needsOpenGL);
    fixture.Frame();
    const int id = fixture.viewport->viewportId();

    fixture.window->close();

    QTRY_VERIFY(!fixture.viewport->Initialized());
    QVERIFY(!fixture.Graphics()->FindViewport(id));
    QCOMPARE(fixture.viewport->viewportId(), -1);
}

void tst_Viewport::shouldShowTheModel_data()
{
    QTest::addColumn<int>("rendererType");
    QTest::addColumn<bool>("needsOpenGL");
    QTest::newRow("software") << int(Graphic::RendererType::Software) << false;
    QTest::newRow("software, smooth") << int(Graphic::RendererType::SoftwareSmooth) << false;
    QTest::newRow("OpenGL") << int(Graphic::RendererType::OpenGL) << true;
    QTest::newRow("OpenGL, multisampled") << int(Graphic::RendererType::OpenGLMultisample) << true;
}

void tst_Viewport::shouldShowTheModel()
{
    QFETCH(int, rendererType);
    QFETCH(bool, needsOpenGL);
    ViewportFixture fixture(rendererType);
    SKIP_UNLESS_RENDERABLE(fixture, needsOpenGL);

    const QImage frame = fixture.Frame();

    QCOMPARE(fixture.viewport->RendererType(), rendererType);
    QVERIFY2(DrawnPixels(frame) > 200, "the members are drawn");
    // The background's gradient at the top left corner, above the model.
    QVERIFY(frame.pixelColor(3, 3).lightness() > 200);
    if (needsOpenGL) {
        auto* texture
            = fixture.viewport->ImageNode()->texture()->nativeInterface<QNativeInterface::QSGOpenGLTexture>();
        QVERIFY(texture);
        // Shown without a copy: the node samples the engine's own texture.
        QCOMPARE(texture->nativeTexture(), GLuint(fixture.viewport->GetRenderView().GetNativeTexture()));
    }
}

void tst_Viewport::shouldSizeTheTextureAfterAResize_data()
{
    shouldShowTheModel_data();
}

void tst_Viewport::shouldSizeTheTextureAfterAResize()
{
    QFETCH(int, rendererType);
    QFETCH(bool, needsOpenGL);
    ViewportFixture fixture(rendererType);
    SKIP_UNLESS_RENDERABLE(fixture, needsOpenGL);
    fixture.Frame();
    QCOMPARE(fixture.viewport->ImageNode()->texture()->textureSize(), ViewportFixture::c_windowSize);

    fixture.viewport->setSize(QSizeF(250, 180));
    fixture.Frame();

    QCOMPARE(fixture.viewport->ImageNode()->texture()->textureSize(), QSize(250, 180));
    QCOMPARE(fixture.viewport->ImageNode()->rect(), QRectF(0, 0, 250, 180));
    QCOMPARE(fixture.viewport->GetRenderView().GetSize(), QSize(250, 180));
}

QTEST_MAIN(tst_Viewport)
#include "tst_viewport.moc"
