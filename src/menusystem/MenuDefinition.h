#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <vector>

namespace Orvo::Kernel::Framework {
class XMLHandler;
}

namespace Orvo::UI::UIComponents {

// A variant of a command offered under it (New member: line, polyline, arc): the command runs
// with the sub-command's parameters.
struct MenuSubcommand
{
    QString nameId;
    QString icon;
    QString parameters;
};

struct MenuEntry
{
    enum class Type
    {
        Command,
        Separator,
        Submenu,
        // The recently used files, listed in place; each runs commandUuid with "file=<path>".
        RecentFiles,
    };
    Type type = Type::Command;
    QString id; // a sub-menu's identifier
    QString nameId; // a sub-menu's text identifier
    bool context = false; // a context menu (at the top level only)
    QString commandUuid; // a command's identifier (the opening command of the recent files)
    std::vector<MenuEntry> children;
    std::vector<MenuSubcommand> subcommands;
};

// The application's menus as the shipped definition file lays them out:
//
//   <menus>
//     <menu id="model" name="(text id)">
//       <command uuid="..."/>
//       <command uuid="...">
//         <subcommand name="(text id)" parameters="shape=line" icon="Images/..."/>
//       </command>
//       <separator/>
//       <recentfiles command="(uuid of the command that opens a file)"/>
//       <menu id="model.supports" name="(text id)"> ... </menu>
//     </menu>
//     <contextmenu id="context.object" name="(text id)"> ... </contextmenu>
//   </menus>
//
// A context menu is laid out as a menu is, and shown on an object of a view instead of in the
// menu bar.
// The commands' names, icons, shortcuts and states come from the command repository; the file
// only says where they go. An element it does not know is skipped with a message.
class MenuDefinition
{
public:
    static constexpr const wchar_t* c_fileName = L"Menus.xml";

    // Replaces the menus; throws std::invalid_argument when the document cannot be read.
    void Load(const std::filesystem::path& file);
    void LoadString(const std::wstring& xml);

    const std::vector<MenuEntry>& Menus() const { return m_menus; }
    const std::vector<MenuEntry>& ContextMenus() const { return m_contextMenus; }
    // A menu or context menu anywhere in the tree; the menu bar (the top-level menus) for an
    // empty id.
    const std::vector<MenuEntry>* FindItems(const QString& menuId) const;
    // The entry of a command (the first where it appears).
    const MenuEntry* FindCommand(const QString& commandUuid) const;

private:
    void Read(const Kernel::Framework::XMLHandler& document);

    std::vector<MenuEntry> m_menus;
    std::vector<MenuEntry> m_contextMenus;
};

} // namespace Orvo::UI::UIComponents
