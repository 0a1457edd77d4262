#pragma once

#include "HostKitExport.h"
#include "IUICommandProcessor.h"

#include <memory>

namespace Orvo::Kernel::Framework {

class EventBus;
class ICommandRepository;

// Runs a command by posting Orvo::UI::Events::CommandExecuted, which the application's command
// handlers act on, and records it on the debugger output. Unknown and disabled commands are
// refused with a message.
class HOSTKIT_EXPORT UICommandProcessor : public IUICommandProcessor
{
public:
    UICommandProcessor(std::shared_ptr<ICommandRepository> repository, std::weak_ptr<EventBus> eventbus);

    bool ExecuteCommand(const std::wstring& uuid, const std::wstring& parameterString,
                        const std::wstring& origin) override;

private:
    std::shared_ptr<ICommandRepository> m_repository;
    std::weak_ptr<EventBus> m_eventbus;
};

} // namespace Orvo::Kernel::Framework
