#pragma once

namespace Orvo::Kernel::Framework {

// Common base of the host's client interfaces (INeedEventbus, INeedServiceCatalog, ...):
// ServiceCatalog::Inject looks at an object through it and fills in every client it implements.
class IServiceClient
{
public:
    virtual ~IServiceClient() = default;
};

} // namespace Orvo::Kernel::Framework
