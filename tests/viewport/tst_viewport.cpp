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

using namespace Orvo;
using Kernel::Model::ObjectKind;
using UI::UIComponents::Viewport;

namespace {

constexpr int c_software = int(Graphic::RendererType::Software);

bool OpenGLExpected()
{
    return qEnvironmentVariableIsSet("QTC_EXPECT_OPENGL");
}

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
    void shouldTimeRedrawsAskedForOnAnotherThread();
    void shouldFollowAMoveWithACompleteFrame();
    void shouldSelectByRectangle_data();
    void shouldSelectByRectangle();
    void shouldLeaveAPressItDoesNotUse();
    void shouldPickWithinThePickingRadius_data();
    void shouldPickWithinThePickingRadius();
    void shouldInitialiseAZeroSizedItemButNeverDraw();
    void shouldInitialiseAgainWithANewQueueAfterRelease();
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

void tst_Viewport::shouldTimeRedrawsAskedForOnAnotherThread()
{
    Viewport viewport;

    // The GUI thread waits while the other thread asks, as it does while the render thread
    // synchronises.
    std::thread engineThread([&viewport]() { viewport.ScheduleRedraw(200); });
    engineThread.join();

    QVERIFY2(!viewport.RedrawTimer().isActive(), "the timer belongs to the GUI thread");
    QTRY_VERIFY(viewport.RedrawTimer().isActive());
    QVERIFY(viewport.RedrawTimer().interval() <= 200);
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

void tst_Viewport::shouldLeaveAPressItDoesNotUse()
{
    ViewportFixture fixture(c_software);
    fixture.Frame();
    auto bus = Kernel::Framework::ServiceCatalog::Global()->Get<Kernel::Framework::EventBus>();
    EventRecorder<UI::Events::ShowMarkingMenuEvent> menuRequests(*bus);
    QSignalSpy display(fixture.viewport, &Viewport::displaySelectingRectChanged);
    QSignalSpy rectangle(fixture.viewport, &Viewport::selectingRectChanged);

    // The secondary button is not the view's: it reaches the area beneath (the marking menu).
    QTest::mousePress(fixture.window.get(), Qt::RightButton, {}, QPoint(200, 150));
    QCOMPARE(menuRequests.Count(), 1u);
    QVERIFY(fixture.inputArea->holding());
    QCOMPARE(display.count(), 0);
    QCOMPARE(rectangle.count(), 0);
    QTest::mouseRelease(fixture.window.get(), Qt::RightButton, {}, QPoint(200, 150));

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

void tst_Viewport::shouldInitialiseAZeroSizedItemButNeverDraw()
{
    ViewportFixture fixture(c_software, QSize(0, 0));
    fixture.Frame();

    QTRY_VERIFY(fixture.viewport->Initialized());
    QVERIFY(fixture.viewport->viewportId() != -1);
    QVERIFY(fixture.viewport->GetRenderView().GetImage().isNull());
    QVERIFY(fixture.viewport->ImageNode()->rect().isEmpty());
}

void tst_Viewport::shouldInitialiseAgainWithANewQueueAfterRelease()
{
    ViewportFixture fixture(c_software);
    fixture.Frame();
    Viewport* viewport = fixture.viewport;
    const int firstId = viewport->viewportId();
    QSignalSpy idChanged(viewport, &Viewport::viewportIdChanged);

    viewport->releaseResources();

    // The release runs on the render thread; the view, still on screen, comes back with its
    // next frame.
    QTRY_VERIFY(!fixture.Graphics()->FindViewport(firstId));
    fixture.Frame();
    QTRY_VERIFY(viewport->Initialized() && viewport->viewportId() != -1);
    QVERIFY(viewport->viewportId() != firstId);
    QTRY_VERIFY(idChanged.count() >= 2); // none, then the new one
    // A queue of its own, not released like the last one.
    QVERIFY(viewport->RenderingQueue());
    QCOMPARE(viewport->RenderingQueue()->CurrentStage(), QQuickWindow::BeforeSynchronizingStage);
    QVERIFY(DrawnPixels(fixture.Frame()) > 0);
}

void tst_Viewport::shouldReleaseWhenTheWindowCloses()
{
    ViewportFixture fixture(c_software);
    fixture.Frame();
    const int id = fixture.viewport->viewportId();

    fixture.window->close();

    QTRY_VERIFY(!fixture.viewport->Initialized());
    QVERIFY(!fixture.Graphics()->FindViewport(id));
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
    QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
    if (needsOpenGL && !fixture.IsOpenGLWindow()) {
        if (OpenGLExpected())
            QFAIL("The window does not render with OpenGL");
        QSKIP("OpenGL renderers need a window that renders with OpenGL");
    }

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
    QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
    if (needsOpenGL && !fixture.IsOpenGLWindow())
        QSKIP("OpenGL renderers need a window that renders with OpenGL");
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
