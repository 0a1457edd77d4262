#include "graphic/Camera.h"
#include "graphic/Picker.h"
#include "graphic/ResultsLayer.h"
#include "graphic/ResultsSource.h"
#include "graphic/SoftwareRaster.h"
#include "graphic/StructureScene.h"
#include "model/ModelGenerator.h"

#include <QTest>
#include <cmath>
#include <limits>
#include <set>

using namespace Orvo::Graphic;
using namespace Orvo::Kernel::Model;

namespace {

// Two columns and a beam in the x-z plane: nodes 1 (0,0,0), 2 (0,0,4), 3 (6,0,0), 4 (6,0,4);
// members 1 (1-2) and 2 (3-4) the columns, 3 (2-4) the beam.
Structure Portal()
{
    Structure structure;
    PortalFrameOptions options;
    options.span = 6.0;
    options.height = 4.0;
    ModelGenerator::PortalFrame(structure, options);
    return structure;
}

// Looks at the portal from the front, all of it in a 400 by 300 view.
Camera FrontCamera(const StructureScene& scene,
                   Camera::Projection projection = Camera::Projection::Perspective)
{
    Camera camera;
    camera.SetViewportSize(QSize(400, 300));
    camera.SetProjection(projection);
    camera.SetSceneBounds(scene.Bounds());
    camera.SetOrientation(-90.0f, 0.0f);
    camera.Fit(scene.Bounds(), 0.1f, 1000.0f);
    return camera;
}

QVector3D NodeAt(const StructureScene& scene, Number number)
{
    return scene.NodePositions()[*scene.FindNode(number)];
}

// Every node moves 10 mm along x; every member carries 1 to 3 kNm from start to end.
class TestResults : public ResultsSource
{
public:
    bool HasResults(ObjectId resultCase) const override { return resultCase == c_case; }
    std::optional<Orvo::Geometry::Point3D> NodeDisplacement(ObjectId, Number) const override
    {
        return Orvo::Geometry::Point3D { 0.01, 0.0, 0.0 };
    }
    std::vector<double> MemberForces(ObjectId, Number, ForceComponent, int stations) const override
    {
        std::vector<double> values;
        for (int i = 0; i < stations; ++i)
            values.push_back(1.0 + 2.0 * i / (stations - 1));
        return values;
    }

    static constexpr ObjectId c_case = MakeObjectId(ObjectKind::LoadCase, 1);
};

} // namespace

class tst_GraphicScene : public QObject
{
    Q_OBJECT

private slots:
    void shouldProjectWhereTheRayThroughThePixelPasses_data();
    void shouldProjectWhereTheRayThroughThePixelPasses();
    void shouldKeepThePointUnderThePointerWhenZooming();
    void shouldKeepTheZoomWithinItsLimits();
    void shouldTurnAboutThePivot();
    void shouldPlaceEveryMemberInOneCell();
    void shouldMarkTheSelectedObjects();
    void shouldPickNodesBeforeMembers_data();
    void shouldPickNodesBeforeMembers();
    void shouldSelectByRectangle_data();
    void shouldSelectByRectangle();
    void shouldNeverDrawOutsideTheImage_data();
    void shouldNeverDrawOutsideTheImage();
    void shouldHideWhatLiesBehind();
    void shouldDrawResultsOnlyForACaseThatHasThem();
};

void tst_GraphicScene::shouldProjectWhereTheRayThroughThePixelPasses_data()
{
    QTest::addColumn<int>("projection");
    QTest::addColumn<float>("yaw");
    QTest::addColumn<float>("pitch");
    QTest::newRow("perspective, isometric") << int(Camera::Projection::Perspective) << -45.0f << 35.0f;
    QTest::newRow("perspective, from straight above")
        << int(Camera::Projection::Perspective) << -90.0f << 90.0f;
    QTest::newRow("orthographic, from the side") << int(Camera::Projection::Orthographic) << 0.0f << 0.0f;
    QTest::newRow("orthographic, from below") << int(Camera::Projection::Orthographic) << 30.0f << -90.0f;
}

void tst_GraphicScene::shouldProjectWhereTheRayThroughThePixelPasses()
{
    QFETCH(int, projection);
    QFETCH(float, yaw);
    QFETCH(float, pitch);
    Camera camera;
    camera.SetViewportSize(QSize(640, 480));
    camera.SetProjection(Camera::Projection(projection));
    camera.SetOrientation(yaw, pitch);
    camera.SetDistance(30.0f, 1.0f, 100.0f);
    const QVector3D point(3.0f, -2.0f, 1.5f);

    const Camera::ScreenPoint screen = camera.Project(point);
    QVERIFY(screen.visible);
    const Camera::Ray ray = camera.RayThrough(screen.position);

    // The point's distance from the ray.
    const QVector3D toPoint = point - ray.origin;
    const QVector3D across = toPoint - ray.direction * QVector3D::dotProduct(toPoint, ray.direction);
    QVERIFY2(across.length() < 1e-3f, qPrintable(QString::number(across.length())));
    QVERIFY(QVector3D::dotProduct(camera.Up(), camera.Forward()) < 1e-5f);
}

void tst_GraphicScene::shouldKeepThePointUnderThePointerWhenZooming()
{
    Camera camera;
    camera.SetViewportSize(QSize(640, 480));
    camera.SetDistance(40.0f, 1.0f, 100.0f);
    const QPointF pointer(500.0, 120.0);
    const QVector3D under = camera.PointOnTargetPlane(pointer);

    camera.Zoom(0.5f, 1.0f, 100.0f, pointer);

    QCOMPARE(camera.Distance(), 20.0f);
    const QPointF after = camera.Project(under).position;
    QVERIFY2(std::hypot(after.x() - pointer.x(), after.y() - pointer.y()) < 0.5,
             qPrintable(QStringLiteral("%1, %2").arg(after.x()).arg(after.y())));
}

void tst_GraphicScene::shouldKeepTheZoomWithinItsLimits()
{
    Camera camera;
    camera.SetDistance(10.0f, 1.0f, 100.0f);
    const QVector3D target = camera.Target();

    camera.Zoom(0.01f, 2.0f, 50.0f, QPointF(0, 0));
    QCOMPARE(camera.Distance(), 2.0f);
    camera.Zoom(1000.0f, 2.0f, 50.0f);
    QCOMPARE(camera.Distance(), 50.0f);
    // Limits given the wrong way round still bound the distance.
    camera.Zoom(1000.0f, 60.0f, 5.0f);
    QCOMPARE(camera.Distance(), 60.0f);
    camera.Zoom(0.0f, 2.0f, 50.0f);
    QCOMPARE(camera.Distance(), 60.0f);
    QVERIFY(target != camera.Target()); // the first zoom moved towards its focus
}

void tst_GraphicScene::shouldTurnAboutThePivot()
{
    Camera camera;
    camera.SetOrientation(-45.0f, 30.0f);
    camera.SetDistance(25.0f, 1.0f, 100.0f);
    const QVector3D pivot(5.0f, 5.0f, 0.0f);
    const float eyeToPivot = (camera.Eye() - pivot).length();

    camera.Orbit(70.0f, 25.0f, pivot);
    QVERIFY(std::abs((camera.Eye() - pivot).length() - eyeToPivot) < 1e-3f);
    QCOMPARE(camera.Pitch(), 55.0f);

    camera.Orbit(0.0f, 80.0f, pivot);
    QCOMPARE(camera.Pitch(), 90.0f); // stops straight above
    QVERIFY(std::abs((camera.Eye() - pivot).length() - eyeToPivot) < 1e-3f);
}

void tst_GraphicScene::shouldPlaceEveryMemberInOneCell()
{
    Structure structure;
    ModelGenerator::Building(structure, BuildingOptions::ForMemberCount(6000));
    StructureScene scene;
    scene.Build(structure);

    QCOMPARE(scene.Members().size(), structure.Members().Size());
    QVERIFY(scene.Cells().size() > 1);
    std::uint32_t next = 0;
    std::set<Number> numbers;
    for (const auto& cell : scene.Cells()) {
        QCOMPARE(cell.first, next); // cells follow each other without gaps
        next += cell.count;
        std::uint32_t inRuns = 0;
        for (std::uint32_t r = cell.firstRun; r < cell.firstRun + cell.runCount; ++r) {
            const auto& run = scene.Runs()[r];
            for (std::uint32_t i = run.first; i < run.first + run.count; ++i)
                QCOMPARE(scene.Members()[i].profile, run.profile);
            inRuns += run.count;
        }
        QCOMPARE(inRuns, cell.count);
        for (std::uint32_t i = cell.first; i < cell.first + cell.count; ++i) {
            const auto& member = scene.Members()[i];
            numbers.insert(member.number);
            for (const QVector3D& end :
                 { scene.NodePositions()[member.startNode], scene.NodePositions()[member.endNode] }) {
                QVERIFY(end.x() >= cell.box.minimum.x() && end.x() <= cell.box.maximum.x());
                QVERIFY(end.z() >= cell.box.minimum.z() && end.z() <= cell.box.maximum.z());
            }
        }
    }
    QCOMPARE(std::size_t(next), scene.Members().size());
    QCOMPARE(numbers.size(), scene.Members().size());
    for (const Number number : { 1, 2500, Number(structure.Members().Size()) })
        QCOMPARE(scene.Members()[*scene.FindMember(number)].number, number);
}

void tst_GraphicScene::shouldMarkTheSelectedObjects()
{
    StructureScene scene;
    scene.Build(Portal());
    const auto revision = scene.SelectionRevision();

    scene.ApplySelection({ MakeObjectId(ObjectKind::Node, 2), MakeObjectId(ObjectKind::Member, 3),
                           MakeObjectId(ObjectKind::Member, 3), MakeObjectId(ObjectKind::Node, 99),
                           MakeObjectId(ObjectKind::LoadCase, 1), 0 });

    QVERIFY(scene.SelectionRevision() != revision);
    QCOMPARE(scene.SelectedNodes().size(), 1u);
    QCOMPARE(scene.SelectedMembers().size(), 1u);
    QVERIFY(scene.IsNodeSelected(*scene.FindNode(2)));
    QVERIFY(scene.IsMemberSelected(*scene.FindMember(3)));
    QVERIFY(!scene.IsMemberSelected(*scene.FindMember(1)));
    const SceneBox box = scene.SelectionBounds();
    QCOMPARE(box.Center().z(), NodeAt(scene, 2).z()); // node 2 and the beam, all at the eaves
}

void tst_GraphicScene::shouldPickNodesBeforeMembers_data()
{
    QTest::addColumn<QVector3D>("offset"); // pixels from the eave node 2, in x and y
    QTest::addColumn<double>("radius");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("number");
    QTest::newRow("on the node, where the members meet")
        << QVector3D(0, 0, 0) << 6.0 << int(ObjectKind::Node) << 2;
    QTest::newRow("near the node") << QVector3D(4, 3, 0) << 6.0 << int(ObjectKind::Node) << 2;
    QTest::newRow("along the beam, away from the node")
        << QVector3D(40, 2, 0) << 6.0 << int(ObjectKind::Member) << 3;
    QTest::newRow("beside the beam, beyond the radius") << QVector3D(40, 9, 0) << 6.0 << 0 << 0;
    QTest::newRow("beside the beam, within a larger radius")
        << QVector3D(40, 9, 0) << 12.0 << int(ObjectKind::Member) << 3;
}

void tst_GraphicScene::shouldPickNodesBeforeMembers()
{
    QFETCH(QVector3D, offset);
    QFETCH(double, radius);
    QFETCH(int, kind);
    QFETCH(int, number);
    StructureScene scene;
    scene.Build(Portal());
    const Camera camera = FrontCamera(scene);
    const QPointF node = camera.Project(NodeAt(scene, 2)).position;

    const auto picked = Picker(scene, camera).PickAt(node + QPointF(offset.x(), offset.y()), radius);

    QCOMPARE(picked.has_value(), kind != 0);
    if (picked)
        QCOMPARE(*picked, MakeObjectId(ObjectKind(kind), number));
}

void tst_GraphicScene::shouldSelectByRectangle_data()
{
    QTest::addColumn<bool>("crossing");
    QTest::addColumn<int>("members");
    QTest::newRow("inside only: no member lies wholly in the band") << false << 0;
    QTest::newRow("crossing: the two columns it touches") << true << 2;
}

void tst_GraphicScene::shouldSelectByRectangle()
{
    QFETCH(bool, crossing);
    QFETCH(int, members);
    StructureScene scene;
    scene.Build(Portal());
    const Camera camera = FrontCamera(scene);
    // A band across both columns between mid-height and just under the beam: no node in it.
    const QPointF left = camera.Project(NodeAt(scene, 1)).position;
    const QPointF right = camera.Project(NodeAt(scene, 3)).position;
    const QPointF top = camera.Project(NodeAt(scene, 2)).position;
    const double middle = (left.y() + top.y()) / 2;
    const QRectF band(QPointF(left.x() - 20, middle), QPointF(right.x() + 20, top.y() + 5));

    const auto picked = Picker(scene, camera).PickInRectangle(band, crossing);

    QCOMPARE(int(picked.size()), members);
    for (const ObjectId id : picked)
        QCOMPARE(KindOf(id), ObjectKind::Member);
}

void tst_GraphicScene::shouldNeverDrawOutsideTheImage_data()
{
    QTest::addColumn<QVector3D>("from");
    QTest::addColumn<QVector3D>("to");
    QTest::addColumn<int>("width");
    const float huge = 1e9f;
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("across the whole image and beyond")
        << QVector3D(-50, -30, 0.5f) << QVector3D(90, 70, 0.5f) << 1;
    QTest::newRow("along the last row") << QVector3D(0, 39, 0.5f) << QVector3D(63, 39, 0.5f) << 3;
    QTest::newRow("from very far away") << QVector3D(-huge, 20, 0.5f) << QVector3D(huge, 21, 0.5f) << 2;
    QTest::newRow("wholly outside") << QVector3D(70, 0, 0.5f) << QVector3D(90, 39, 0.5f) << 1;
    QTest::newRow("not a number") << QVector3D(nan, 5, 0.5f) << QVector3D(30, 5, 0.5f) << 1;
}

void tst_GraphicScene::shouldNeverDrawOutsideTheImage()
{
    QFETCH(QVector3D, from);
    QFETCH(QVector3D, to);
    QFETCH(int, width);
    // The image sits inside a larger buffer whose rows are longer than the image is wide:
    // anything written beyond the image's own pixels shows in the margin.
    QImage buffer(80, 50, QImage::Format_RGB32);
    buffer.fill(Qt::black);
    QImage image(buffer.bits() + 5 * buffer.bytesPerLine() + 8 * 4, 64, 40, buffer.bytesPerLine(),
                 QImage::Format_RGB32);
    SoftwareRaster raster;
    raster.Begin(image, true);

    raster.DrawLine(from, to, 0xffffffffu, width);
    raster.DrawPoint(from, 9, 0xffffffffu);
    raster.DrawTriangle(from, to, QVector3D(10, 60, 0.5f), 0xffffffffu);

    for (int y = 0; y < buffer.height(); ++y) {
        for (int x = 0; x < buffer.width(); ++x) {
            const bool inImage = x >= 8 && x < 72 && y >= 5 && y < 45;
            if (!inImage)
                QCOMPARE(buffer.pixel(x, y), qRgb(0, 0, 0));
        }
    }
}

void tst_GraphicScene::shouldHideWhatLiesBehind()
{
    QImage image(40, 40, QImage::Format_RGB32);
    SoftwareRaster raster;
    raster.Begin(image, true);
    raster.FillVerticalGradient(0xff000000u, 0xff000000u);
    const std::uint32_t near = 0xffff0000u;
    const std::uint32_t far = 0xff0000ffu;

    raster.DrawTriangle(QVector3D(0, 0, 0.3f), QVector3D(39, 0, 0.3f), QVector3D(0, 39, 0.3f), near);
    raster.DrawTriangle(QVector3D(0, 0, 0.6f), QVector3D(39, 0, 0.6f), QVector3D(39, 39, 0.6f), far);
    raster.DrawLine(QVector3D(2, 20, 0.9f), QVector3D(37, 20, 0.9f), 0xff00ff00u);

    QCOMPARE(image.pixel(5, 10), QRgb(near)); // both triangles cover it; the near one wins
    QCOMPARE(image.pixel(35, 30), QRgb(far)); // only the far one
    QCOMPARE(image.pixel(10, 20), QRgb(near)); // the line lies behind
    raster.SetDepthTest(false);
    raster.DrawLine(QVector3D(2, 20, 0.9f), QVector3D(37, 20, 0.9f), 0xff00ff00u);
    QCOMPARE(image.pixel(10, 20), qRgb(0, 255, 0)); // over everything when depth is off
}

void tst_GraphicScene::shouldDrawResultsOnlyForACaseThatHasThem()
{
    StructureScene scene;
    scene.Build(Portal());
    TestResults results;
    DisplayOptions options;
    options.deformedShape = true;
    options.deformationScale = 100.0;
    options.resultCase = TestResults::c_case;

    const auto deformed = ResultsLayer::Build(scene, &results, options);
    QCOMPARE(deformed.size(), scene.Members().size() * 2);
    const QVector3D displaced = deformed.front().position;
    const auto& first = scene.Members().front();
    QCOMPARE(displaced, scene.NodePositions()[first.startNode] + QVector3D(1.0f, 0.0f, 0.0f));

    options.diagram = ForceComponent::MomentY;
    options.deformedShape = false;
    const auto diagram = ResultsLayer::Build(scene, &results, options);
    // Per member: up at the start, one segment between stations, down at the end.
    QCOMPARE(diagram.size(), scene.Members().size() * 2 * (ResultsLayer::c_diagramStations + 1));

    options.resultCase = MakeObjectId(ObjectKind::LoadCase, 2);
    QVERIFY(ResultsLayer::Build(scene, &results, options).empty());
    QVERIFY(ResultsLayer::Build(scene, nullptr, options).empty());
}

QTEST_GUILESS_MAIN(tst_GraphicScene)
#include "tst_graphicscene.moc"
