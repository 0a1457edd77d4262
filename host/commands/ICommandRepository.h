#pragma once

#include "CommandDefinition.h"

#include <optional>
#include <string>
#include <vector>

namespace Orvo::Kernel::Framework {

// The host's list of commands. Changes are announced on the event bus: enabled and visible
// states with Orvo::UI::Events::CommandStateChange, shortcuts with CommandShortcutChange.
class ICommandRepository
{
public:
    virtual ~ICommandRepository() = default;

    virtual std::optional<CommandDefinition> FindCommand(const std::wstring& uuid) const = 0;
    // In the repository's order (the order of the commands file).
    virtual std::vector<CommandDefinition> GetCommands() const = 0;
    // The commands that have a shortcut, in the repository's order.
    virtual std::vector<ShortcutEntry> GetShortcuts() const = 0;

    // The commands bound to the same key combination as shortcut, however it is spelled
    // ("ctrl+m" and "Ctrl+M" are one), in the repository's order.
    virtual std::vector<std::wstring> FindCommandsWithShortcut(const std::wstring& shortcut) const = 0;

    // Each returns false, changing nothing, for an unknown command (or a shortcut text that
    // is no key sequence); an empty shortcut removes the binding. Shortcuts are kept in the
    // portable spelling of their key sequence.
    virtual bool SetCommandEnabled(const std::wstring& uuid, bool enabled) = 0;
    virtual bool SetCommandVisible(const std::wstring& uuid, bool visible) = 0;
    // False as well for a command that is not checkable.
    virtual bool SetCommandChecked(const std::wstring& uuid, bool checked) = 0;
    virtual bool SetShortcut(const std::wstring& uuid, const std::wstring& shortcut) = 0;
    // Gives the command the shortcut and takes it from every other command that had it, so that
    // one key combination runs one command. An empty shortcut is refused.
    virtual bool MoveShortcut(const std::wstring& uuid, const std::wstring& shortcut) = 0;
    // Enables or disables every command of group; false when the group has no command.
    virtual bool SetGroupEnabled(const std::wstring& group, bool enabled) = 0;
};

} // namespace Orvo::Kernel::Framework
