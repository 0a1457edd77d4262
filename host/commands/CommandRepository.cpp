#include "CommandRepository.h"

#include "events/CommandShortcutChange.h"
#include "events/CommandStateChange.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"
#include "framework/XMLHandler.h"
#include "kernel/PathText.h"

#include <QKeySequence>
#include <exception>

namespace Orvo::Kernel::Framework {

namespace Events = UI::Events;
namespace Directories = Kernel::Directories;

namespace {

// The portable text of a key sequence, as the repository keeps it: "ctrl+m" is kept as "Ctrl+M",
// so that one key combination has one spelling. Text that is no key sequence is kept as it is.
std::wstring NormalisedShortcut(const std::wstring& shortcut)
{
    const QKeySequence sequence
        = QKeySequence::fromString(QString::fromStdWString(shortcut), QKeySequence::PortableText);
    return sequence.isEmpty() ? shortcut : sequence.toString(QKeySequence::PortableText).toStdWString();
}

bool IsKeySequence(const std::wstring& shortcut)
{
    if (shortcut.empty())
        return true;
    const QKeySequence sequence
        = QKeySequence::fromString(QString::fromStdWString(shortcut), QKeySequence::PortableText);
    if (sequence.isEmpty())
        return false;
    for (int i = 0; i < sequence.count(); ++i) {
        if (sequence[i].key() == Qt::Key_unknown)
            return false;
    }
    return true;
}

std::wstring OptionalAttrib(const pugi::xml_node& node, const wchar_t* name)
{
    return XMLHandler::HasAttrib(node, name) ? XMLHandler::ReadAttribReq(node, name) : std::wstring();
}

bool OptionalBool(const pugi::xml_node& node, const wchar_t* name, bool fallback)
{
    return XMLHandler::HasAttrib(node, name) ? XMLHandler::ReadAttribBoolReq(node, name) : fallback;
}

CommandDefinition ReadCommand(const pugi::xml_node& node)
{
    CommandDefinition command;
    command.uuid = XMLHandler::ReadAttribReq(node, CommandRepository::c_uuid);
    command.nameId = XMLHandler::ReadAttribReq(node, CommandRepository::c_name);
    command.icon = OptionalAttrib(node, CommandRepository::c_icon);
    command.group = OptionalAttrib(node, CommandRepository::c_group);
    command.shortcut = OptionalAttrib(node, CommandRepository::c_shortcut);
    command.parameterString = OptionalAttrib(node, CommandRepository::c_parameters);
    command.enabled = OptionalBool(node, CommandRepository::c_enabled, true);
    command.visible = OptionalBool(node, CommandRepository::c_visible, true);
    command.checkable = OptionalBool(node, CommandRepository::c_checkable, false);
    // Only a checkable command can be on.
    command.checked = command.checkable && OptionalBool(node, CommandRepository::c_checked, false);
    if (command.uuid.empty())
        throw std::invalid_argument("A command has an empty uuid.");
    return command;
}

} // namespace

CommandRepository::CommandRepository(std::weak_ptr<EventBus> eventbus)
    : m_eventbus(std::move(eventbus))
{ }

bool CommandRepository::LoadFile(const std::filesystem::path& path)
{
    XMLHandler document;
    const auto result = document.LoadFile(path);
    if (!result) {
        DebugOutput(QStringLiteral("Cannot read the commands file %1: %2")
                        .arg(Directories::ToQString(path), QString::fromUtf8(result.description())));
        return false;
    }
    return Load(document, Directories::ToWString(path));
}

bool CommandRepository::LoadString(const std::wstring& xml)
{
    XMLHandler document;
    const auto result = document.LoadString(xml);
    if (!result) {
        DebugOutput(
            QStringLiteral("Cannot read the commands: %1").arg(QString::fromUtf8(result.description())));
        return false;
    }
    return Load(document, L"text");
}

bool CommandRepository::Load(const XMLHandler& document, const std::wstring& source)
{
    const QString sourceName = QString::fromStdWString(source);
    const pugi::xml_node root = document.RootNode();
    if (!XMLHandler::HasName(root, c_commands)) {
        DebugOutput(QStringLiteral("The commands in %1 have no <commands> root element").arg(sourceName));
        return false;
    }
    std::vector<CommandDefinition> commands;
    std::unordered_map<std::wstring, std::size_t> index;
    for (const pugi::xml_node& node : root.children()) {
        if (!XMLHandler::HasName(node, c_command))
            continue;
        try {
            CommandDefinition command = ReadCommand(node);
            if (!IsKeySequence(command.shortcut)) {
                DebugOutput(
                    QStringLiteral("Command %1 in %2: \"%3\" is no key sequence, the shortcut is dropped")
                        .arg(QString::fromStdWString(command.uuid), sourceName,
                             QString::fromStdWString(command.shortcut)));
                command.shortcut.clear();
            }
            command.shortcut = NormalisedShortcut(command.shortcut);
            if (!index.emplace(command.uuid, commands.size()).second) {
                DebugOutput(QStringLiteral("Command %1 appears twice in %2, the later one is left out")
                                .arg(QString::fromStdWString(command.uuid), sourceName));
                continue;
            }
            commands.push_back(std::move(command));
        } catch (const std::exception& error) {
            DebugOutput(QStringLiteral("A command in %1 is left out: %2")
                            .arg(sourceName, QString::fromUtf8(error.what())));
        }
    }
    m_commands = std::move(commands);
    m_indexByUuid = std::move(index);
    AnnounceReload();
    return true;
}

std::optional<CommandDefinition> CommandRepository::FindCommand(const std::wstring& uuid) const
{
    auto it = m_indexByUuid.find(uuid);
    if (it == m_indexByUuid.end())
        return std::nullopt;
    return m_commands[it->second];
}

std::vector<CommandDefinition> CommandRepository::GetCommands() const
{
    return m_commands;
}

std::vector<ShortcutEntry> CommandRepository::GetShortcuts() const
{
    std::vector<ShortcutEntry> shortcuts;
    for (const auto& command : m_commands) {
        if (!command.shortcut.empty())
            shortcuts.push_back({ command.uuid, command.shortcut, command.parameterString });
    }
    return shortcuts;
}

bool CommandRepository::SetCommandEnabled(const std::wstring& uuid, bool enabled)
{
    return SetState(uuid, &CommandDefinition::enabled, enabled);
}

bool CommandRepository::SetCommandVisible(const std::wstring& uuid, bool visible)
{
    return SetState(uuid, &CommandDefinition::visible, visible);
}

bool CommandRepository::SetCommandChecked(const std::wstring& uuid, bool checked)
{
    const CommandDefinition* command = Find(uuid);
    if (!command || !command->checkable)
        return false;
    return SetState(uuid, &CommandDefinition::checked, checked);
}

bool CommandRepository::SetState(const std::wstring& uuid, bool CommandDefinition::*state, bool value)
{
    CommandDefinition* command = Find(uuid);
    if (!command)
        return false;
    if (command->*state != value) {
        command->*state = value;
        if (auto eventbus = m_eventbus.lock())
            eventbus->Post(Events::CommandStateChange(uuid));
    }
    return true;
}

bool CommandRepository::SetShortcut(const std::wstring& uuid, const std::wstring& shortcut)
{
    CommandDefinition* command = Find(uuid);
    if (!command || !IsKeySequence(shortcut))
        return false;
    const std::wstring normalised = NormalisedShortcut(shortcut);
    if (command->shortcut != normalised) {
        command->shortcut = normalised;
        if (auto eventbus = m_eventbus.lock())
            eventbus->Post(Events::CommandShortcutChange(uuid));
    }
    return true;
}

std::vector<std::wstring> CommandRepository::FindCommandsWithShortcut(const std::wstring& shortcut) const
{
    std::vector<std::wstring> uuids;
    const std::wstring normalised = NormalisedShortcut(shortcut);
    if (normalised.empty())
        return uuids;
    for (const auto& command : m_commands) {
        if (command.shortcut == normalised)
            uuids.push_back(command.uuid);
    }
    return uuids;
}

bool CommandRepository::MoveShortcut(const std::wstring& uuid, const std::wstring& shortcut)
{
    if (!Find(uuid) || shortcut.empty() || !IsKeySequence(shortcut))
        return false;
    // Each change is announced at once, and a listener may reload the repository: walk a copy.
    for (const std::wstring& owner : FindCommandsWithShortcut(shortcut)) {
        if (owner != uuid)
            SetShortcut(owner, {});
    }
    return SetShortcut(uuid, shortcut);
}

bool CommandRepository::SetGroupEnabled(const std::wstring& group, bool enabled)
{
    if (group.empty())
        return false;
    // Each change is announced at once, and a listener may reload the repository: walk a copy.
    std::vector<std::wstring> members;
    for (const auto& command : m_commands) {
        if (command.group == group)
            members.push_back(command.uuid);
    }
    for (const auto& uuid : members)
        SetCommandEnabled(uuid, enabled);
    return !members.empty();
}

CommandDefinition* CommandRepository::Find(const std::wstring& uuid)
{
    auto it = m_indexByUuid.find(uuid);
    return it == m_indexByUuid.end() ? nullptr : &m_commands[it->second];
}

void CommandRepository::AnnounceReload() const
{
    if (auto eventbus = m_eventbus.lock()) {
        eventbus->Post(Events::CommandStateChange());
        eventbus->Post(Events::CommandShortcutChange());
    }
}

} // namespace Orvo::Kernel::Framework
