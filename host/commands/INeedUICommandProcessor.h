#pragma once

#include "framework/IServiceClient.h"

#include <memory>

namespace Orvo::Kernel::Framework {

class IUICommandProcessor;

class INeedUICommandProcessor : public virtual IServiceClient
{
public:
    virtual void SetUICommandProcessor(std::shared_ptr<IUICommandProcessor> processor) = 0;
    virtual std::shared_ptr<IUICommandProcessor> GetUICommandProcessor() const = 0;
};

} // namespace Orvo::Kernel::Framework
