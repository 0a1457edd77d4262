#pragma once

#include "HostKitExport.h"
#include "ICommandRepository.h"

#include <filesystem>
#include <memory>
#include <unordered_map>

namespace Orvo::Kernel::Framework {

class EventBus;
class XMLHandler;

// The host's command repository, read from a commands file:
//
//   <commands>
//     <command uuid="..." name="UI_COMMAND_..." icon="Images/..." group="edit"
//              shortcut="Ctrl+M" parameters="" enabled="true" visible="true"
//              checkable="false" checked="false"/>
//   </commands>
//
// uuid and name are required; the others may be left out (empty, true for enabled and visible,
// false for checkable and checked).
// A command that breaks these rules is left out with a message; the rest are kept.
class HOSTKIT_EXPORT CommandRepository : public ICommandRepository
{
public:
    explicit CommandRepository(std::weak_ptr<EventBus> eventbus = {});

    // Replace the commands with those of the file or text. When the document cannot be read
    // at all, the repository keeps what it had and returns false.
    bool LoadFile(const std::filesystem::path& path);
    bool LoadString(const std::wstring& xml);

    std::optional<CommandDefinition> FindCommand(const std::wstring& uuid) const override;
    std::vector<CommandDefinition> GetCommands() const override;
    std::vector<ShortcutEntry> GetShortcuts() const override;
    bool SetCommandEnabled(const std::wstring& uuid, bool enabled) override;
    bool SetCommandVisible(const std::wstring& uuid, bool visible) override;
    bool SetCommandChecked(const std::wstring& uuid, bool checked) override;
    bool SetShortcut(const std::wstring& uuid, const std::wstring& shortcut) override;
    std::vector<std::wstring> FindCommandsWithShortcut(const std::wstring& shortcut) const override;
    bool MoveShortcut(const std::wstring& uuid, const std::wstring& shortcut) override;
    bool SetGroupEnabled(const std::wstring& group, bool enabled) override;

    static constexpr const wchar_t* c_commands = L"commands";
    static constexpr const wchar_t* c_command = L"command";
    static constexpr const wchar_t* c_uuid = L"uuid";
    static constexpr const wchar_t* c_name = L"name";
    static constexpr const wchar_t* c_icon = L"icon";
    static constexpr const wchar_t* c_group = L"group";
    static constexpr const wchar_t* c_shortcut = L"shortcut";
    static constexpr const wchar_t* c_parameters = L"parameters";
    static constexpr const wchar_t* c_enabled = L"enabled";
    static constexpr const wchar_t* c_visible = L"visible";
    static constexpr const wchar_t* c_checkable = L"checkable";
    static constexpr const wchar_t* c_checked = L"checked";

private:
    bool Load(const XMLHandler& document, const std::wstring& source);
    CommandDefinition* Find(const std::wstring& uuid);
    // Sets one of the boolean states and announces a real change.
    bool SetState(const std::wstring& uuid, bool CommandDefinition::*state, bool value);
    void AnnounceReload() const;

    std::weak_ptr<EventBus> m_eventbus;
    std::vector<CommandDefinition> m_commands;
    std::unordered_map<std::wstring, std::size_t> m_indexByUuid;
};

} // namespace Orvo::Kernel::Framework
