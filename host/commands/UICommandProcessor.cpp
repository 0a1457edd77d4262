#include "UICommandProcessor.h"

#include "ICommandRepository.h"
#include "events/CommandExecuted.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"

namespace Orvo::Kernel::Framework {

UICommandProcessor::UICommandProcessor(std::shared_ptr<ICommandRepository> repository,
                                       std::weak_ptr<EventBus> eventbus)
    : m_repository(std::move(repository))
    , m_eventbus(std::move(eventbus))
{ }

bool UICommandProcessor::ExecuteCommand(const std::wstring& uuid, const std::wstring& parameterString,
                                        const std::wstring& origin)
{
    const QString commandText = QString::fromStdWString(uuid);
    const QString originText = QString::fromStdWString(origin);
    const auto command = m_repository ? m_repository->FindCommand(uuid) : std::nullopt;
    if (!command) {
        DebugOutput(QStringLiteral("Unknown command %1 requested by %2").arg(commandText, originText));
        return false;
    }
    if (!command->enabled) {
        DebugOutput(QStringLiteral("Command %1 (%2) is disabled, request by %3 refused")
                        .arg(QString::fromStdWString(command->nameId), commandText, originText));
        return false;
    }
    DebugOutput(QStringLiteral("Command %1 (%2) run by %3 with parameters \"%4\"")
                    .arg(QString::fromStdWString(command->nameId), commandText, originText,
                         QString::fromStdWString(parameterString)));
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(UI::Events::CommandExecuted(uuid, parameterString, origin));
    return true;
}

} // namespace Orvo::Kernel::Framework
