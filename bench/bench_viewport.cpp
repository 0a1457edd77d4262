// Frames per second of a model view while the user turns the camera about a 100,000-member
// building, drawn by the engine's software renderer and by its OpenGL renderer, against
// drawing the same members as lines with QPainter into a QImage, in the same run.
//
// The OpenGL case needs an OpenGL context: run on an X server (xvfb-run bench_viewport).

#include "datamodel/Settings.h"
#include "framework/EventBus.h"
#include "graphic/GraphicsService.h"
#include "graphic/InteractiveViewport.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"

#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QPainter>
#include <QTemporaryDir>
#include <QVector4D>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace Orvo;

namespace {

const int c_members = qEnvironmentVariableIsSet("QTC_BENCH_MEMBERS")
    ? qEnvironmentVariableIntValue("QTC_BENCH_MEMBERS")
    : 100'000;
const QSize c_frameSize(1280, 800);
// Pixels the pointer moves between two frames of the orbit.
constexpr double c_orbitStep = 3.0;
// Below this a camera move stutters visibly.
constexpr double c_interactiveFps = 20.0;
// The engine culls and batches: turning the camera must be at least as fast as projecting and
// drawing every member with QPainter.
constexpr double c_qpainterRatio = 1.0;

class BenchView : public Graphic::InteractiveViewport
{
public:
    using InteractiveViewport::InteractiveViewport;
    void RedrawWindowRequest() override { }
    void PresentFrame() override { }
    void ScheduleRedraw(int) override { }
};

// The building, its scene and the services around them, made once for every benchmark.
struct Model
{
    Model()
    {
        auto bus = std::make_shared<Kernel::Framework::EventBus>();
        structural = std::make_shared<Kernel::Framework::StructuralModel>(bus);
        structural->Replace([](Kernel::Model::Structure& structure) {
            Kernel::Model::ModelGenerator::Building(
                structure, Kernel::Model::BuildingOptions::ForMemberCount(c_members));
        });
        settings = std::make_shared<UI::DataModel::Settings>(
            (directory.path() + QStringLiteral("/Settings.ini")).toStdString(), bus);
        graphics = std::make_shared<Graphic::GraphicsService>(structural, bus, settings);
    }

    QTemporaryDir directory;
    std::shared_ptr<Kernel::Framework::StructuralModel> structural;
    std::shared_ptr<UI::DataModel::Settings> settings;
    std::shared_ptr<Graphic::GraphicsService> graphics;
};

Model& TheModel()
{
    static Model model;
    return model;
}

Graphic::MouseEvent Pointer(double x, double y, std::uint8_t button = Graphic::MouseButton::None)
{
    Graphic::MouseEvent event;
    event.position = { x, y };
    event.button = button;
    return event;
}

// Turns the camera one step per frame, as a middle-button drag does, and draws.
void Orbit(benchmark::State& state, Graphic::RendererType type)
{
    Model& model = TheModel();
    model.settings->SetValue(UI::DataModel::Settings::c_rendererType, int(type));
    BenchView view(model.graphics);
    if (!view.Initialize(0, true) || view.GetRendererType() != int(type)) {
        state.SkipWithError("this renderer cannot work here");
        return;
    }
    view.Resize(c_frameSize);
    view.Draw();
    double x = c_frameSize.width() / 2.0;
    view.MousePress(Pointer(x, 400, Graphic::MouseButton::Middle));
    for (auto _ : state) {
        x += c_orbitStep;
        view.MouseMove(Pointer(x, 400));
        view.Draw();
    }
    view.MouseRelease(Pointer(x, 400, Graphic::MouseButton::Middle));
    view.Invalidate();
    state.counters["fps"] = benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
}

void OrbitSoftware(benchmark::State& state)
{
    Orbit(state, Graphic::RendererType::Software);
}

void OrbitOpenGL(benchmark::State& state)
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    if (!context.create() || !context.makeCurrent(&surface)) {
        state.SkipWithError("no OpenGL context: run on an X server");
        return;
    }
    Orbit(state, Graphic::RendererType::OpenGL);
    context.doneCurrent();
}

// The same members as lines, projected by the same camera moving the same way, drawn by
// QPainter into an image of the same size over the same gradient.
void Baseline_OrbitQPainter(benchmark::State& state)
{
    Model& model = TheModel();
    BenchView view(model.graphics);
    view.Resize(c_frameSize);
    view.FitAll();
    const auto& scene = view.Scene();
    QImage image(c_frameSize, QImage::Format_RGB32);
    std::vector<QPointF> projected(scene.NodePositions().size());
    std::vector<QLineF> lines(scene.Members().size());
    QLinearGradient background(0, 0, 0, c_frameSize.height());
    background.setColorAt(0, QColor(0xd9, 0xe1, 0xea));
    background.setColorAt(1, QColor(0xf6, 0xf8, 0xfa));
    const QVector3D pivot = view.GetCamera().Target();
    for (auto _ : state) {
        view.GetCamera().Orbit(float(-c_orbitStep * 0.4), 0.0f, pivot);
        const QMatrix4x4 viewProjection = view.GetCamera().ViewProjection();
        for (std::size_t i = 0; i < projected.size(); ++i) {
            const QVector4D clip = viewProjection * QVector4D(scene.NodePositions()[i], 1.0f);
            projected[i] = QPointF((clip.x() / clip.w() + 1.0) * 0.5 * c_frameSize.width(),
                                   (1.0 - clip.y() / clip.w()) * 0.5 * c_frameSize.height());
        }
        for (std::size_t i = 0; i < lines.size(); ++i)
            lines[i] = QLineF(projected[scene.Members()[i].startNode], projected[scene.Members()[i].endNode]);
        QPainter painter(&image);
        painter.fillRect(image.rect(), background);
        painter.setPen(QPen(QColor(0x2b, 0x34, 0x45), 0));
        painter.drawLines(lines.data(), int(lines.size()));
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
    state.counters["fps"] = benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
}

class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (!run.error_occurred)
                times[run.run_name.function_name] = run.GetAdjustedRealTime();
        }
    }
    std::map<std::string, double> times;
};

} // namespace

BENCHMARK(OrbitSoftware)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(OrbitOpenGL)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(Baseline_OrbitQPainter)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsEmpty("DISPLAY") ? "offscreen" : "xcb");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const auto baseline = reporter.times.find("Baseline_OrbitQPainter");
    std::printf("\nFrames per second while orbiting %d members at %dx%d, against QPainter lines:\n",
                c_members, c_frameSize.width(), c_frameSize.height());
    std::vector<std::string> goals;
    for (const auto& [name, goalName] : { std::pair("OrbitSoftware", "viewport_orbit_software"),
                                          std::pair("OrbitOpenGL", "viewport_orbit_opengl") }) {
        const auto ours = reporter.times.find(name);
        if (ours == reporter.times.end() || baseline == reporter.times.end()) {
            std::printf("%-16s not measured\n", name);
            goals.push_back(std::string("GOAL ") + goalName + "_fps 0 fps "
                            + std::to_string(int(c_interactiveFps)) + " missed");
            continue;
        }
        const double fps = 1000.0 / ours->second;
        const double ratio = baseline->second / ours->second;
        std::printf("%-16s %7.1f fps  QPainter %7.1f fps  ratio %.2fx\n", name, fps,
                    1000.0 / baseline->second, ratio);
        char line[200];
        std::snprintf(line, sizeof line, "GOAL %s_fps %.1f fps %.0f %s", goalName, fps, c_interactiveFps,
                      fps >= c_interactiveFps ? "met" : "missed");
        goals.emplace_back(line);
        std::snprintf(line, sizeof line, "GOAL %s_vs_qpainter %.2f ratio %.2f %s", goalName, ratio,
                      c_qpainterRatio, ratio >= c_qpainterRatio ? "met" : "missed");
        goals.emplace_back(line);
    }
    std::printf("\n");
    for (const std::string& goal : goals)
        std::printf("%s\n", goal.c_str());
    benchmark::Shutdown();
    return 0;
}
