#include "DefaultServices.h"

#include "EventBus.h"
#include "INeedEventbus.h"
#include "INeedServiceCatalog.h"
#include "IdleEventSource.h"
#include "ServiceCatalog.h"
#include "TranslationStringLoader.h"
#include "analysis/AnalysisService.h"
#include "analysis/DesignService.h"
#include "basiccomponents/DisplayUnits.h"
#include "basiccomponents/NumberFormatSettings.h"
#include "commands/CommandHistory.h"
#include "commands/CommandRepository.h"
#include "commands/INeedCommandRepository.h"
#include "commands/INeedUICommandProcessor.h"
#include "commands/RecentFiles.h"
#include "commands/RunningCommand.h"
#include "commands/UICommandProcessor.h"
#include "datamodel/Settings.h"
#include "document/ModelDocument.h"
#include "graphic/AnalysisResultsSource.h"
#include "graphic/GraphicsService.h"
#include "kernel/Directories.h"
#include "model/ActiveEntities.h"
#include "properties/StructuralModel.h"
#include "qtextensions/ComponentConfigurationStore.h"
#include "qtextensions/MessageBoxService.h"
#include "qtextensions/ShellQmlContext.h"
#include "tables/TableDataCatalog.h"

#include <QLocale>
#include <QUndoStack>

static void initHostKitResources()
{
    Q_INIT_RESOURCE(hostkit_translations);
}

namespace Orvo::Kernel::Framework {

namespace Directories = Kernel::Directories;

namespace {

std::shared_ptr<TranslationStringLoader> CreateStringLoader()
{
    initHostKitResources();
    auto loader = std::make_shared<TranslationStringLoader>();
    // English is the catalogue every identifier has; a translated catalogue replaces it when present.
    loader->LoadTable(DefaultServices::c_componentsStringTable, QStringLiteral(":/i18n"),
                      QStringLiteral("en"));
    const QString language = QLocale().name().section(QLatin1Char('_'), 0, 0);
    if (language != QLatin1String("en") && language != QLatin1String("C"))
        loader->LoadTable(DefaultServices::c_componentsStringTable, QStringLiteral(":/i18n"), language);
    return loader;
}

std::shared_ptr<CommandRepository> CreateCommandRepository(const std::shared_ptr<EventBus>& eventbus)
{
    auto repository = std::make_shared<CommandRepository>(eventbus);
    const auto file = Directories::GetDirectory(Directories::DirectoryType::ApplicationDirectory)
        / "Configuration" / "Commands.xml";
    repository->LoadFile(file);
    return repository;
}

} // namespace

void DefaultServices::Install(ServiceCatalog& catalog)
{
    auto eventBus = std::make_shared<EventBus>();
    catalog.Register<EventBus>(eventBus);
    // Listening from the start, so that what ran before any view opened is known.
    catalog.Register<CommandHistory>(std::make_shared<CommandHistory>(eventBus));
    catalog.Register<IStringLoader>(CreateStringLoader());
    catalog.Register<UI::BasicComponents::NumberFormatSettings>(
        std::make_shared<UI::BasicComponents::NumberFormatSettings>(eventBus));
    catalog.Register<UI::QtExtensions::ComponentConfigurationStore>(
        std::make_shared<UI::QtExtensions::ComponentConfigurationStore>(
            Directories::GetDirectory(Directories::DirectoryType::UserConfigurationDirectory)
                / "components.json",
            Directories::GetDirectory(Directories::DirectoryType::ApplicationDirectory) / "Configuration"
                / "DefaultUserConfiguration"));
    // One undo stack for every change a user makes; the structural model starts empty, a host
    // loads its objects into it.
    auto undoStack = std::make_shared<QUndoStack>();
    catalog.Register<QUndoStack>(undoStack);
    auto structuralModel
        = std::make_shared<StructuralModel>(eventBus, undoStack, catalog.Get<IStringLoader>());
    catalog.Register<StructuralModel>(structuralModel);
    catalog.Register<Model::ActiveEntities>(std::make_shared<Model::ActiveEntities>(eventBus));
    auto settings = std::make_shared<UI::DataModel::Settings>(
        Directories::GetDirectory(Directories::DirectoryType::UserConfigurationDirectory) / "Settings.ini",
        eventBus);
    catalog.Register<UI::DataModel::Settings>(settings);
    auto displayUnits = std::make_shared<UI::BasicComponents::DisplayUnits>(eventBus, settings);
    catalog.Register<UI::BasicComponents::DisplayUnits>(displayUnits);
    auto tables = std::make_shared<Tables::TableDataCatalog>(structuralModel, eventBus, displayUnits);
    catalog.Register<Tables::TableDataCatalog>(tables);
    catalog.Register<Analysis::AnalysisService>(std::make_shared<Analysis::AnalysisService>(
        structuralModel, tables, eventBus, catalog.Get<IStringLoader>(), displayUnits));
    catalog.Register<Analysis::DesignService>(std::make_shared<Analysis::DesignService>(
        catalog.Get<Analysis::AnalysisService>(), eventBus, catalog.Get<IStringLoader>()));
    auto graphics = std::make_shared<Graphic::GraphicsService>(structuralModel, eventBus, settings);
    catalog.Register<Graphic::GraphicsService>(graphics);
    // The views show the analysis's results as soon as it has them.
    Graphic::AnalysisResultsSource::Install(catalog.Get<Analysis::AnalysisService>(), *graphics);
    catalog.Register<IdleEventSource>(std::make_shared<IdleEventSource>(catalog.Get<EventBus>()));
    auto commandRepository = CreateCommandRepository(catalog.Get<EventBus>());
    catalog.Register<ICommandRepository>(commandRepository);
    catalog.Register<IUICommandProcessor>(
        std::make_shared<UICommandProcessor>(commandRepository, catalog.Get<EventBus>(), undoStack));
    catalog.Register<RecentFiles>(std::make_shared<RecentFiles>(
        Directories::GetDirectory(Directories::DirectoryType::UserConfigurationDirectory) / "RecentFiles.txt",
        catalog.Get<EventBus>()));
    // After the recent files, which put a file a command names on top before it is opened: a
    // file that cannot be opened then leaves the list again.
    catalog.Register<ModelDocument>(std::make_shared<ModelDocument>(
        structuralModel, eventBus, catalog.Get<RecentFiles>(), catalog.Get<IStringLoader>()));
    catalog.Register<RunningCommand>(std::make_shared<RunningCommand>(catalog.Get<EventBus>()));
    catalog.Register<UI::QtExtensions::MessageBoxService>(
        std::make_shared<UI::QtExtensions::MessageBoxService>(catalog.Get<EventBus>()));
    // Empty until the host's engine exists: the host registers its root context then.
    catalog.Register<UI::QtExtensions::ShellQmlContext>(
        std::make_shared<UI::QtExtensions::ShellQmlContext>());

    catalog.AddInjector([](IServiceClient& client, ServiceCatalog& services) {
        if (auto* needsBus = dynamic_cast<INeedEventbus*>(&client))
            needsBus->SetEventbus(services.Get<EventBus>());
    });
    catalog.AddInjector([](IServiceClient& client, ServiceCatalog& services) {
        if (auto* needsCatalog = dynamic_cast<INeedServiceCatalog*>(&client))
            needsCatalog->SetServiceCatalog(services.shared_from_this());
    });
    catalog.AddInjector([](IServiceClient& client, ServiceCatalog& services) {
        if (auto* needsRepository = dynamic_cast<INeedCommandRepository*>(&client))
            needsRepository->SetCommandRepository(services.Get<ICommandRepository>());
    });
    catalog.AddInjector([](IServiceClient& client, ServiceCatalog& services) {
        if (auto* needsProcessor = dynamic_cast<INeedUICommandProcessor*>(&client))
            needsProcessor->SetUICommandProcessor(services.Get<IUICommandProcessor>());
    });
}

} // namespace Orvo::Kernel::Framework
