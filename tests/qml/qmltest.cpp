#include "DemoShell.h"
#include "StructuralMembersFeeder.h"
#include "framework/HostApplication.h"
#include "framework/ServiceCatalog.h"
#include "kernel/Directories.h"
#include "kernel/PathText.h"
#include "qtextensions/ShellQmlContext.h"

#include <QCoreApplication>
#include <QQmlContext>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QtQuickTest>
#include <memory>

// Every test document runs in an application like the demo: a host started on the runner's
// folder, where the build puts the demo's shipped files (commands, marking menu), whose shell
// context is the test engine's root context, and whose user settings start empty in a folder
// of their own, so that a user's stored panels never leak into a test.
class QmlTestHost : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        using namespace Orvo::Kernel;
        Directories::SetDirectory(Directories::DirectoryType::UserConfigurationDirectory,
                                  Directories::ToPath(m_userConfiguration.path()));
        Framework::HostApplication::Start(Directories::ToPath(QCoreApplication::applicationDirPath()));
    }

    void qmlEngineAvailable(QQmlEngine* engine)
    {
        using Orvo::UI::QtExtensions::ShellQmlContext;
        if (auto shell = Orvo::Kernel::Framework::ServiceCatalog::Global()->Get<ShellQmlContext>())
            shell->SetContext(engine->rootContext());
        // The demo's 100,000-member table, for tests that use a table as a person does.
        qmlRegisterType<StructuralMembersFeeder>("Demo", 1, 0, "StructuralMembersFeeder");
        // The demo's pages read the shell's objects from it; the pages under test use only the
        // shortcuts the hotkey handler publishes.
        m_demoShell = std::make_unique<DemoShell>(QString(), nullptr, nullptr, nullptr);
        m_demoShell->SetShellContext(engine->rootContext());
        qmlRegisterSingletonInstance("Demo", 1, 0, "DemoShell", m_demoShell.get());
    }

private:
    QTemporaryDir m_userConfiguration;
    std::unique_ptr<DemoShell> m_demoShell;
};

QUICK_TEST_MAIN_WITH_SETUP(qtcomponents, QmlTestHost)

#include "qmltest.moc"
