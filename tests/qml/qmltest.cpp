#include "DemoShell.h"
#include "ModelingCommands.h"
#include "StructuralMembersFeeder.h"
#include "framework/HostApplication.h"
#include "framework/ServiceCatalog.h"
#include "kernel/Directories.h"
#include "kernel/PathText.h"
#include "properties/StructuralModel.h"
#include "qtextensions/ShellQmlContext.h"

#include <QCoreApplication>
#include <QQmlContext>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QtQuickTest>
#include <memory>

// Objects for the documents under test to work on: new nodes along X, selected, as a user would
// pick them before running a command on them. Each call's nodes stand on a line of their own.
class TestStructure : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void selectNewNodes(int count)
    {
        using namespace Orvo::Kernel;
        auto model = Framework::ServiceCatalog::Global()->Get<Framework::StructuralModel>();
        std::vector<Model::ObjectId> nodes;
        for (int i = 0; i < count; ++i)
            nodes.push_back(model->AddObject(
                Model::ObjectKind::Node,
                { { QStringLiteral("node.x"), double(i) }, { QStringLiteral("node.y"), m_line } }));
        m_line += 1.0;
        model->Select(nodes);
    }

    // A material and a cross-section for new members to be made of.
    Q_INVOKABLE void addMemberMakings()
    {
        using namespace Orvo::Kernel;
        auto model = Framework::ServiceCatalog::Global()->Get<Framework::StructuralModel>();
        if (model->Objects(Model::ObjectKind::CrossSection).empty()) {
            model->AddObject(Model::ObjectKind::Material);
            model->AddObject(Model::ObjectKind::CrossSection);
        }
    }

    Q_INVOKABLE int count(const QString& kind) const
    {
        using namespace Orvo::Kernel;
        auto model = Framework::ServiceCatalog::Global()->Get<Framework::StructuralModel>();
        return int(model
                       ->Objects(kind == QLatin1String("member") ? Model::ObjectKind::Member
                                                                 : Model::ObjectKind::Node)
                       .size());
    }

    Q_INVOKABLE double nodeX(int objectIndex) const
    {
        using namespace Orvo::Kernel;
        auto model = Framework::ServiceCatalog::Global()->Get<Framework::StructuralModel>();
        const auto nodes = model->Objects(Model::ObjectKind::Node);
        const auto value = model->Value(nodes.at(std::size_t(objectIndex)), QStringLiteral("node.x"));
        return value ? std::get<double>(*value) : qQNaN();
    }

private:
    double m_line = 100.0;
};

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
        // The demo's modelling commands, which fill the input panel as they start.
        m_modelingCommands = std::make_unique<ModelingCommands>();
        qmlRegisterSingletonInstance("Demo", 1, 0, "ModelingCommands", m_modelingCommands.get());
        qmlRegisterSingletonInstance("Demo", 1, 0, "TestStructure", &m_structure);
    }

private:
    QTemporaryDir m_userConfiguration;
    std::unique_ptr<DemoShell> m_demoShell;
    std::unique_ptr<ModelingCommands> m_modelingCommands;
    TestStructure m_structure;
};

QUICK_TEST_MAIN_WITH_SETUP(qtcomponents, QmlTestHost)

#include "qmltest.moc"
