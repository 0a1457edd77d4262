#include "DefaultServices.h"

#include "EventBus.h"
#include "INeedEventbus.h"
#include "INeedServiceCatalog.h"
#include "ServiceCatalog.h"
#include "TranslationStringLoader.h"
#include "kernel/Directories.h"
#include "qtextensions/ComponentConfigurationStore.h"

#include <QLocale>

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

} // namespace

void DefaultServices::Install(ServiceCatalog& catalog)
{
    catalog.Register<EventBus>(std::make_shared<EventBus>());
    catalog.Register<IStringLoader>(CreateStringLoader());
    catalog.Register<UI::QtExtensions::ComponentConfigurationStore>(
        std::make_shared<UI::QtExtensions::ComponentConfigurationStore>(
            Directories::GetDirectory(Directories::DirectoryType::UserConfigurationDirectory)
            / "components.json"));

    catalog.AddInjector([](IServiceClient& client, ServiceCatalog& services) {
        if (auto* needsBus = dynamic_cast<INeedEventbus*>(&client))
            needsBus->SetEventbus(services.Get<EventBus>());
    });
    catalog.AddInjector([](IServiceClient& client, ServiceCatalog& services) {
        if (auto* needsCatalog = dynamic_cast<INeedServiceCatalog*>(&client))
            needsCatalog->SetServiceCatalog(services.shared_from_this());
    });
}

} // namespace Orvo::Kernel::Framework
