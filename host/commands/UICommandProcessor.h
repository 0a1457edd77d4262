#pragma once

#include "HostKitExport.h"
#include "IUICommandProcessor.h"
#include "framework/EventConnection.h"

#include <memory>

class QUndoStack;

namespace Orvo::Kernel::Framework {

class EventBus;
class ICommandRepository;

// Runs a command by posting Orvo::UI::Events::CommandExecuted, which the application's command
// handlers act on, and records it on the debugger output. Unknown and disabled commands are
// refused with a message. A checkable command is switched over as it runs. Undo and Redo walk
// the host's undo stack, and are enabled exactly while it has something to undo or redo.
class HOSTKIT_EXPORT UICommandProcessor : public IUICommandProcessor
{
public:
    static constexpr const wchar_t* c_undoCommand = L"c6d02f75-d199-457a-9a4d-f1246cb8feb4";
    static constexpr const wchar_t* c_redoCommand = L"2e4dd56a-f2b6-489b-9dd5-b3ee6a66e276";

    UICommandProcessor(std::shared_ptr<ICommandRepository> repository, std::weak_ptr<EventBus> eventbus,
                       std::shared_ptr<QUndoStack> undoStack = nullptr);

    bool ExecuteCommand(const std::wstring& uuid, const std::wstring& parameterString,
                        const std::wstring& origin) override;

private:
    void WalkUndoStack(const std::wstring& uuid) const;
    // Undo and Redo enabled as the stack allows; again after every reload of the repository,
    // which brings back the states of the commands file.
    void FollowUndoStack();
    void SyncUndoCommands() const;

    std::shared_ptr<ICommandRepository> m_repository;
    std::weak_ptr<EventBus> m_eventbus;
    std::shared_ptr<QUndoStack> m_undoStack;
    EventConnection m_reloadConnection;
};

} // namespace Orvo::Kernel::Framework
