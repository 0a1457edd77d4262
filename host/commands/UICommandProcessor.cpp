#include "UICommandProcessor.h"

#include "ICommandRepository.h"
#include "events/CommandExecuted.h"
#include "events/CommandStateChange.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"

#include <QUndoStack>

namespace Orvo::Kernel::Framework {

UICommandProcessor::UICommandProcessor(std::shared_ptr<ICommandRepository> repository,
                                       std::weak_ptr<EventBus> eventbus,
                                       std::shared_ptr<QUndoStack> undoStack)
    : m_repository(std::move(repository))
    , m_eventbus(std::move(eventbus))
    , m_undoStack(std::move(undoStack))
{
    FollowUndoStack();
}

void UICommandProcessor::FollowUndoStack()
{
    if (!m_undoStack || !m_repository)
        return;
    // The connections live with the stack and hold the repository weakly: either may outlive
    // the processor.
    const std::weak_ptr<ICommandRepository> repository = m_repository;
    QObject::connect(m_undoStack.get(), &QUndoStack::canUndoChanged, [repository](bool canUndo) {
        if (auto commands = repository.lock())
            commands->SetCommandEnabled(c_undoCommand, canUndo);
    });
    QObject::connect(m_undoStack.get(), &QUndoStack::canRedoChanged, [repository](bool canRedo) {
        if (auto commands = repository.lock())
            commands->SetCommandEnabled(c_redoCommand, canRedo);
    });
    if (auto eventbus = m_eventbus.lock()) {
        m_reloadConnection = eventbus->Subscribe<UI::Events::CommandStateChange>(
            [this](const UI::Events::CommandStateChange& event) {
                if (event.GetCommandUuid().empty())
                    SyncUndoCommands();
            });
    }
    SyncUndoCommands();
}

void UICommandProcessor::SyncUndoCommands() const
{
    m_repository->SetCommandEnabled(c_undoCommand, m_undoStack->canUndo());
    m_repository->SetCommandEnabled(c_redoCommand, m_undoStack->canRedo());
}

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
    if (command->checkable)
        m_repository->SetCommandChecked(uuid, !command->checked);
    WalkUndoStack(uuid);
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(UI::Events::CommandExecuted(uuid, parameterString, origin));
    return true;
}

void UICommandProcessor::WalkUndoStack(const std::wstring& uuid) const
{
    const bool undo = uuid == c_undoCommand;
    if (!m_undoStack || (!undo && uuid != c_redoCommand))
        return;
    if (undo ? !m_undoStack->canUndo() : !m_undoStack->canRedo()) {
        DebugOutput(undo ? "Nothing to undo" : "Nothing to redo");
        return;
    }
    DebugOutput(QStringLiteral("%1: %2").arg(undo ? QStringLiteral("Undo") : QStringLiteral("Redo"),
                                             undo ? m_undoStack->undoText() : m_undoStack->redoText()));
    if (undo)
        m_undoStack->undo();
    else
        m_undoStack->redo();
}

} // namespace Orvo::Kernel::Framework
