#pragma once

#include "IServiceClient.h"

#include <memory>

namespace Orvo::Kernel::Framework {

class EventBus;

class INeedEventbus : public virtual IServiceClient
{
public:
    virtual void SetEventbus(std::shared_ptr<EventBus> eventbus) = 0;
    virtual std::shared_ptr<EventBus> GetEventbus() const = 0;
};

} // namespace Orvo::Kernel::Framework
