#pragma once

#include "IServiceClient.h"

#include <memory>

namespace Orvo::Kernel::Framework {

class ServiceCatalog;

class INeedServiceCatalog : public virtual IServiceClient
{
public:
    virtual void SetServiceCatalog(std::shared_ptr<ServiceCatalog> catalog) = 0;
};

} // namespace Orvo::Kernel::Framework
