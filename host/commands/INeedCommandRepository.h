#pragma once

#include "framework/IServiceClient.h"

#include <memory>

namespace Orvo::Kernel::Framework {

class ICommandRepository;

class INeedCommandRepository : public virtual IServiceClient
{
public:
    virtual void SetCommandRepository(std::shared_ptr<ICommandRepository> repository) = 0;
    virtual std::shared_ptr<ICommandRepository> GetCommandRepository() const = 0;
};

} // namespace Orvo::Kernel::Framework
