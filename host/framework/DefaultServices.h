#pragma once

#include "HostKitExport.h"

namespace Orvo::Kernel::Framework {

class ServiceCatalog;

// The host kit's own implementation of every host service, installed into a catalog.
class HOSTKIT_EXPORT DefaultServices
{
public:
    static void Install(ServiceCatalog& catalog);
    static constexpr const wchar_t* c_componentsStringTable = L"QtComponentsStrings";
};

} // namespace Orvo::Kernel::Framework
