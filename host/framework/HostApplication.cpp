#include "HostApplication.h"

#include "ServiceCatalog.h"
#include "kernel/Directories.h"

namespace Orvo::Kernel::Framework {

std::shared_ptr<ServiceCatalog> HostApplication::Start(const std::filesystem::path& applicationDirectory)
{
    Directories::SetDirectory(Directories::DirectoryType::ApplicationDirectory, applicationDirectory);
    auto catalog = ServiceCatalog::CreateWithDefaults();
    ServiceCatalog::SetGlobal(catalog);
    return catalog;
}

} // namespace Orvo::Kernel::Framework
