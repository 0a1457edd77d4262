#pragma once

#include "HostKitExport.h"

#include <filesystem>
#include <memory>

namespace Orvo::Kernel::Framework {

class ServiceCatalog;

// What a host does once at start-up: fix its directories, then build the service catalog
// that every component will find through ServiceCatalog::Global(), and register the host's
// QML types.
class HOSTKIT_EXPORT HostApplication
{
public:
    static std::shared_ptr<ServiceCatalog> Start(const std::filesystem::path& applicationDirectory);
};

} // namespace Orvo::Kernel::Framework
