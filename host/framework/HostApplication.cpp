#include "HostApplication.h"

#include "ServiceCatalog.h"
#include "kernel/Directories.h"
#include "qtextensions/HostQmlTypes.h"

namespace Orvo::Kernel::Framework {

std::shared_ptr<ServiceCatalog> HostApplication::Start(const std::filesystem::path& applicationDirectory)
{
    Directories::SetDirectory(Directories::DirectoryType::ApplicationDirectory, applicationDirectory);
    auto catalog = ServiceCatalog::CreateWithDefaults();
    ServiceCatalog::SetGlobal(catalog);
    UI::QtExtensions::RegisterHostQmlTypes();
    return catalog;
}

} // namespace Orvo::Kernel::Framework
