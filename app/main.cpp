#include "CommandActivity.h"
#include "DemoOptions.h"
#include "DemoShell.h"
#include "MarkingMenuGesture.h"
#include "ModelingCommands.h"
#include "SampleObjectsModel.h"
#include "ScreenshotTaker.h"
#include "StructuralMembersFeeder.h"
#include "ViewControls.h"

#include "analysis/AnalysisService.h"
#include "commands/IUICommandProcessor.h"
#include "datamodel/Settings.h"
#include "framework/HostApplication.h"
#include "framework/ServiceCatalog.h"
#include "graphic/GraphicTypes.h"
#include "kernel/PathText.h"
#include "model/ModelGenerator.h"
#include "model/ObjectIds.h"
#include "properties/StructuralModel.h"
#include "qtextensions/ShellQmlContext.h"

#include <QDir>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <cstdio>

namespace {

bool HasArgument(int argc, char** argv, const char* argument, const char* value = nullptr)
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], argument) == 0 && (!value || (i + 1 < argc && qstrcmp(argv[i + 1], value) == 0)))
            return true;
    }
    return false;
}

// The build keeps the shipped files (Configuration/, illustrations, images) beside the executable
// and its import directory beside bin/; an install keeps them in its data and QML directories.
bool RunsFromBuildTree()
{
    return QDir(QGuiApplication::applicationDirPath()).exists(QStringLiteral("Configuration"));
}

QString FromExecutable(const char* relativePath)
{
    return QDir::cleanPath(
        QDir(QGuiApplication::applicationDirPath()).absoluteFilePath(QString::fromUtf8(relativePath)));
}

// Starts a modelling command as the menu would. Move moves the selection: with nothing selected
// it takes the first two members, so that its panel has objects to show.
void RunCommand(Orvo::Kernel::Framework::ServiceCatalog& services, const QString& name)
{
    using namespace Orvo::Kernel;
    const wchar_t* uuid = name == QLatin1String("move") ? ModelingCommands::c_move
        : name == QLatin1String("new-node")             ? ModelingCommands::c_newNode
                                                        : ModelingCommands::c_newMember;
    auto model = services.Get<Framework::StructuralModel>();
    if (name == QLatin1String("move") && model && model->Selection().empty())
        model->Select({ Model::MakeObjectId(Model::ObjectKind::Member, 1),
                        Model::MakeObjectId(Model::ObjectKind::Member, 2) });
    if (auto processor = services.Get<Framework::IUICommandProcessor>())
        processor->ExecuteCommand(uuid, std::wstring(), L"DemoOptions");
}

} // namespace

int main(int argc, char** argv)
{
    // A screenshot of the OpenGL renderer needs a display with OpenGL (xvfb-run does).
    if (HasArgument(argc, argv, "--screenshot") && !HasArgument(argc, argv, "--renderer", "opengl")) {
        // A screenshot needs no display: render offscreen with the software scene graph.
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("QtComponentsDemo"));
    QGuiApplication::setOrganizationName(QStringLiteral("QtComponents"));
    QQuickStyle::setStyle(QStringLiteral("Basic"));

    const DemoOptions options = DemoOptions::Parse(QGuiApplication::arguments());
    if (!options.valid) {
        std::fprintf(
            stderr,
            "%s\nUsage: QtComponentsDemo [--page NAME] [--model-size MEMBERS] [--table-rows ROWS] "
            "[--renderer software|opengl] "
            "[--hold-marking-menu] [--run-command new-node|new-member|move] [--window-size WIDTHxHEIGHT] "
            "[--screenshot FILE [--delay MS]]\n",
            qPrintable(options.error));
        return 2;
    }

    if (options.tableRows > 0)
        StructuralMembersFeeder::SetGeneratedMemberCount(options.tableRows);
    const bool fromBuildTree = RunsFromBuildTree();
    auto services = Orvo::Kernel::Framework::HostApplication::Start(Orvo::Kernel::Directories::ToPath(
        fromBuildTree ? QGuiApplication::applicationDirPath() : FromExecutable(QTC_INSTALLED_DATA_DIR)));
    // The demo's model: a multi-storey building whose objects the pages select, edit and analyse.
    const auto building = options.modelSize > 0
        ? Orvo::Kernel::Model::BuildingOptions::ForMemberCount(options.modelSize)
        : Orvo::Kernel::Model::BuildingOptions();
    services->Get<Orvo::Kernel::Framework::StructuralModel>()->Replace(
        [&building](Orvo::Kernel::Model::Structure& structure) {
            Orvo::Kernel::Model::ModelGenerator::Building(structure, building);
        });
    if (!options.renderer.isEmpty()) {
        const auto renderer = options.renderer == QLatin1String("opengl")
            ? Orvo::Graphic::RendererType::OpenGL
            : Orvo::Graphic::RendererType::Software;
        services->Get<Orvo::UI::DataModel::Settings>()->SetValue(
            Orvo::UI::DataModel::Settings::c_rendererType, int(renderer));
    }
    qmlRegisterType<SampleObjectsModel>("Demo", 1, 0, "SampleObjectsModel");
    qmlRegisterType<ViewControls>("Demo", 1, 0, "ViewControls");
    qmlRegisterType<StructuralMembersFeeder>("Demo", 1, 0, "StructuralMembersFeeder");

    // Declared before the engine, which must be gone before the objects its bindings read.
    CommandActivity commandActivity;
    ModelingCommands modelingCommands;
    qmlRegisterSingletonInstance("Demo", 1, 0, "ModelingCommands", &modelingCommands);
    ViewControls viewControls;
    DemoShell shell(options.page, &commandActivity, &viewControls,
                    services->Get<Orvo::Kernel::Analysis::AnalysisService>().get());
    qmlRegisterSingletonInstance("Demo", 1, 0, "DemoShell", &shell);
    QQmlApplicationEngine engine;
    engine.addImportPath(FromExecutable(fromBuildTree ? "../qml" : QTC_INSTALLED_QML_DIR));
    // The shell's context: what panels publish there (the hotkey handler's model) every page sees.
    services->Get<Orvo::UI::QtExtensions::ShellQmlContext>()->SetContext(engine.rootContext());
    shell.SetShellContext(engine.rootContext());
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreationFailed, &application,
        []() { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    engine.load(QUrl(QStringLiteral("qrc:/demo/qml/Main.qml")));
    if (engine.rootObjects().isEmpty())
        return 1;
    // The hotkey handler has loaded with the window and published its model.
    shell.SetShellContext(engine.rootContext());

    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    if (!window)
        return 1;

    if (options.windowSize.isValid())
        window->resize(options.windowSize);
    if (!options.runCommand.isEmpty())
        RunCommand(*services, options.runCommand);
    if (options.holdMarkingMenu)
        (new MarkingMenuGesture(window, &application))->Start();
    if (!options.screenshotFile.isEmpty()) {
        auto* taker
            = new ScreenshotTaker(window, options.screenshotFile, options.screenshotDelayMs, &application);
        taker->Start();
    }
    return QGuiApplication::exec();
}
