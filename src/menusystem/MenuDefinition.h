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
    };
    Type type = Type::Command;
    QString id; // a sub-menu's identifier
    QString nameId; // a sub-menu's text identifier
    QString commandUuid; // a command's identifier
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
//       <menu id="model.supports" name="(text id)"> ... </menu>
//     </menu>
//   </menus>
//
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
    // A menu anywhere in the tree; the menu bar (the top-level menus) for an empty id.
    const std::vector<MenuEntry>* FindItems(const QString& menuId) const;
    // The entry of a command (the first where it appears).
    const MenuEntry* FindCommand(const QString& commandUuid) const;

private:
    void Read(const Kernel::Framework::XMLHandler& document);

    std::vector<MenuEntry> m_menus;
};

} // namespace Orvo::UI::UIComponents
