#include "CommandActivity.h"
#include "DemoOptions.h"
#include "MarkingMenuGesture.h"
#include "SampleObjectsModel.h"
#include "ScreenshotTaker.h"
#include "StructuralMembersFeeder.h"

#include "framework/HostApplication.h"
#include "framework/ServiceCatalog.h"
#include "kernel/PathText.h"
#include "properties/SampleStructure.h"
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

bool WantsScreenshot(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--screenshot") == 0)
            return true;
    }
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (WantsScreenshot(argc, argv)) {
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
        std::fprintf(stderr,
                     "%s\nUsage: QtComponentsDemo [--page NAME] [--hold-marking-menu] [--screenshot FILE "
                     "[--delay MS]]\n",
                     qPrintable(options.error));
        return 2;
    }

    auto services = Orvo::Kernel::Framework::HostApplication::Start(
        Orvo::Kernel::Directories::ToPath(QGuiApplication::applicationDirPath()));
    // The demo's model: a small frame whose objects the pages select and edit.
    Orvo::Kernel::Framework::SampleStructure::Fill(
        *services->Get<Orvo::Kernel::Framework::StructuralModel>());
    qmlRegisterType<SampleObjectsModel>("Demo", 1, 0, "SampleObjectsModel");

    // Declared before the engine, which must be gone before the objects its bindings read.
    CommandActivity commandActivity;
    StructuralMembersFeeder membersFeeder;
    membersFeeder.Start();
    QQmlApplicationEngine engine;
    // The build lays the QML import directory out beside bin/.
    engine.addImportPath(
        QDir(QGuiApplication::applicationDirPath()).absoluteFilePath(QStringLiteral("../qml")));
    // The shell's context: what panels publish there (the hotkey handler's model) every page sees.
    services->Get<Orvo::UI::QtExtensions::ShellQmlContext>()->SetContext(engine.rootContext());
    engine.rootContext()->setContextProperty(QStringLiteral("initialPage"), options.page);
    engine.rootContext()->setContextProperty(QStringLiteral("membersTable"), membersFeeder.GetModel());
    engine.rootContext()->setContextProperty(QStringLiteral("commandActivity"), &commandActivity);
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreationFailed, &application,
        []() { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    engine.load(QUrl(QStringLiteral("qrc:/demo/qml/Main.qml")));
    if (engine.rootObjects().isEmpty())
        return 1;

    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    if (!window)
        return 1;

    if (options.holdMarkingMenu)
        (new MarkingMenuGesture(window, &application))->Start();
    if (!options.screenshotFile.isEmpty()) {
        auto* taker
            = new ScreenshotTaker(window, options.screenshotFile, options.screenshotDelayMs, &application);
        taker->Start();
    }
    return QGuiApplication::exec();
}
