#include "EventRecorder.h"
#include "TestHost.h"
#include "analysis/AnalysisService.h"
#include "datamodel/Settings.h"
#include "graphic/GraphicsService.h"
#include "graphic/InteractiveViewport.h"
#include "graphic/RenderTarget.h"
#include "graphic/ResultsSource.h"
#include "graphic/ScenePalette.h"
#include "graphic/ViewportEvents.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo;
using namespace Orvo::Graphic;
using Kernel::Model::MakeObjectId;
using Kernel::Model::ObjectKind;

namespace {

// An engine view that records what it asks of its window.
class RecordingView : public InteractiveViewport
{
public:
    using InteractiveViewport::InteractiveViewport;

    void RedrawWindowRequest() override { ++redrawRequests; }
    void PresentFrame() override { ++presentedFrames; }
    void ScheduleRedraw(int msec) override { scheduled.push_back(msec); }

    int redrawRequests = 0;
    int presentedFrames = 0;
    std::vector<int> scheduled;
};

MouseEvent Pointer(double x, double y, std::uint8_t button = MouseButton::None,
                   std::uint8_t modifiers = KeyModifier::None)
{
    MouseEvent event;
    event.position = { x, y };
    event.button = button;
    event.modifiers = modifiers;
    return event;
}

} // namespace

class tst_InteractiveViewport : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void shouldDrawOnlyWithATargetAndASize();
    void shouldDrawDetailsAgainAfterACameraMove();
    void shouldTurnAboutTheSelection();
    void shouldClickToSelect_data();
    void shouldClickToSelect();
    void shouldAnnounceThePointerOverTheModel();
    void shouldSnapThePointerAsTheUserChose_data();
    void shouldSnapThePointerAsTheUserChose();
    void shouldLeaveTheServiceWhenInvalidated();
    void shouldChooseSoftwareWithoutAnOpenGLContext();
    void shouldShowTheAnalysisResultsWhileTheyHold();

private:
    void Select(std::vector<Kernel::Model::ObjectId> ids) { m_model->Select(ids); }
    QPointF NodeOnScreen(RecordingView& view, Kernel::Model::Number node) const
    {
        const auto& scene = view.Scene();
        return view.GetCamera().Project(scene.NodePositions()[*scene.FindNode(node)]).position;
    }

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<GraphicsService> m_graphics;
    Kernel::Framework::StructuralModel* m_model = nullptr;
    std::unique_ptr<RecordingView> m_view;
};

void tst_InteractiveViewport::init()
{
    m_host = std::make_unique<TestHost>();
    auto catalog = m_host->StartServices();
    catalog->Get<UI::DataModel::Settings>()->SetValue(UI::DataModel::Settings::c_rendererType,
                                                      int(RendererType::Software));
    m_model = catalog->Get<Kernel::Framework::StructuralModel>().get();
    m_model->Replace([](Kernel::Model::Structure& structure) {
        Kernel::Model::ModelGenerator::PortalFrame(structure, Kernel::Model::PortalFrameOptions());
    });
    m_graphics = catalog->Get<GraphicsService>();
    m_graphics->GetScene().EnsureCurrent();
    m_view = std::make_unique<RecordingView>(m_graphics);
    QVERIFY(m_view->Initialize(0, true));
    m_view->Resize(QSize(400, 300));
    m_view->Draw();
}

void tst_InteractiveViewport::cleanup()
{
    if (m_view)
        m_view->Invalidate();
    m_view.reset();
    m_graphics.reset();
    m_host.reset();
}

void tst_InteractiveViewport::shouldDrawOnlyWithATargetAndASize()
{
    RecordingView view(m_graphics);
    view.Resize(QSize(200, 100));
    view.Draw();
    QCOMPARE(view.presentedFrames, 0); // no render target yet

    QVERIFY(view.Initialize(0, true));
    view.Resize(QSize(200, 0));
    view.Draw();
    QCOMPARE(view.presentedFrames, 0);

    view.Resize(QSize(200, 100));
    view.Draw();
    QCOMPARE(view.presentedFrames, 1);
    QCOMPARE(view.GetRenderView().GetImage().size(), QSize(200, 100));
    view.Invalidate();
}

void tst_InteractiveViewport::shouldDrawDetailsAgainAfterACameraMove()
{
    RecordingView& view = *m_view;
    QVERIFY(view.WasLastFrameComplete());

    QVERIFY(view.MousePress(Pointer(200, 150, MouseButton::Middle)));
    QVERIFY(view.IsTransforming());
    QCOMPARE(view.scheduled, std::vector<int> { -1 }); // a complete frame still due is dropped
    const int requestsBefore = view.redrawRequests;
    QVERIFY(view.MouseMove(Pointer(230, 140)));
    QVERIFY(view.redrawRequests > requestsBefore);
    view.Draw();
    QVERIFY(!view.WasLastFrameComplete());

    QVERIFY(view.MouseRelease(Pointer(230, 140, MouseButton::Middle)));
    QVERIFY(!view.IsTransforming());
    QCOMPARE(view.scheduled.back(), InteractiveViewport::c_completeFrameDelayMs);
    view.Draw();
    QVERIFY2(!view.WasLastFrameComplete(), "the complete frame waits for its time");

    // The window's timer fires.
    view.GetRenderTarget()->SetForceSingleCompleteFrame(true);
    view.Draw();
    QVERIFY(view.WasLastFrameComplete());
    QVERIFY(!view.GetRenderTarget()->IsForceSingleCompleteFrame());
}

void tst_InteractiveViewport::shouldTurnAboutTheSelection()
{
    RecordingView& view = *m_view;
    Select({ MakeObjectId(ObjectKind::Node, 2) });
    const QVector3D node = view.Scene().NodePositions()[*view.Scene().FindNode(2)];
    const QPointF before = view.GetCamera().Project(node).position;

    view.MousePress(Pointer(200, 150, MouseButton::Middle));
    view.MouseMove(Pointer(260, 190));
    view.MouseRelease(Pointer(260, 190, MouseButton::Middle));

    // The selected node stays where it was on the screen; the rest of the model turned.
    const QPointF after = view.GetCamera().Project(node).position;
    QVERIFY(std::hypot(after.x() - before.x(), after.y() - before.y()) < 0.5);
    QVERIFY(view.GetCamera().Yaw() != -45.0f);
}

void tst_InteractiveViewport::shouldClickToSelect_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("onNode");
    QTest::addColumn<QList<int>>("selectedNodes"); // after node 1 was selected and the click
    QTest::newRow("a click on a node selects it alone") << int(KeyModifier::None) << true << QList<int> { 2 };
    QTest::newRow("Shift adds it") << int(KeyModifier::Shift) << true << QList<int> { 1, 2 };
    QTest::newRow("Control adds what is not selected")
        << int(KeyModifier::Control) << true << QList<int> { 1, 2 };
    QTest::newRow("a click on nothing clears") << int(KeyModifier::None) << false << QList<int> {};
    QTest::newRow("a click on nothing with Shift keeps")
        << int(KeyModifier::Shift) << false << QList<int> { 1 };
}

void tst_InteractiveViewport::shouldClickToSelect()
{
    QFETCH(int, modifiers);
    QFETCH(bool, onNode);
    QFETCH(QList<int>, selectedNodes);
    RecordingView& view = *m_view;
    Select({ MakeObjectId(ObjectKind::Node, 1) });
    const QPointF at = onNode ? NodeOnScreen(view, 2) : QPointF(5, 5);

    QVERIFY(view.MousePress(Pointer(at.x(), at.y(), MouseButton::Left, std::uint8_t(modifiers))));
    QVERIFY(!view.IsSelectingByRect());
    QVERIFY(view.MouseRelease(Pointer(at.x(), at.y(), MouseButton::Left, std::uint8_t(modifiers))));

    std::vector<Kernel::Model::ObjectId> expected;
    for (const int node : selectedNodes)
        expected.push_back(MakeObjectId(ObjectKind::Node, node));
    QCOMPARE(m_model->Selection(), expected);

    // Control again on the same node takes it out.
    if (modifiers == KeyModifier::Control) {
        view.MousePress(Pointer(at.x(), at.y(), MouseButton::Left, KeyModifier::Control));
        view.MouseRelease(Pointer(at.x(), at.y(), MouseButton::Left, KeyModifier::Control));
        QCOMPARE(m_model->Selection(),
                 std::vector<Kernel::Model::ObjectId> { MakeObjectId(ObjectKind::Node, 1) });
    }
}

void tst_InteractiveViewport::shouldAnnounceThePointerOverTheModel()
{
    RecordingView& view = *m_view;
    auto bus = m_graphics->GetEventBus();
    EventRecorder<PointerPositionChangedEvent> pointer(*bus);
    const QPointF node = NodeOnScreen(view, 2); // (0, 0, 4.5) in the model

    QVERIFY(!view.MouseMove(Pointer(node.x() + 1, node.y()))); // hovering is not a drag

    QCOMPARE(view.GetHoveredObject(), MakeObjectId(ObjectKind::Node, 2));
    QCOMPARE(pointer.Count(), 1u);
    QVERIFY(pointer.Last().valid);
    QCOMPARE(pointer.Last().viewportId, view.GetRenderTarget()->GetId());
    QVERIFY(std::abs(pointer.Last().position.z - 4.5) < 1e-4);
    QVERIFY(std::abs(pointer.Last().position.x) < 1e-4);

    // Off the model and above the horizon: no point.
    view.SetViewPreset(ViewPreset::Front);
    view.MouseMove(Pointer(200, 2));
    QVERIFY(!pointer.Last().valid);
    QCOMPARE(view.GetHoveredObject(), 0);
}

void tst_InteractiveViewport::shouldSnapThePointerAsTheUserChose_data()
{
    QTest::addColumn<QString>("where"); // "middle" of the first column, a "ground" point
    QTest::addColumn<QString>("snap");
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("snapped");
    QTest::newRow("near a member's middle, with midpoints")
        << "middle" << UI::DataModel::Settings::c_snapToMidpoints << true << true;
    QTest::newRow("near a member's middle, without them")
        << "middle" << UI::DataModel::Settings::c_snapToMidpoints << false << false;
    QTest::newRow("on the ground, with the grid")
        << "ground" << UI::DataModel::Settings::c_snapToGrid << true << true;
    QTest::newRow("on the ground, without it")
        << "ground" << UI::DataModel::Settings::c_snapToGrid << false << false;
}

void tst_InteractiveViewport::shouldSnapThePointerAsTheUserChose()
{
    QFETCH(QString, where);
    QFETCH(QString, snap);
    QFETCH(bool, on);
    QFETCH(bool, snapped);
    RecordingView& view = *m_view;
    auto settings = Kernel::Framework::ServiceCatalog::Global()->Get<UI::DataModel::Settings>();
    QVERIFY(settings->SetValue(snap, on));
    EventRecorder<PointerPositionChangedEvent> pointer(*m_graphics->GetEventBus());

    // A few pixels off the point a snap would take.
    const auto& scene = view.Scene();
    const Geometry::Point3D target = where == QLatin1String("middle") ? Geometry::Point3D { 0.0, 0.0, 2.25 }
                                                                      : Geometry::Point3D { 2.0, 3.0, 0.0 };
    const QPointF at = view.GetCamera().Project(scene.ToScene(target)).position + QPointF(0.0, 3.0);
    view.MouseMove(Pointer(at.x(), at.y()));

    QVERIFY(pointer.Count() > 0 && pointer.Last().valid);
    const Geometry::Point3D& position = pointer.Last().position;
    const double distance = std::hypot(position.x - target.x, position.y - target.y, position.z - target.z);
    if (snapped)
        QVERIFY2(distance < 1e-4, qPrintable(QString::number(distance)));
    else
        QVERIFY2(distance > 1e-3, qPrintable(QString::number(distance)));
}

void tst_InteractiveViewport::shouldLeaveTheServiceWhenInvalidated()
{
    RecordingView& view = *m_view;
    const int id = view.GetRenderTarget()->GetId();
    QCOMPARE(m_graphics->FindViewport(id), &view);

    view.Invalidate();

    QVERIFY(!view.GetRenderTarget());
    QVERIFY(!m_graphics->FindViewport(id));
    QVERIFY(view.GetRenderView().GetImage().isNull());
    const int frames = view.presentedFrames;
    view.Draw();
    QCOMPARE(view.presentedFrames, frames);
}

void tst_InteractiveViewport::shouldChooseSoftwareWithoutAnOpenGLContext()
{
    // No OpenGL context is current here: the user's choice of OpenGL cannot be had.
    auto settings = Kernel::Framework::ServiceCatalog::Global()->Get<UI::DataModel::Settings>();
    settings->SetValue(UI::DataModel::Settings::c_rendererType, int(RendererType::OpenGLMultisample));
    RecordingView view(m_graphics);
    QVERIFY(view.Initialize(0, true));
    QCOMPARE(view.GetRendererType(), int(RendererType::SoftwareSmooth));

    settings->SetValue(UI::DataModel::Settings::c_rendererType, int(RendererType::Headless));
    QVERIFY(view.Initialize(0, true));
    QCOMPARE(view.GetRendererType(), int(RendererType::Headless));
    view.Resize(QSize(100, 100));
    view.Draw();
    QCOMPARE(view.presentedFrames, 1); // presented, though nothing was drawn
    QVERIFY(view.GetRenderView().GetImage().isNull());
    view.Invalidate();
}

void tst_InteractiveViewport::shouldShowTheAnalysisResultsWhileTheyHold()
{
    auto analysis = Kernel::Framework::ServiceCatalog::Global()->Get<Kernel::Analysis::AnalysisService>();
    QSignalSpy finished(analysis.get(), &Kernel::Analysis::AnalysisService::finished);
    const auto deadLoad = MakeObjectId(ObjectKind::LoadCase, 1);
    auto countDeformed = [this]() {
        const QImage& image = m_view->GetRenderView().GetImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == Palette::c_deformed ? 1 : 0;
        }
        return count;
    };
    DisplayOptions options = m_view->GetDisplayOptions();
    options.deformedShape = true;
    options.resultCase = deadLoad;
    m_view->SetDisplayOptions(options);
    m_view->Draw();
    QCOMPARE(countDeformed(), 0); // nothing analysed yet

    QVERIFY(analysis->start());
    QVERIFY(finished.wait(60000));
    QVERIFY(finished.first().at(0).toBool());

    const auto source = m_graphics->GetResultsSource();
    QVERIFY(source->HasResults(deadLoad));
    QVERIFY(!source->HasResults(MakeObjectId(ObjectKind::LoadCase, 99)));
    // The dead load pulls the beam down: its end nodes sink, in metres.
    const auto eave = source->NodeDisplacement(deadLoad, 2);
    QVERIFY(eave && eave->z < 0.0 && eave->z > -0.1);
    const auto moments = source->MemberForces(deadLoad, 3, ForceComponent::MomentY, 11);
    QCOMPARE(moments.size(), 11u);
    QVERIFY(std::abs(moments[5]) > 1.0); // kNm at mid-span under 2 kN/m over 6 m
    m_view->Draw();
    QVERIFY(countDeformed() > 20);

    // An edit leaves the results behind: the view drops them.
    m_model->SetValue({ MakeObjectId(ObjectKind::Node, 4) }, QStringLiteral("node.x"), 7.0);
    QVERIFY(!source->HasResults(deadLoad));
    m_graphics->GetScene().EnsureCurrent();
    m_view->Draw();
    QCOMPARE(countDeformed(), 0);
}

QTEST_MAIN(tst_InteractiveViewport)
#include "tst_interactiveviewport.moc"
