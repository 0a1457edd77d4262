#include "CommandMenuHelper.h"

#include "commands/ICommandRepository.h"
#include "commands/IUICommandProcessor.h"
#include "events/CommandStateChange.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"
#include "qtextensions/File.h"

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

CommandMenuHelper::CommandMenuHelper(QObject* parent)
    : QObject(parent)
{
    ServiceCatalog::Global()->Inject(*this);
}

QString CommandMenuHelper::componentTrackingID() const
{
    return m_componentTrackingID;
}

void CommandMenuHelper::setComponentTrackingID(const QString& componentTrackingID)
{
    if (m_componentTrackingID == componentTrackingID)
        return;
    m_componentTrackingID = componentTrackingID;
    emit componentTrackingIDChanged();
}

bool CommandMenuHelper::executeCommand(const QString& commandUuid)
{
    if (!m_processor)
        return false;
    const auto command = FindCommand(commandUuid);
    const std::wstring parameterString = command ? command->parameterString : std::wstring();
    return m_processor->ExecuteCommand(commandUuid.toStdWString(), parameterString,
                                       m_componentTrackingID.toStdWString());
}

bool CommandMenuHelper::isItemEnabled(const QString& commandUuid) const
{
    const auto command = FindCommand(commandUuid);
    return command && command->enabled;
}

bool CommandMenuHelper::isItemVisible(const QString& commandUuid) const
{
    const auto command = FindCommand(commandUuid);
    return command && command->visible;
}

QString CommandMenuHelper::getCommandIcon(const QString& commandUuid) const
{
    const auto command = FindCommand(commandUuid);
    return command ? QtExtensions::File::createQmlFilePathFromApplicationPath(command->icon) : QString();
}

QString CommandMenuHelper::getCommandName(const QString& commandUuid) const
{
    const auto command = FindCommand(commandUuid);
    return command ? QString::fromStdWString(GetWText(command->nameId)) : QString();
}

std::optional<CommandDefinition> CommandMenuHelper::FindCommand(const QString& commandUuid) const
{
    return m_repository ? m_repository->FindCommand(commandUuid.toStdWString()) : std::nullopt;
}

void CommandMenuHelper::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    m_stateConnection = m_eventbus ? m_eventbus->Subscribe<Events::CommandStateChange>(
                            [this](const Events::CommandStateChange&) { emit commandStateChanged(); })
                                   : EventConnection();
}

std::shared_ptr<EventBus> CommandMenuHelper::GetEventbus() const
{
    return m_eventbus;
}

void CommandMenuHelper::SetCommandRepository(std::shared_ptr<ICommandRepository> repository)
{
    m_repository = std::move(repository);
}

std::shared_ptr<ICommandRepository> CommandMenuHelper::GetCommandRepository() const
{
    return m_repository;
}

void CommandMenuHelper::SetUICommandProcessor(std::shared_ptr<IUICommandProcessor> processor)
{
    m_processor = std::move(processor);
}

std::shared_ptr<IUICommandProcessor> CommandMenuHelper::GetUICommandProcessor() const
{
    return m_processor;
}

} // namespace Orvo::UI::UIComponents
